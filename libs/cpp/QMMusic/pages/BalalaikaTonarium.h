#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class BalalaikaBoard;

// The balalaika page's body: the staff above the balalaika's fingerboard.
class BalalaikaTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaTonarium)

public:
    explicit BalalaikaTonarium(QWidget* parent = nullptr);

    BalalaikaBoard* balalaikaBoard() const;
};

} // namespace QMMusic
