#pragma once

#include <QObject>
#include <QTimer>

namespace QMMultiMedia {

class MemoryAudioPlayer;

// Owns the platform player of one sound file, keeps a small state of its own
// and finds out by a 500 ms poll that the sound has ended.
class NativeAudioPlayerInternal : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(NativeAudioPlayerInternal)

public:
    explicit NativeAudioPlayerInternal(QObject* parent = nullptr);
    ~NativeAudioPlayerInternal() override;

    void setMedia(const QString& path);
    void play();
    void play(const QString& path);
    void stop();
    void pause();

    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;

    qint64 position() const;
    qint64 duration() const;
    void setPosition(qint64 milliseconds);

    void setVolume(int percent);
    int volume() const;
    void setBalance(float balance);
    // Whole music files instead of short samples, from the next setMedia on.
    void setWholeFiles(bool on);

signals:
    void finished();
    void positionChanged(qint64 milliseconds);

public slots:
    void slotPositionChanged();
    void slotPlayerGaveWay();

private:
    enum State
    {
        Playing = 0,
        Stopped = 1,
        Paused = 2
    };

    void releasePlayer();

    float m_balance = 0.0f;
    MemoryAudioPlayer* m_player = nullptr;
    QTimer m_positionTimer;
    int m_state = Stopped;
    double m_volume = 0.5;
    bool m_wholeFiles = false;
};

} // namespace QMMultiMedia
