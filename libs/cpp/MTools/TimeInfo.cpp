#include "TimeInfo.h"

namespace MTools {

QTime TimeInfo::msecsToTime(int msecs)
{
    const int hours = msecs / 3600000;
    const int minutes = (msecs - hours * 3600000) / 60000;
    const int seconds = (msecs % 60000) / 1000;
    return QTime(hours, minutes, seconds, 0);
}

} // namespace MTools
