#include "ViolaShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 11, 12, 13, 14, 15 }, { 11, 12, 13, 14, 15 }, { 11, 12, 13, 14, 15 }, { 11, 12, 13, 14, 15 },
        { 11, 12, 13, 14, 15 } },
    "Viola",
    "Bratsche",
    "Alto",
};
} // namespace

ViolaShop::ViolaShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
