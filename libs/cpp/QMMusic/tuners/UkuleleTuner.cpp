#include "UkuleleTuner.h"

#include "UkuleleShop.h"

namespace QMMusic {

UkuleleTuner::UkuleleTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Ukulele.jpg",
        { { "G4", "ukulele_%1_G4.mp3" }, { "C4", "ukulele_%1_C4.mp3" }, { "E4", "ukulele_%1_E4.mp3" },
            { "A4", "ukulele_%1_A4.mp3" } },
        UkuleleShop());
}

} // namespace QMMusic
