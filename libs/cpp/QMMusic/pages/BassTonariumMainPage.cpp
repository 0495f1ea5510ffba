#include "BassTonariumMainPage.h"

#include "BassShop.h"
#include "BassTonarium.h"

namespace QMMusic {

BassTonariumMainPage::BassTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("BassTonariumMainPage"), parent)
    , m_bassTonarium(new BassTonarium)
{
    setFinder(m_bassTonarium);
}

BassTonarium* BassTonariumMainPage::bassTonarium() const
{
    return m_bassTonarium;
}

void BassTonariumMainPage::addShopMenu()
{
    setShop(new BassShop(this));
    doShopConnections();
}

} // namespace QMMusic
