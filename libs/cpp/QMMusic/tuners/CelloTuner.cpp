#include "CelloTuner.h"

#include "CelloShop.h"

namespace QMMusic {

CelloTuner::CelloTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Cello.jpg",
        { { "C2", "cello_%1_C2.mp3" }, { "G2", "cello_%1_G2.mp3" }, { "D3", "cello_%1_D3.mp3" },
            { "A3", "cello_%1_A3.mp3" } },
        CelloShop());
}

} // namespace QMMusic
