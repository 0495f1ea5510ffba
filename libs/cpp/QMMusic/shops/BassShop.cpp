#include "BassShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 19, 20, 21, 23, 24 }, { 20, 21, 22, 23, 24 }, { 16, 17, 18, 19, 20 }, { 16, 17, 18, 19, 20 },
        { 17, 18, 19, 20, 21 } },
    "Bass_guitar",
    "E-Bass",
    "Guitare_basse",
};
} // namespace

BassShop::BassShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
