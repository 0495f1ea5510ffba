#include "PianoChordsMainPage.h"

#include "PianoShop.h"

namespace QMMusic {

PianoChordsMainPage::PianoChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("piano"), parent)
{
    buildChords();
}

void PianoChordsMainPage::addShopMenu()
{
    setShop(new PianoShop(this));
    doShopConnections();
}

} // namespace QMMusic
