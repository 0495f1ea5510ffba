#include "MandolinShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 13, 14, 15, 17, 18 }, { 14, 15, 17, 18, 19 }, { 11, 12, 13, 14, 15 }, { 11, 12, 13, 14, 15 },
        { 11, 13, 14, 15, 16 } },
    "Mandolin",
    "Mandoline",
    "Mandoline",
};
} // namespace

MandolinShop::MandolinShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
