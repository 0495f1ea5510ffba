#include "MandolinChordsMainPage.h"

#include "MandolinShop.h"

namespace QMMusic {

MandolinChordsMainPage::MandolinChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("mandolin"), parent)
{
    buildChords();
}

void MandolinChordsMainPage::addShopMenu()
{
    setShop(new MandolinShop(this));
    doShopConnections();
}

} // namespace QMMusic
