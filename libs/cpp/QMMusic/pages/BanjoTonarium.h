#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class BanjoBoard;

// The banjo page's body: the staff above the banjo's fingerboard.
class BanjoTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoTonarium)

public:
    explicit BanjoTonarium(QWidget* parent = nullptr);

    BanjoBoard* banjoBoard() const;
};

} // namespace QMMusic
