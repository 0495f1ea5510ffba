#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class BassBoard;

// The bass page's body: the staff above the bass's fingerboard.
class BassTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(BassTonarium)

public:
    explicit BassTonarium(QWidget* parent = nullptr);

    BassBoard* bassBoard() const;
};

} // namespace QMMusic
