#include "DoubleBassShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 31, 32, 33, 34, 35 }, { 31, 32, 33, 34, 35 }, { 31, 32, 33, 34, 35 }, { 31, 32, 33, 34, 35 },
        { 31, 32, 33, 34, 35 } },
    "Double_bass",
    "Kontrabass",
    "Contrebasse",
};
} // namespace

DoubleBassShop::DoubleBassShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
