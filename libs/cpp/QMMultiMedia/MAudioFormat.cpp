#include "MAudioFormat.h"

namespace QMMultiMedia {

int MAudioFormat::codecIDFromString(const QString& codec)
{
    if (codec == QLatin1String("AIFF"))
        return AIFF;
    if (codec == QLatin1String("MPEG4ACC"))
        return MPEG4ACC;
    if (codec == QLatin1String("CAF"))
        return CAF;
    return WAV;
}

int MAudioFormat::encoderQuality(int quality)
{
    switch (quality) {
    case 0:
        return 0;
    case 1:
        return 32;
    case 2:
        return 64;
    case 4:
        return 127;
    default:
        return 96;
    }
}

} // namespace QMMultiMedia
