#pragma once

#include "AudioFileDecoder.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace QMMultiMedia {

class PulseStream;

// The platform player on Linux: a sound file decoded into memory and pushed
// into its own sound-server stream, with volume and balance applied to the
// samples. Its position comes from a clock started at play. The streams of
// all players share one OutputBudget: when it is full, the player that
// started first gives way (it stops and emits gaveWay()).
class MemoryAudioPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MemoryAudioPlayer)

public:
    explicit MemoryAudioPlayer(QObject* parent = nullptr);
    ~MemoryAudioPlayer() override;

    // Decodes the whole file; false when it cannot be read.
    bool load(const QString& path);
    // The same for a whole music file: longer, and not kept in the samples' cache.
    bool loadWholeFile(const QString& path);

    void setVolume(float volume);
    void setPan(float pan);
    void play();
    void pause();
    void stop();

    // True from play until all samples are written and the output has gone idle.
    bool isPlaying() const;
    double currentTime() const;
    void setCurrentTime(double seconds);
    double duration() const;

signals:
    // Ended early to make room for a newer sound; the sound is over.
    void gaveWay();

private:
    void slotTopUp();
    void startOutput();
    void dropOutput();
    void giveWay();
    void writeAvailable();
    bool allWritten() const;

    DecodedSound m_sound;
    std::unique_ptr<PulseStream> m_stream;
    QTimer m_topUpTimer;
    QByteArray m_scratch;
    qint64 m_nextFrame = 0;
    bool m_running = false;
    bool m_paused = false;
    QElapsedTimer m_clock;
    double m_clockStart = 0.0;
    float m_volume = 1.0f;
    float m_pan = 0.0f;
};

} // namespace QMMultiMedia
