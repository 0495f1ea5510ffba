#include "UkuleleTonariumMainPage.h"

#include "UkuleleShop.h"
#include "UkuleleTonarium.h"

namespace QMMusic {

UkuleleTonariumMainPage::UkuleleTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("UkuleleTonariumMainPage"), parent)
    , m_ukuleleTonarium(new UkuleleTonarium)
{
    setFinder(m_ukuleleTonarium);
}

UkuleleTonarium* UkuleleTonariumMainPage::ukuleleTonarium() const
{
    return m_ukuleleTonarium;
}

void UkuleleTonariumMainPage::addShopMenu()
{
    setShop(new UkuleleShop(this));
    doShopConnections();
}

} // namespace QMMusic
