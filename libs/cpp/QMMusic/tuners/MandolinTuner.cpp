#include "MandolinTuner.h"

#include "MandolinShop.h"

namespace QMMusic {

MandolinTuner::MandolinTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Mandolin.jpg",
        { { "G3", "mandolin_%1_G3.mp3" }, { "D4", "mandolin_%1_D4.mp3" }, { "A4", "mandolin_%1_A4.mp3" },
            { "E5", "mandolin_%1_E5.mp3" } },
        MandolinShop());
}

} // namespace QMMusic
