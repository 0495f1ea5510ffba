#pragma once

#include <QDir>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QStringList>
#include <QUrl>

namespace QMMultiMedia {

class PlayListModel;

// Walks a list of files on the AudioPlayer, one after the other.
class AudioListPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioListPlayer)

public:
    static AudioListPlayer* instance();

    // The files of the folder that match the name filters.
    void setPlayList(const QDir& dir, const QStringList& nameFilters);
    // Starts the list at its first entry; an empty list changes nothing.
    void setPlayList(const QList<QUrl>& urls);
    void appendToPlayList(const QList<QUrl>& urls);
    QList<QUrl> playList() const;

    // The list entry played at position `number`.
    int index(int number) const;
    int currentNumber() const;
    int currentIndex() const;
    QUrl currentUrl() const;
    QString currentName() const;
    QPixmap currentCover() const;
    // Null unless a caller has set one: the list player makes none itself.
    PlayListModel* playListModel();
    void setPlayListModel(PlayListModel* model);

    // Kept and returned; the order of play is always the list's.
    void setShuffleMode(bool on);
    void setLoopMode(bool on);
    bool isShuffleMode() const;
    bool isLoopMode() const;

    void play();
    void play(const QString& path);
    void stop();
    void pause();
    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;
    void setMuted(bool muted);
    bool isMuted() const;
    void setVolume(double percent);
    double volume() const;

public slots:
    void slotPlayNext();
    void slotPlayPrevious();
    void slotPlayFromList(const QUrl& url);
    void slotFinished();

signals:
    void stopped();
    void finished();
    void nextTriggered();
    void previousTriggered();
    void listChanged();

private:
    AudioListPlayer();
    void regenerateIndexes();
    void playCurrent();

    QList<QUrl> m_playList;
    QList<int> m_indexes;
    int m_currentNumber = 0;
    bool m_shuffleMode = false;
    bool m_loopMode = false;
    PlayListModel* m_model = nullptr;

    static AudioListPlayer* m_uniqueInstance;
};

} // namespace QMMultiMedia
