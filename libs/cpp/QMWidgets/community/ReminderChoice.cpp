#include "ReminderChoice.h"

#include <limits>

namespace QMWidgets {

int ReminderChoice::kindFor(int mask, quint32 random, bool storeBuild)
{
    switch (mask) {
    case RateInStore:
        return storeBuild ? Rate : Tell;
    case Rate | Tell | Join: {
        const int kinds[] = { Rate, Tell, Join };
        return kinds[random % 3];
    }
    case Rate | Tell:
        return (random & 1) ? Tell : Rate;
    case Rate | Join:
        return (random & 1) ? Join : Rate;
    case Tell | Join:
        return (random & 1) ? Tell : Join;
    default:
        return mask;
    }
}

bool ReminderChoice::isDue(int launchCount, int divisor)
{
    // A divisor of 0 has no meaning; no reminder rather than a fault.
    if (divisor <= 0)
        return false;
    return launchCount % divisor == 0;
}

int ReminderChoice::nextCount(int launchCount)
{
    const qint64 next = qint64(launchCount) + 1;
    if (next < 0 || next > std::numeric_limits<int>::max())
        return 1;
    return int(next);
}

} // namespace QMWidgets
