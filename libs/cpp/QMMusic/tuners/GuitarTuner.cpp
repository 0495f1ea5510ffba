#include "GuitarTuner.h"

#include "GuitarShop.h"

namespace QMMusic {

GuitarTuner::GuitarTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Guitar.jpg",
        { { "E2", "guitar_%1_E2.mp3" }, { "A2", "guitar_%1_A2.mp3" }, { "D3", "guitar_%1_D3.mp3" },
            { "G3", "guitar_%1_G3.mp3" }, { "B3", "guitar_%1_B3.mp3" }, { "E4", "guitar_%1_E4.mp3" } },
        GuitarShop());
}

} // namespace QMMusic
