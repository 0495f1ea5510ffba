#include "DombraTuner.h"

#include "DombraShop.h"

namespace QMMusic {

DombraTuner::DombraTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    // The two buttons play each other's recordings, as the sample set has
    // always paired them.
    fill(":/Dombra.jpg", { { "D3", "dombra_%1_G3.mp3" }, { "G3", "dombra_%1_D3.mp3" } }, DombraShop());
}

} // namespace QMMusic
