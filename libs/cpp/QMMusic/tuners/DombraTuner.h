#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The dombra's tuner page.
class DombraTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(DombraTuner)

public:
    explicit DombraTuner(QWidget* parent = nullptr);
};

} // namespace QMMusic
