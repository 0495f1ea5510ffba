#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The double bass's tuner page.
class DoubleBassTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(DoubleBassTuner)

public:
    explicit DoubleBassTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
