#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The banjo's tuner page.
class BanjoTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoTuner)

public:
    explicit BanjoTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
