#pragma once

#include "MAudioFormat.h"

#include <QAudio>
#include <QAudioDeviceInfo>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <memory>

class QAudioInput;
class QIODevice;

namespace QMMultiMedia {

class PulseSourceWatch;
class RecordingWriter;
class SuspendRamp;

// Records from a sound-server source into a file: Qt Multimedia's audio
// input delivers 16-bit frames in the asked rate and channels, and each
// batch goes to the file's writer as it arrives. The input keeps running
// through a suspension, its frames unused, so that the recording goes on
// without a gap. The recording ends by itself when its source goes away
// or, as a live source delivers all the time, delivers nothing for a while.
class NativeAudioRecorderInternal : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(NativeAudioRecorderInternal)

public:
    explicit NativeAudioRecorderInternal(QObject* parent = nullptr);
    ~NativeAudioRecorderInternal() override;

    bool isStopped() const;
    // Milliseconds of sound written to the file, in spite of the name.
    qint64 processedUSecs() const;
    // Takes effect at the next start.
    void setFormat(const MAudioFormat& format);
    MAudioFormat format() const;

    QStringList availableInputDevices() const;
    QString defaultInputDevice() const;
    // An unknown name records from the default source.
    void setInputDevice(const QString& name);

public slots:
    // Ends a recording that is running, without finished(), and starts a
    // new one into `path`. A file that cannot be made gives finished() at once.
    void slotStart(const QString& path);
    void slotStop();
    void slotSuspend();
    void slotResume();

signals:
    // The recording has ended and its file is complete and closed.
    void finished();

private:
    void slotReadyRead();
    void slotStateChanged(QAudio::State state);
    void slotWatchSource();
    void readAvailable();
    void writeFrames(const QVector<qint16>& samples);
    void closeRecording();
    void finish();

    std::unique_ptr<QAudioInput> m_input;
    QTimer m_sourceWatch;
    bool m_stopped = true;
    MAudioFormat m_format;
    // The format of the recording that runs; setFormat waits for the next.
    MAudioFormat m_recordingFormat;
    QAudioDeviceInfo m_inputDevice;
    QIODevice* m_source = nullptr;
    std::unique_ptr<RecordingWriter> m_writer;
    std::unique_ptr<SuspendRamp> m_ramp;
    std::unique_ptr<PulseSourceWatch> m_sourceExists;
    QByteArray m_partialFrame;
    QVector<qint16> m_ready;
    qint64 m_framesWritten = 0;
    bool m_suspended = false;
    QElapsedTimer m_sinceData;
};

} // namespace QMMultiMedia
