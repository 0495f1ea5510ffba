#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class MandolinBoard;

// The mandolin page's body: the staff above the mandolin's fingerboard.
class MandolinTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinTonarium)

public:
    explicit MandolinTonarium(QWidget* parent = nullptr);

    MandolinBoard* mandolinBoard() const;
};

} // namespace QMMusic
