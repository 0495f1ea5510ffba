#include "DoubleBassTuner.h"

#include "DoubleBassShop.h"

namespace QMMusic {

DoubleBassTuner::DoubleBassTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/DoubleBass.jpg",
        { { "E1", "doublebass_%1_E1.mp3" }, { "A1", "doublebass_%1_A1.mp3" }, { "D2", "doublebass_%1_D2.mp3" },
            { "G2", "doublebass_%1_G2.mp3" } },
        DoubleBassShop());
}

} // namespace QMMusic
