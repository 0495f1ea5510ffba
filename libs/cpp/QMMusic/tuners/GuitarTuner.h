#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The guitar's tuner page.
class GuitarTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarTuner)

public:
    explicit GuitarTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
