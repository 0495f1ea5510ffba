#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The ukulele's tuner page.
class UkuleleTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleTuner)

public:
    explicit UkuleleTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
