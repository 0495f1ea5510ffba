#include "PianoShop.h"

namespace QMMusic {

namespace {
// Store fronts: United States, Germany (with Austria and Switzerland),
// Canada, France, United Kingdom.
const MusicShopBase::Catalogue kCatalogue = {
    { { 60, 61, 62, 63, 64 }, { 63, 64, 65, 66, 67 }, { 56, 57, 58, 59, 60 }, { 57, 58, 59, 60, 61 },
        { 57, 58, 59, 60, 61 } },
    "Piano",
    "Klavier",
    "Piano",
};
} // namespace

PianoShop::PianoShop(QObject* parent, QLocale::Country country)
    : MusicShopBase(parent)
{
    fillLinks(kCatalogue, country);
}

} // namespace QMMusic
