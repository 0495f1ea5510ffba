#include "BanjoChordsMainPage.h"

#include "BanjoShop.h"

namespace QMMusic {

BanjoChordsMainPage::BanjoChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("banjo"), parent)
{
    buildChords();
}

void BanjoChordsMainPage::addShopMenu()
{
    setShop(new BanjoShop(this));
    doShopConnections();
}

} // namespace QMMusic
