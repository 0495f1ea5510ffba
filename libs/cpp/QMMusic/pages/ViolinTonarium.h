#pragma once

#include "InstrumentFinder.h"

namespace QMMusic {

class ViolinBoard;

// The violin page's body: the staff above the violin's fingerboard.
class ViolinTonarium : public InstrumentFinder
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolinTonarium)

public:
    explicit ViolinTonarium(QWidget* parent = nullptr);

    ViolinBoard* violinBoard() const;
};

} // namespace QMMusic
