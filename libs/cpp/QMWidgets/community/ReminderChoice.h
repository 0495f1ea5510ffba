#pragma once

#include <QtGlobal>

namespace QMWidgets {

// The rules of the reminders, apart from any window: which kind a mask
// permits for a random number, at which launches one comes up, and how the
// launch counter goes on.
class ReminderChoice
{
public:
    enum Kind
    {
        Rate = 1,
        Tell = 2,
        Join = 4,
        // Rate in a store build, tell otherwise.
        RateInStore = 8
    };

    // The kind to show for a mask of permitted kinds; `random` decides
    // between them. A mask that permits no choice is taken as it stands.
    static int kindFor(int mask, quint32 random, bool storeBuild);
    // A reminder comes up at every divisor-th launch.
    static bool isDue(int launchCount, int divisor);
    // The count after this launch; a wrap-around starts over at 1.
    static int nextCount(int launchCount);
};

} // namespace QMWidgets
