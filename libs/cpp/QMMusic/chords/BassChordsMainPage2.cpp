#include "BassChordsMainPage2.h"

#include "BassShop.h"

namespace QMMusic {

BassChordsMainPage2::BassChordsMainPage2(QWidget* parent)
    : ChordsMainPage(QStringLiteral("bass2"), parent)
{
    buildChords();
}

void BassChordsMainPage2::addShopMenu()
{
    setShop(new BassShop(this));
    doShopConnections();
}

} // namespace QMMusic
