#include "PlaybackArithmetic.h"

#include <cmath>

namespace QMMultiMedia {

double PlaybackArithmetic::storedVolume(int percent)
{
    if (percent > 100)
        percent = 100;
    const float single = static_cast<float>(percent) / 100.0f;
    return static_cast<double>(single);
}

int PlaybackArithmetic::volumePercent(double stored)
{
    return static_cast<int>(std::trunc(stored * 100.0));
}

float PlaybackArithmetic::leftGain(float pan)
{
    return pan <= 0.0f ? 1.0f : qMax(0.0f, 1.0f - pan);
}

float PlaybackArithmetic::rightGain(float pan)
{
    return pan >= 0.0f ? 1.0f : qMax(0.0f, 1.0f + pan);
}

static qint16 toSample16(float value)
{
    const float scaled = value * 32767.0f;
    if (scaled >= 32767.0f)
        return 32767;
    if (scaled <= -32768.0f)
        return -32768;
    return static_cast<qint16>(std::lrint(scaled));
}

void PlaybackArithmetic::mixToStereo16(
    const float* source, int channels, qint64 frames, float volume, float pan, qint16* target)
{
    if (channels < 1)
        return;
    const float left = volume * leftGain(pan);
    const float right = volume * rightGain(pan);
    const int rightChannel = channels > 1 ? 1 : 0;
    for (qint64 frame = 0; frame < frames; ++frame) {
        const float* in = source + frame * channels;
        target[2 * frame] = toSample16(in[0] * left);
        target[2 * frame + 1] = toSample16(in[rightChannel] * right);
    }
}

qint64 PlaybackArithmetic::secondsToFrames(double seconds, int sampleRate)
{
    if (seconds <= 0.0 || sampleRate <= 0)
        return 0;
    return static_cast<qint64>(std::llround(seconds * sampleRate));
}

double PlaybackArithmetic::framesToSeconds(qint64 frames, int sampleRate)
{
    if (sampleRate <= 0)
        return 0.0;
    return static_cast<double>(frames) / sampleRate;
}

qint64 PlaybackArithmetic::positionMilliseconds(double seconds)
{
    const float milliseconds = static_cast<float>(seconds * 1000.0);
    return static_cast<qint64>(std::lround(milliseconds));
}

qint64 PlaybackArithmetic::durationMilliseconds(double seconds)
{
    return static_cast<qint64>(std::trunc(seconds * 1000.0));
}

} // namespace QMMultiMedia
