#include "UkuleleChordsMainPage.h"

#include "UkuleleShop.h"

namespace QMMusic {

UkuleleChordsMainPage::UkuleleChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("ukulele"), parent)
{
    buildChords();
}

void UkuleleChordsMainPage::addShopMenu()
{
    setShop(new UkuleleShop(this));
    doShopConnections();
}

} // namespace QMMusic
