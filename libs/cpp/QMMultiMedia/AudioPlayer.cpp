#include "AudioPlayer.h"

#include "NativeAudioPlayer.h"

#include <App.h>

#include <QCoreApplication>
#include <QTimer>

namespace QMMultiMedia {

namespace {

QVariant storedValue(const QString& key, const QVariant& defaultValue)
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app ? app->settingsValue(key, defaultValue) : defaultValue;
}

void storeValue(const QString& key, const QVariant& value)
{
    if (QMWidgets::App* app = QMWidgets::App::theApp())
        app->setSettingsValue(key, value);
}

} // namespace

AudioPlayer* AudioPlayer::_uniqueInstance = nullptr;

AudioPlayer* AudioPlayer::instance()
{
    if (!_uniqueInstance) {
        _uniqueInstance = new AudioPlayer();
        // The volume comes second and so decides: it also ends the muting,
        // unless it truncates to 0 percent.
        _uniqueInstance->m_player->setMuted(storedValue(QStringLiteral("/SoundMute"), false).toBool());
        _uniqueInstance->m_player->setVolume(storedValue(QStringLiteral("/SoundVolume"), 0.5).toDouble());
    }
    return _uniqueInstance;
}

AudioPlayer::AudioPlayer()
    : m_player(new NativeAudioPlayer(this))
{
    m_player->setWholeFiles(true);
    connect(m_player, &NativeAudioPlayer::finished, this, &AudioPlayer::finished);
    connect(m_player, &NativeAudioPlayer::positionChanged, this, &AudioPlayer::positionChanged);
}

AudioPlayer::~AudioPlayer()
{
    slotSetAboutToQuit();
}

void AudioPlayer::play()
{
    m_player->play();
}

void AudioPlayer::play(const QString& path, bool loop)
{
    m_player->setMedia(path);
    if (loop) {
        m_stopRequested = false;
        QTimer::singleShot(m_player->duration(), this, &AudioPlayer::loopedPlay);
    }
    m_player->stop();
    m_player->play();
    // A file that did not open has no player to end: it ends at once, so
    // that a list walking on this player goes on past it.
    if (!loop && m_player->duration() == 0)
        QMetaObject::invokeMethod(this, &AudioPlayer::finished, Qt::QueuedConnection);
}

void AudioPlayer::loopedPlay()
{
    if (m_stopRequested)
        return;
    QTimer::singleShot(m_player->duration(), this, &AudioPlayer::loopedPlay);
    m_player->stop();
    m_player->play();
}

void AudioPlayer::stop()
{
    slotStop();
}

void AudioPlayer::slotStop()
{
    m_stopRequested = true;
    m_player->stop();
}

void AudioPlayer::pause()
{
    m_player->pause();
}

qint64 AudioPlayer::duration() const
{
    return m_player->duration();
}

qint64 AudioPlayer::position() const
{
    return m_player->position();
}

qint64 AudioPlayer::remainingDuration() const
{
    return duration() - position();
}

void AudioPlayer::setPosition(qint64 milliseconds)
{
    m_player->setPosition(milliseconds);
}

bool AudioPlayer::isMuted() const
{
    return m_player->isMuted();
}

double AudioPlayer::volume() const
{
    return m_player->volume();
}

bool AudioPlayer::isPlaying() const
{
    return m_player->isPlaying();
}

bool AudioPlayer::isStopped() const
{
    return m_player->isStopped();
}

bool AudioPlayer::isPaused() const
{
    return m_player->isPaused();
}

QString AudioPlayer::fileName() const
{
    return m_player->fileName();
}

void AudioPlayer::setMuted(bool muted)
{
    m_player->setMuted(muted);
}

void AudioPlayer::setVolume(double percent)
{
    m_player->setVolume(percent);
}

void AudioPlayer::slotSetAboutToQuit()
{
    // Written under the program's name on top of the store's own prefix, so
    // a later start, which reads the bare keys, does not see them.
    const QString name = QCoreApplication::applicationName();
    storeValue(name + QStringLiteral("/SoundVolume"), m_player->volume());
    storeValue(name + QStringLiteral("/SoundMute"), m_player->isMuted());
    m_stopRequested = true;
    m_aboutToQuit = true;
    m_player->stop();
}

} // namespace QMMultiMedia
