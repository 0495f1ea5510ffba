#include "BassChordsMainPage.h"

#include "BassShop.h"

namespace QMMusic {

BassChordsMainPage::BassChordsMainPage(QWidget* parent)
    : ChordsMainPage(QStringLiteral("bass"), parent)
{
    buildChords();
}

void BassChordsMainPage::addShopMenu()
{
    setShop(new BassShop(this));
    doShopConnections();
}

} // namespace QMMusic
