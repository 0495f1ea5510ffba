#pragma once

#include <QtGlobal>

namespace QMMultiMedia {

// The arithmetic of sample playback, kept apart from any audio device so that
// it can be checked on its own: the volume store, balance gains, the mixing of
// decoded samples into the output format and time conversions.
class PlaybackArithmetic
{
public:
    // The volume as the player keeps it: percent / 100 in single precision,
    // widened to double. Above 100 counts as 100; no lower bound.
    static double storedVolume(int percent);
    // The percentage read back from a stored volume, truncated.
    static int volumePercent(double stored);

    // Gains of the left and right output channel for a balance from -1.0
    // (full left) to 1.0 (full right); values outside act as the nearest end.
    static float leftGain(float pan);
    static float rightGain(float pan);

    // Writes `frames` frames of 16-bit interleaved stereo into `target`,
    // taken from float samples with `channels` interleaved channels. Mono
    // goes to both sides; beyond two channels the first two are used.
    static void mixToStereo16(
        const float* source, int channels, qint64 frames, float volume, float pan, qint16* target);

    static qint64 secondsToFrames(double seconds, int sampleRate);
    static double framesToSeconds(qint64 frames, int sampleRate);
    // Milliseconds of a play position: seconds * 1000 narrowed to float,
    // rounded to the nearest integer.
    static qint64 positionMilliseconds(double seconds);
    // Milliseconds of a length: seconds * 1000, truncated.
    static qint64 durationMilliseconds(double seconds);
};

} // namespace QMMultiMedia
