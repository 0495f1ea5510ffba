#include "AudioListPlayer.h"

#include "AudioPlayer.h"
#include "ID3Info.h"

#include <QFileInfo>

namespace QMMultiMedia {

AudioListPlayer* AudioListPlayer::m_uniqueInstance = nullptr;

AudioListPlayer* AudioListPlayer::instance()
{
    if (!m_uniqueInstance)
        m_uniqueInstance = new AudioListPlayer();
    return m_uniqueInstance;
}

AudioListPlayer::AudioListPlayer()
{
    connect(AudioPlayer::instance(), &AudioPlayer::finished, this, &AudioListPlayer::slotFinished);
    connect(AudioPlayer::instance(), &AudioPlayer::stopped, this, &AudioListPlayer::stopped);
}

void AudioListPlayer::setPlayList(const QDir& dir, const QStringList& nameFilters)
{
    QList<QUrl> urls;
    for (const QString& name : dir.entryList(nameFilters, QDir::Files))
        urls.append(QUrl::fromLocalFile(dir.absoluteFilePath(name)));
    setPlayList(urls);
}

void AudioListPlayer::setPlayList(const QList<QUrl>& urls)
{
    if (urls.isEmpty())
        return;
    AudioPlayer::instance()->stop();
    m_playList = urls;
    AudioPlayer::instance()->play(m_playList.first().toLocalFile(), false);
    m_currentNumber = 0;
    regenerateIndexes();
    emit nextTriggered();
}

void AudioListPlayer::appendToPlayList(const QList<QUrl>& urls)
{
    if (urls.isEmpty())
        return;
    m_playList.append(urls);
    regenerateIndexes();
    emit listChanged();
}

QList<QUrl> AudioListPlayer::playList() const
{
    return m_playList;
}

void AudioListPlayer::regenerateIndexes()
{
    m_indexes.clear();
    for (int i = 0; i < m_playList.size(); ++i)
        m_indexes.append(i);
}

void AudioListPlayer::playCurrent()
{
    AudioPlayer::instance()->play(m_playList.at(m_indexes.at(m_currentNumber)).toLocalFile(), false);
}

int AudioListPlayer::index(int number) const
{
    return m_indexes.value(number, -1);
}

int AudioListPlayer::currentNumber() const
{
    return m_currentNumber;
}

int AudioListPlayer::currentIndex() const
{
    return index(m_currentNumber);
}

QUrl AudioListPlayer::currentUrl() const
{
    return m_playList.value(currentIndex());
}

QString AudioListPlayer::currentName() const
{
    return QFileInfo(currentUrl().toString()).fileName();
}

QPixmap AudioListPlayer::currentCover() const
{
    return ID3Info(currentUrl().toLocalFile()).cover();
}

PlayListModel* AudioListPlayer::playListModel()
{
    return m_model;
}

void AudioListPlayer::setPlayListModel(PlayListModel* model)
{
    m_model = model;
}

void AudioListPlayer::setShuffleMode(bool on)
{
    m_shuffleMode = on;
}

void AudioListPlayer::setLoopMode(bool on)
{
    m_loopMode = on;
}

bool AudioListPlayer::isShuffleMode() const
{
    return m_shuffleMode;
}

bool AudioListPlayer::isLoopMode() const
{
    return m_loopMode;
}

void AudioListPlayer::slotFinished()
{
    ++m_currentNumber;
    if (m_currentNumber >= m_indexes.size()) {
        m_currentNumber = 0;
        emit finished();
        return;
    }
    playCurrent();
    emit nextTriggered();
}

void AudioListPlayer::slotPlayNext()
{
    const int old = m_currentNumber;
    if (++m_currentNumber < m_indexes.size()) {
        AudioPlayer::instance()->stop();
        playCurrent();
        emit nextTriggered();
    } else {
        m_currentNumber = old;
    }
}

void AudioListPlayer::slotPlayPrevious()
{
    const int old = m_currentNumber--;
    if (old >= 1) {
        AudioPlayer::instance()->stop();
        playCurrent();
        emit previousTriggered();
    } else {
        m_currentNumber = old;
    }
}

// Every later entry equal to `url` is played in turn, the scan running on to
// the end of the list; only when none is found are the earlier entries
// scanned, downwards. The current entry itself is never compared.
void AudioListPlayer::slotPlayFromList(const QUrl& url)
{
    const int remembered = m_currentNumber;
    bool found = false;
    for (m_currentNumber = remembered + 1; m_currentNumber < m_indexes.size(); ++m_currentNumber) {
        if (m_playList.at(m_indexes.at(m_currentNumber)) == url) {
            playCurrent();
            emit nextTriggered();
            found = true;
        }
    }
    if (found)
        return;
    for (m_currentNumber = remembered - 1; m_currentNumber >= 0; --m_currentNumber) {
        if (m_playList.at(m_indexes.at(m_currentNumber)) == url) {
            playCurrent();
            emit previousTriggered();
            found = true;
        }
    }
    if (!found)
        m_currentNumber = remembered;
}

void AudioListPlayer::play()
{
    AudioPlayer::instance()->play();
}

void AudioListPlayer::play(const QString& path)
{
    AudioPlayer::instance()->play(path, false);
}

void AudioListPlayer::stop()
{
    AudioPlayer::instance()->stop();
}

void AudioListPlayer::pause()
{
    AudioPlayer::instance()->pause();
}

bool AudioListPlayer::isPlaying() const
{
    return AudioPlayer::instance()->isPlaying();
}

bool AudioListPlayer::isStopped() const
{
    return AudioPlayer::instance()->isStopped();
}

bool AudioListPlayer::isPaused() const
{
    return AudioPlayer::instance()->isPaused();
}

void AudioListPlayer::setMuted(bool muted)
{
    AudioPlayer::instance()->setMuted(muted);
}

bool AudioListPlayer::isMuted() const
{
    return AudioPlayer::instance()->isMuted();
}

void AudioListPlayer::setVolume(double percent)
{
    AudioPlayer::instance()->setVolume(percent);
}

double AudioListPlayer::volume() const
{
    return AudioPlayer::instance()->volume();
}

} // namespace QMMultiMedia
