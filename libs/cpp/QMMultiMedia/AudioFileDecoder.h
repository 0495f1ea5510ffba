#pragma once

#include <QString>
#include <QVector>

namespace QMMultiMedia {

// A whole sound file decoded into memory: interleaved float samples.
struct DecodedSound
{
    int sampleRate = 0;
    int channels = 0;
    QVector<float> samples;

    qint64 frames() const { return channels > 0 ? samples.size() / channels : 0; }
};

// Decodes an mp3 (libmpg123) or any file that libsndfile reads (wave, AIFF,
// CAF, FLAC, Ogg Vorbis, Opus) completely into memory, at its exact gapless
// length.
//
// Samples are short: anything longer than MaximumSeconds, larger than
// MaximumFileBytes or with more than MaximumChannels is refused before it is
// allocated, whatever its header claims, so that a broken file costs nothing.
// Whole music files are decoded under the longer MaximumWholeFileSeconds.
class AudioFileDecoder
{
public:
    static constexpr double MaximumSeconds = 60.0;
    static constexpr double MaximumWholeFileSeconds = 15 * 60.0;
    static constexpr qint64 MaximumFileBytes = 128 * 1024 * 1024;
    static constexpr int MaximumChannels = 8;
    static constexpr int MaximumSampleRate = 384000;

    // Fills `sound` and returns true; a missing, broken or oversized file,
    // or one without any samples, returns false and leaves `sound` empty.
    static bool decode(const QString& path, DecodedSound* sound);
    // As above, for sounds of up to `maximumSeconds`.
    static bool decode(const QString& path, DecodedSound* sound, double maximumSeconds);

private:
    static bool decodeMp3(const QString& path, DecodedSound* sound, double maximumSeconds);
    static bool decodeWithSndfile(const QString& path, DecodedSound* sound, double maximumSeconds);
};

} // namespace QMMultiMedia
