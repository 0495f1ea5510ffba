#include "BanjoShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 50, 51, 52, 53, 54 }, { 58, 59, 60, 61, 62 }, { 46, 47, 48, 49, 50 }, { 47, 48, 49, 50, 51 },
        { 47, 48, 49, 50, 51 } },
    "Banjo",
    "Banjo",
    "Banjo",
};
} // namespace

BanjoShop::BanjoShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
