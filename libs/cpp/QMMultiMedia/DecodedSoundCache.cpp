#include "DecodedSoundCache.h"

#include <QFileInfo>

namespace QMMultiMedia {

DecodedSoundCache::DecodedSoundCache(int maximumSounds, qint64 maximumSamples)
    : m_maximumSounds(qMax(0, maximumSounds))
    , m_maximumSamples(qMax(qint64(0), maximumSamples))
{
}

DecodedSoundCache& DecodedSoundCache::shared()
{
    // 96 sounds hold the 88 keys of a piano; 16 M samples are 64 MB.
    static DecodedSoundCache cache(96, 16 * 1024 * 1024);
    return cache;
}

bool DecodedSoundCache::decode(const QString& path, DecodedSound* sound)
{
    const QFileInfo info(path);
    const QDateTime modified = info.lastModified();
    const qint64 bytes = info.size();
    for (int i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries.at(i);
        if (entry.path != path)
            continue;
        if (entry.modified == modified && entry.bytes == bytes && info.isFile()) {
            *sound = entry.sound;
            m_entries.move(i, 0);
            return true;
        }
        m_samples -= entry.sound.samples.size();
        m_entries.removeAt(i);
        break;
    }
    if (!AudioFileDecoder::decode(path, sound))
        return false;
    m_entries.prepend({ path, modified, bytes, *sound });
    m_samples += sound->samples.size();
    trim();
    return true;
}

int DecodedSoundCache::count() const
{
    return m_entries.size();
}

qint64 DecodedSoundCache::samples() const
{
    return m_samples;
}

void DecodedSoundCache::trim()
{
    while (!m_entries.isEmpty() && (m_entries.size() > m_maximumSounds || m_samples > m_maximumSamples)) {
        m_samples -= m_entries.last().sound.samples.size();
        m_entries.removeLast();
    }
}

} // namespace QMMultiMedia
