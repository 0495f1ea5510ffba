#include "GuitarTonariumMainPage.h"

#include "GuitarShop.h"
#include "GuitarTonarium.h"

namespace QMMusic {

GuitarTonariumMainPage::GuitarTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("GuitarTonariumMainPage"), parent)
    , m_guitarTonarium(new GuitarTonarium)
{
    setFinder(m_guitarTonarium);
}

GuitarTonarium* GuitarTonariumMainPage::guitarTonarium() const
{
    return m_guitarTonarium;
}

void GuitarTonariumMainPage::addShopMenu()
{
    setShop(new GuitarShop(this));
    doShopConnections();
}

} // namespace QMMusic
