#include "BanjoTonariumMainPage.h"

#include "BanjoShop.h"
#include "BanjoTonarium.h"

namespace QMMusic {

BanjoTonariumMainPage::BanjoTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("BanjoTonariumMainPage"), parent)
    , m_banjoTonarium(new BanjoTonarium)
{
    setFinder(m_banjoTonarium);
}

BanjoTonarium* BanjoTonariumMainPage::banjoTonarium() const
{
    return m_banjoTonarium;
}

void BanjoTonariumMainPage::addShopMenu()
{
    setShop(new BanjoShop(this));
    doShopConnections();
}

} // namespace QMMusic
