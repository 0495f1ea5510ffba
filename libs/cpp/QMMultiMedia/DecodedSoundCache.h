#pragma once

#include "AudioFileDecoder.h"

#include <QDateTime>
#include <QList>

namespace QMMultiMedia {

// Keeps the last decoded samples, so that a press on a note that has sounded
// before costs no decoding on the GUI thread. An entry counts only while its
// file has the same size and modification time: a changed file is decoded
// anew at its next play. Files that fail to decode are never kept.
class DecodedSoundCache
{
public:
    DecodedSoundCache(int maximumSounds, qint64 maximumSamples);

    // The cache of the process's players: every sample of an instrument fits.
    static DecodedSoundCache& shared();

    // As AudioFileDecoder::decode; the samples are shared, not copied.
    bool decode(const QString& path, DecodedSound* sound);

    int count() const;
    qint64 samples() const;

private:
    struct Entry
    {
        QString path;
        QDateTime modified;
        qint64 bytes = 0;
        DecodedSound sound;
    };

    void trim();

    QList<Entry> m_entries; // most recently used first
    int m_maximumSounds = 0;
    qint64 m_maximumSamples = 0;
    qint64 m_samples = 0;
};

} // namespace QMMultiMedia
