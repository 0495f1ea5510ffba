#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The balalaika's tuner page.
class BalalaikaTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaTuner)

public:
    explicit BalalaikaTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
