#include "BalalaikaShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 30, 31, 32, 33, 34 }, { 30, 31, 33, 32, 34 }, { 26, 27, 28, 29, 30 }, { 26, 27, 28, 29, 30 },
        { 27, 28, 29, 30, 31 } },
    "Balalaika",
    "Balalaika",
    "Balalaïka",
};
} // namespace

BalalaikaShop::BalalaikaShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
