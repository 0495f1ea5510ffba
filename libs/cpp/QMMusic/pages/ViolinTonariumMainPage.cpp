#include "ViolinTonariumMainPage.h"

#include "ViolinShop.h"
#include "ViolinTonarium.h"

namespace QMMusic {

ViolinTonariumMainPage::ViolinTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("ViolinTonariumMainPage"), parent)
    , m_violinTonarium(new ViolinTonarium)
{
    setFinder(m_violinTonarium);
}

ViolinTonarium* ViolinTonariumMainPage::violinTonarium() const
{
    return m_violinTonarium;
}

void ViolinTonariumMainPage::addShopMenu()
{
    setShop(new ViolinShop(this));
    doShopConnections();
}

} // namespace QMMusic
