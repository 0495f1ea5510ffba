#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class UkuleleBoard;

// The ukulele page's body: the staff above the ukulele's fingerboard.
class UkuleleTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleTonarium)

public:
    explicit UkuleleTonarium(QWidget* parent = nullptr);

    UkuleleBoard* ukuleleBoard() const;
};

} // namespace QMMusic
