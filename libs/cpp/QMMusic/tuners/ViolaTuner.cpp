#include "ViolaTuner.h"

#include "ViolaShop.h"

namespace QMMusic {

ViolaTuner::ViolaTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    // The viola sounds the violin's recordings of its four notes.
    fill(":/Viola.jpg",
        { { "C3", "violine_%1_C3.mp3" }, { "G3", "violine_%1_G3.mp3" }, { "D4", "violine_%1_D4.mp3" },
            { "A4", "violine_%1_A4.mp3" } },
        ViolaShop());
}

} // namespace QMMusic
