#include "GuitarShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 8, 9, 10, 11, 12 }, { 8, 9, 10, 12, 13 }, { 6, 7, 8, 9, 10 }, { 6, 7, 8, 9, 10 }, { 6, 7, 8, 9, 10 } },
    "Guitar",
    "Gitarre",
    "Guitare",
};
} // namespace

GuitarShop::GuitarShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
