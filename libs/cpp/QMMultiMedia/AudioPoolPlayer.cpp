#include "AudioPoolPlayer.h"

namespace QMMultiMedia {

AudioPoolPlayer* AudioPoolPlayer::m_uniqueInstance = nullptr;

AudioPoolPlayer::AudioPoolPlayer() = default;

AudioPoolPlayer* AudioPoolPlayer::instance()
{
    if (!m_uniqueInstance)
        m_uniqueInstance = new AudioPoolPlayer;
    return m_uniqueInstance;
}

void AudioPoolPlayer::play(const QString& path)
{
    Q_UNUSED(path)
}

void AudioPoolPlayer::setVolume(int volume)
{
    Q_UNUSED(volume)
}

} // namespace QMMultiMedia
