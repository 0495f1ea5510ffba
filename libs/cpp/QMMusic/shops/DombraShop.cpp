#include "DombraShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 41, 42, 43, 44, 45 }, { 41, 42, 43, 44, 45 }, { 41, 42, 43, 44, 45 }, { 41, 42, 43, 44, 45 },
        { 41, 42, 43, 44, 45 } },
    "Dombra",
    "Dombra",
    "Dombra",
};
} // namespace

DombraShop::DombraShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
