#include "BalalaikaTuner.h"

#include "BalalaikaShop.h"

namespace QMMusic {

BalalaikaTuner::BalalaikaTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/Balalaika.jpg",
        { { "E4", "balalaika_%1_E4.mp3" }, { "E4", "balalaika_%1_E4.mp3" }, { "A4", "balalaika_%1_A4.mp3" } },
        BalalaikaShop());
}

} // namespace QMMusic
