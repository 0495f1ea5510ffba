#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The mandolin's tuner page.
class MandolinTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinTuner)

public:
    explicit MandolinTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
