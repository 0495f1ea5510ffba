#include "PianoTonariumMainPage.h"

#include "PianoShop.h"
#include "PianoTonarium.h"

namespace QMMusic {

PianoTonariumMainPage::PianoTonariumMainPage(QWidget* parent)
    : InstrumentMainPage(QStringLiteral("PianoTonariumMainPage"), parent)
    , m_pianoTonarium(new PianoTonarium)
{
    setFinder(m_pianoTonarium);
}

PianoTonarium* PianoTonariumMainPage::pianoTonarium() const
{
    return m_pianoTonarium;
}

void PianoTonariumMainPage::addShopMenu()
{
    setShop(new PianoShop(this));
    doShopConnections();
}

} // namespace QMMusic
