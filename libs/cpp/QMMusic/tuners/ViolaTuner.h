#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The viola's tuner page.
class ViolaTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolaTuner)

public:
    explicit ViolaTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
