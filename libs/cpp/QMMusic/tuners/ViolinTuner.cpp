#include "ViolinTuner.h"

#include "ViolinShop.h"

namespace QMMusic {

ViolinTuner::ViolinTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Violin.jpg",
        { { "G3", "violine_%1_G3.mp3" }, { "D4", "violine_%1_D4.mp3" }, { "A4", "violine_%1_A4.mp3" },
            { "E5", "violine_%1_E5.mp3" } },
        ViolinShop());
}

} // namespace QMMusic
