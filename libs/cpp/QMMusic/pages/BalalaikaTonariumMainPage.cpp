#include "BalalaikaTonariumMainPage.h"

#include "BalalaikaShop.h"
#include "BalalaikaTonarium.h"

namespace QMMusic {

BalalaikaTonariumMainPage::BalalaikaTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("BalalaikaTonariumMainPage"), parent)
    , m_balalaikaTonarium(new BalalaikaTonarium)
{
    setFinder(m_balalaikaTonarium);
}

BalalaikaTonarium* BalalaikaTonariumMainPage::balalaikaTonarium() const
{
    return m_balalaikaTonarium;
}

void BalalaikaTonariumMainPage::addShopMenu()
{
    setShop(new BalalaikaShop(this));
    doShopConnections();
}

} // namespace QMMusic
