#pragma once

#include <QString>

namespace QMMultiMedia {

// The format a recording is asked for.
struct MAudioFormat
{
    enum CodecID
    {
        WAV = 0,
        AIFF = 1,
        MPEG4ACC = 2,
        CAF = 3
    };

    QString codec = QStringLiteral("WAV"); // "WAV", "AIFF", "MPEG4ACC" or "CAF"
    int sampleRate = 44100;
    int channels = 2;
    int sampleSize = 16; // kept; recordings are always 16-bit
    int bitRate = 128000; // bits per second, for "MPEG4ACC"
    int quality = 3; // 0 to 4

    // Anything unknown, "WAV" included, is WAV.
    static int codecIDFromString(const QString& codec);
    // The encoder quality of the `quality` field, 0 to 127.
    static int encoderQuality(int quality);
};

} // namespace QMMultiMedia
