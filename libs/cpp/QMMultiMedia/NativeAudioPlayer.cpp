#include "NativeAudioPlayer.h"

#include "NativeAudioPlayerInternal.h"

namespace QMMultiMedia {

NativeAudioPlayer::NativeAudioPlayer(QObject* parent)
    : QObject(parent)
    , m_internal(new NativeAudioPlayerInternal(this))
{
    connect(m_internal, &NativeAudioPlayerInternal::finished, this, &NativeAudioPlayer::finished);
}

void NativeAudioPlayer::setMedia(const QString& path)
{
    m_fileName = path;
    m_internal->setMedia(path);
}

QString NativeAudioPlayer::fileName() const
{
    return m_fileName;
}

void NativeAudioPlayer::play()
{
    m_internal->play();
}

void NativeAudioPlayer::play(const QString& path)
{
    m_internal->play(path);
}

void NativeAudioPlayer::stop()
{
    m_internal->stop();
}

void NativeAudioPlayer::pause()
{
    m_internal->pause();
}

bool NativeAudioPlayer::isPlaying() const
{
    return m_internal->isPlaying();
}

bool NativeAudioPlayer::isStopped() const
{
    return m_internal->isStopped();
}

bool NativeAudioPlayer::isPaused() const
{
    return m_internal->isPaused();
}

qint64 NativeAudioPlayer::position() const
{
    return m_internal->position();
}

qint64 NativeAudioPlayer::duration() const
{
    return m_internal->duration();
}

void NativeAudioPlayer::setPosition(qint64 milliseconds)
{
    m_internal->setPosition(milliseconds);
}

void NativeAudioPlayer::setVolume(double percent)
{
    m_internal->setVolume(static_cast<int>(percent));
}

double NativeAudioPlayer::volume() const
{
    return m_internal->volume();
}

bool NativeAudioPlayer::isMuted() const
{
    return m_internal->volume() < 1;
}

void NativeAudioPlayer::setMuted(bool muted)
{
    if (muted) {
        m_savedVolume = m_internal->volume();
        m_internal->setVolume(0);
    } else {
        m_internal->setVolume(static_cast<int>(m_savedVolume));
    }
}

void NativeAudioPlayer::setWholeFiles(bool on)
{
    m_internal->setWholeFiles(on);
}

void NativeAudioPlayer::setBalance(float balance)
{
    m_internal->setBalance(balance);
}

} // namespace QMMultiMedia
