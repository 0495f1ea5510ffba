#pragma once

#include "AudioFileDecoder.h"

#include <QAudioFormat>
#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QAudioOutput;
class QIODevice;

namespace QMMultiMedia {

// The platform player on Linux: a sound file decoded into memory and pushed
// into its own QAudioOutput, with volume and balance applied to the samples.
// Its position comes from a clock started at play, because the output's
// processed time runs ahead of what was heard and survives a stop.
class MemoryAudioPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MemoryAudioPlayer)

public:
    explicit MemoryAudioPlayer(QObject* parent = nullptr);
    ~MemoryAudioPlayer() override;

    // Decodes the whole file; false when it cannot be read.
    bool load(const QString& path);

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

private:
    void slotTopUp();
    void startOutput();
    void dropOutput();
    void writeAvailable();
    bool allWritten() const;

    DecodedSound m_sound;
    QAudioFormat m_format;
    QAudioOutput* m_output = nullptr;
    QIODevice* m_device = nullptr;
    QTimer m_topUpTimer;
    QByteArray m_scratch;
    qint64 m_nextFrame = 0;
    bool m_running = false;
    QElapsedTimer m_clock;
    double m_clockStart = 0.0;
    float m_volume = 1.0f;
    float m_pan = 0.0f;
};

} // namespace QMMultiMedia
