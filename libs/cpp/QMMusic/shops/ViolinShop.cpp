#include "ViolinShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 1, 3, 4, 5, 7 }, { 1, 2, 4, 6, 7 }, { 1, 2, 3, 4, 5 }, { 1, 2, 3, 4, 5 }, { 1, 2, 3, 4, 5 } },
    "Violin",
    "Violine",
    "Violon",
};
} // namespace

ViolinShop::ViolinShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
