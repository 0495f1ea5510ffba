#include "MandolinTonariumMainPage.h"

#include "MandolinShop.h"
#include "MandolinTonarium.h"

namespace QMMusic {

MandolinTonariumMainPage::MandolinTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("MandolinTonariumMainPage"), parent)
    , m_mandolinTonarium(new MandolinTonarium)
{
    setFinder(m_mandolinTonarium);
}

MandolinTonarium* MandolinTonariumMainPage::mandolinTonarium() const
{
    return m_mandolinTonarium;
}

void MandolinTonariumMainPage::addShopMenu()
{
    setShop(new MandolinShop(this));
    doShopConnections();
}

} // namespace QMMusic
