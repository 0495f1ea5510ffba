#pragma once

#include "PitchTracker.h"

#include <QObject>
#include <QString>

class QThread;

namespace QMMultiMedia {

class PitchWorker;

// Hears the instrument: while started, one worker thread reads the input
// source and detects the pitch; its readings come back queued to this
// object's thread, where the tracker turns them into notes. The source is
// open only between start() and stop(), and nothing heard is stored.
class PitchListener : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PitchListener)

public:
    explicit PitchListener(QObject* parent = nullptr);
    ~PitchListener() override;

    // Why no listening is possible here, for a tool tip; empty when a source exists.
    static QString unavailableReason();

    // The input source by name; empty (the default) for the system's default source.
    void setDeviceName(const QString& name);
    void setConcertPitch(double concertPitch);
    double concertPitch() const;
    bool isListening() const;

public slots:
    void start();
    void stop();

signals:
    void listeningChanged(bool listening);
    // Each voiced hop: the frequency, its nearest note and the deviation in cents.
    void pitchChanged(double frequency, int note, double cents);
    // The sound has stopped or turned into noise.
    void silenced();
    // Once per played note, when it has held long enough.
    void notePlayed(int note, double cents);
    // The source could not be opened or went away; listening has stopped.
    void failed();

private:
    void slotReading(double frequency, double confidence, double level, double durationMs);
    void slotWorkerFailed();

    QThread* m_thread = nullptr;
    PitchWorker* m_worker = nullptr;
    PitchTracker m_tracker;
    QString m_deviceName;
    bool m_voiced = false;
};

} // namespace QMMultiMedia
