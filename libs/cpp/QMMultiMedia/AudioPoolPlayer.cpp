#include "AudioPoolPlayer.h"

#include "AudioPlayersPool.h"

namespace QMMultiMedia {

AudioPoolPlayer* AudioPoolPlayer::m_uniqueInstance = nullptr;

AudioPoolPlayer::AudioPoolPlayer()
    : m_pool(new AudioPlayersPool(-1, this))
{
}

AudioPoolPlayer* AudioPoolPlayer::instance()
{
    if (!m_uniqueInstance)
        m_uniqueInstance = new AudioPoolPlayer;
    return m_uniqueInstance;
}

void AudioPoolPlayer::play(const QString& path)
{
    m_pool->play(path);
}

void AudioPoolPlayer::setVolume(int volume)
{
    m_pool->setVolume(volume);
}

AudioPlayersPool* AudioPoolPlayer::pool() const
{
    return m_pool;
}

} // namespace QMMultiMedia
