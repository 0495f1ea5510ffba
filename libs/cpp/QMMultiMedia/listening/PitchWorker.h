#pragma once

#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

class QAudioInput;
class QIODevice;

namespace QMMultiMedia {

struct PitchDetector;

// Lives on the listener's worker thread: owns the audio input and aubio's
// YIN-FFT detector, and reports one reading per hop through a signal that
// the GUI thread receives queued. Nothing it hears is kept beyond one window.
class PitchWorker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PitchWorker)

public:
    static constexpr int SampleRate = 44100;
    static constexpr int WindowSize = 2048;
    static constexpr int HopSize = 512;

    PitchWorker();
    ~PitchWorker() override;

public slots:
    // Opens the named source, or the default one for an empty name.
    void slotStart(const QString& deviceName);
    void slotStop();

signals:
    void reading(double frequency, double confidence, double level, double durationMs);
    // The source could not be opened or went away.
    void failed();

private:
    void slotReadyRead();
    void analyseHops();

    QAudioInput* m_input = nullptr;
    QIODevice* m_device = nullptr;
    std::unique_ptr<PitchDetector> m_detector;
    QVector<float> m_pending;
};

} // namespace QMMultiMedia
