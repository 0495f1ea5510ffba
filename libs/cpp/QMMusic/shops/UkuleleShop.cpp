#include "UkuleleShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 35, 36, 37, 38, 39 }, { 36, 38, 43, 40, 44 }, { 31, 32, 33, 34, 35 }, { 31, 32, 33, 34, 36 },
        { 32, 33, 34, 35, 36 } },
    "Ukulele",
    "Ukulele",
    "Ukulélé",
};
} // namespace

UkuleleShop::UkuleleShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
