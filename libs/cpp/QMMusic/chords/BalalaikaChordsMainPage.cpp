#include "BalalaikaChordsMainPage.h"

#include "BalalaikaShop.h"

namespace QMMusic {

BalalaikaChordsMainPage::BalalaikaChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("balalaika"), parent)
{
    buildChords();
}

void BalalaikaChordsMainPage::addShopMenu()
{
    setShop(new BalalaikaShop(this));
    doShopConnections();
}

} // namespace QMMusic
