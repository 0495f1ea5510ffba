#pragma once

#include <QObject>
#include <QString>

namespace QMMultiMedia {

class NativeAudioPlayerInternal;

// Plays one sound file through the platform's player: the public face of
// NativeAudioPlayerInternal, with the file name and muting on top.
class NativeAudioPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(NativeAudioPlayer)

public:
    explicit NativeAudioPlayer(QObject* parent = nullptr);

    void setMedia(const QString& path);
    QString fileName() const;
    void play();
    // Plays the file without remembering it as the file name.
    void play(const QString& path);
    void stop();
    void pause();

    bool isPlaying() const;
    bool isStopped() const;
    bool isPaused() const;

    qint64 position() const;
    qint64 duration() const;
    void setPosition(qint64 milliseconds);

    // In percent; the fraction is dropped.
    void setVolume(double percent);
    double volume() const;
    bool isMuted() const;
    void setMuted(bool muted);
    void setBalance(float balance);
    // Plays whole music files, up to a quarter of an hour, instead of short
    // samples; they bypass the samples' cache. From the next setMedia on.
    void setWholeFiles(bool on);

signals:
    void finished();
    // Declared for callers of the public face; only the internal object's
    // signal of this name ever fires.
    void positionChanged(qint64 milliseconds);

private:
    NativeAudioPlayerInternal* m_internal = nullptr;
    QString m_fileName;
    double m_savedVolume = 0.0;
};

} // namespace QMMultiMedia
