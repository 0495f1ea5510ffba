#include "GuitarChordsMainPage.h"

#include "GuitarShop.h"

namespace QMMusic {

GuitarChordsMainPage::GuitarChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("guitar"), parent)
{
    buildChords();
}

void GuitarChordsMainPage::addShopMenu()
{
    setShop(new GuitarShop(this));
    doShopConnections();
}

} // namespace QMMusic
