#include "TuneButton.h"

namespace QMMusic {

TuneButton::TuneButton(QWidget* parent)
    : QPushButton(parent)
{
    connect(this, &QPushButton::pressed, this, &TuneButton::play);
}

void TuneButton::sendPlay()
{
    emit play();
}

} // namespace QMMusic
