#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The cello's tuner page.
class CelloTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(CelloTuner)

public:
    explicit CelloTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
