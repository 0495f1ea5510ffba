#pragma once

#include <QObject>
#include <QString>

namespace QMMultiMedia {

class NativeAudioPlayer;

// The player of whole music files: one NativeAudioPlayer with a loop that
// runs on the program's own timer and a volume kept in the settings.
class AudioPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioPlayer)

public:
    // Made on first use with the stored muting and volume; lives to the end.
    static AudioPlayer* instance();
    ~AudioPlayer() override;

    void play();
    // Loads the file and plays it from the start; `loop` plays it again and
    // again, each pass armed for the file's duration, until stop(). Played
    // once, a file that does not open gives finished() at once.
    void play(const QString& path, bool loop);
    void stop();
    void pause();

    qint64 duration() const;
    qint64 position() const;
    qint64 remainingDuration() const;
    void setPosition(qint64 milliseconds);

    bool isMuted() const;
    double volume() const;
    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;
    QString fileName() const;

public slots:
    void setMuted(bool muted);
    void setVolume(double percent);
    void slotStop();
    void loopedPlay();
    // Saves volume and muting and stops for good.
    void slotSetAboutToQuit();

signals:
    // Declared for listeners; nothing emits it.
    void stopped();
    void finished();
    void positionChanged(qint64 milliseconds);

private:
    AudioPlayer();
    void restartLoop();

    NativeAudioPlayer* m_player = nullptr;
    bool m_stopRequested = false;
    bool m_aboutToQuit = false;
    QString m_reserved;

    static AudioPlayer* _uniqueInstance;
};

} // namespace QMMultiMedia
