#include "NativeAudioPlayerInternal.h"

#include "MemoryAudioPlayer.h"
#include "PlaybackArithmetic.h"

#include <QDebug>

#include <memory>

namespace QMMultiMedia {

namespace {
const int PollIntervalMs = 500;
}

NativeAudioPlayerInternal::NativeAudioPlayerInternal(QObject* parent)
    : QObject(parent)
{
    m_positionTimer.setInterval(PollIntervalMs);
    connect(&m_positionTimer, &QTimer::timeout, this, &NativeAudioPlayerInternal::slotPositionChanged);
}

NativeAudioPlayerInternal::~NativeAudioPlayerInternal()
{
    m_positionTimer.stop();
    releasePlayer();
}

void NativeAudioPlayerInternal::setMedia(const QString& path)
{
    if (m_player) {
        m_player->stop();
        releasePlayer();
    }
    auto player = std::make_unique<MemoryAudioPlayer>();
    if (!(m_wholeFiles ? player->loadWholeFile(path) : player->load(path))) {
        // Nothing is kept of a file that cannot be played: no buffer, no
        // stream, no timer; only the log says why it stays silent.
        qWarning().noquote() << "Cannot play" << path;
        return;
    }
    // The balance stays with the old player; the new one starts centred.
    m_player = player.release();
    connect(m_player, &MemoryAudioPlayer::gaveWay, this, &NativeAudioPlayerInternal::slotPlayerGaveWay);
}

void NativeAudioPlayerInternal::play()
{
    if (!m_player)
        return;
    m_player->setVolume(static_cast<float>(m_volume));
    m_player->play();
    m_positionTimer.start();
    m_state = Playing;
}

void NativeAudioPlayerInternal::play(const QString& path)
{
    setMedia(path);
    play();
}

void NativeAudioPlayerInternal::stop()
{
    if (!m_player)
        return;
    m_positionTimer.stop();
    m_player->stop();
    m_player->setCurrentTime(0.0);
    m_state = Stopped;
}

void NativeAudioPlayerInternal::pause()
{
    if (!m_player)
        return;
    m_player->pause();
    m_state = Paused;
}

bool NativeAudioPlayerInternal::isPlaying() const
{
    return m_player && m_player->isPlaying();
}

bool NativeAudioPlayerInternal::isStopped() const
{
    return m_state == Stopped;
}

bool NativeAudioPlayerInternal::isPaused() const
{
    return m_state == Paused;
}

qint64 NativeAudioPlayerInternal::position() const
{
    if (!m_player)
        return 0;
    return PlaybackArithmetic::positionMilliseconds(m_player->currentTime());
}

qint64 NativeAudioPlayerInternal::duration() const
{
    if (!m_player)
        return 0;
    return PlaybackArithmetic::durationMilliseconds(m_player->duration());
}

void NativeAudioPlayerInternal::setPosition(qint64 milliseconds)
{
    if (m_player)
        m_player->setCurrentTime(milliseconds / 1000.0);
}

void NativeAudioPlayerInternal::setVolume(int percent)
{
    m_volume = PlaybackArithmetic::storedVolume(percent);
    if (m_player)
        m_player->setVolume(static_cast<float>(m_volume));
}

int NativeAudioPlayerInternal::volume() const
{
    return PlaybackArithmetic::volumePercent(m_volume);
}

void NativeAudioPlayerInternal::setBalance(float balance)
{
    m_balance = balance;
    if (m_player)
        m_player->setPan(balance);
}

void NativeAudioPlayerInternal::setWholeFiles(bool on)
{
    m_wholeFiles = on;
}

void NativeAudioPlayerInternal::slotPositionChanged()
{
    if (!m_player)
        return;
    if (m_player->isPlaying()) {
        emit positionChanged(position());
        return;
    }
    if (m_state == Stopped || m_state == Paused)
        return;
    // The state says playing and the platform does not: the sound has ended.
    m_positionTimer.stop();
    releasePlayer();
    emit finished();
}

// The player ended early to make room for a newer sound: that is its end,
// whatever its state, as if the sample had run out.
void NativeAudioPlayerInternal::slotPlayerGaveWay()
{
    m_positionTimer.stop();
    // The player is inside its own signal: delete it once that has returned.
    m_player->deleteLater();
    m_player = nullptr;
    emit finished();
}

void NativeAudioPlayerInternal::releasePlayer()
{
    delete m_player;
    m_player = nullptr;
}

} // namespace QMMultiMedia
