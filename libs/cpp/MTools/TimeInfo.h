#pragma once

#include <QTime>

namespace MTools {

// Turns a span of milliseconds into a clock reading, as the trainer's clock shows it.
class TimeInfo
{
public:
    // Hours, minutes and whole seconds of the span, milliseconds 0. A negative span
    // (a run that passed midnight on the time-of-day clock) or one of 24 hours and
    // more gives an invalid QTime, which formats as an empty string.
    static QTime msecsToTime(int msecs);
};

} // namespace MTools
