#pragma once

#include "TunerBasePage.h"

namespace QMMusic {

// The bass guitar's tuner page: four strings at first, and a low B on
// demand from the "Modes" menu. The choice is not stored.
class BassGuitarTuner : public TunerBasePage
{
    Q_OBJECT
    Q_DISABLE_COPY(BassGuitarTuner)

public:
    explicit BassGuitarTuner(QWidget* parent = nullptr);

public slots:
    void slot5Strings();
    void slot4Strings();
};

} // namespace QMMusic
