#include "BanjoTuner.h"

#include "BanjoShop.h"

namespace QMMusic {

BanjoTuner::BanjoTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    // The second button reads "D3" and plays the C3 recording, as the
    // sample set has always paired them.
    fill(":/Banjo.jpg",
        { { "G4", "banjo_%1_G4.mp3" }, { "D3", "banjo_%1_C3.mp3" }, { "G3", "banjo_%1_G3.mp3" },
            { "B3", "banjo_%1_B3.mp3" }, { "D4", "banjo_%1_D4.mp3" } },
        BanjoShop());
}

} // namespace QMMusic
