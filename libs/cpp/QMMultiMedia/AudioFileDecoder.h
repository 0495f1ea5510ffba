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

// Decodes an mp3 (libmpg123) or wave file (libsndfile) completely into
// memory, at its exact gapless length.
class AudioFileDecoder
{
public:
    // Fills `sound` and returns true; a missing or broken file, or one
    // without any samples, returns false and leaves `sound` empty.
    static bool decode(const QString& path, DecodedSound* sound);

private:
    static bool decodeMp3(const QString& path, DecodedSound* sound);
    static bool decodeWithSndfile(const QString& path, DecodedSound* sound);
};

} // namespace QMMultiMedia
