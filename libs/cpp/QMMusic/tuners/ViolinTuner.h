#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The violin's tuner page.
class ViolinTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolinTuner)

public:
    explicit ViolinTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
