#pragma once

#include "MAudioFormat.h"

#include <QObject>
#include <QStringList>

namespace QMMultiMedia {

class NativeAudioRecorderInternal;

// Records from the chosen input into a file: the public face of
// NativeAudioRecorderInternal, with the output file name on top.
class NativeAudioRecorder : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(NativeAudioRecorder)

public:
    explicit NativeAudioRecorder(QObject* parent = nullptr);

    void setOutputFileName(const QString& path);
    QString outputFileName() const;
    bool isStopped() const;
    // Milliseconds of sound written to the file, in spite of the name.
    qint64 processedUSecs() const;
    // Takes effect at the next start.
    void setFormat(const MAudioFormat& format);
    MAudioFormat format() const;

    QStringList availableInputDevices() const;
    QString defaultInputDevice() const;
    void setInputDevice(const QString& name);

public slots:
    // Records into the output file name.
    void slotStart();
    // Takes `path` as the output file name and records into it.
    void slotStart(const QString& path);
    void slotStop();
    void slotSuspend();
    void slotResume();

signals:
    void finished();

private:
    NativeAudioRecorderInternal* m_internal = nullptr;
    QString m_outputFileName;
    MAudioFormat m_format;
};

} // namespace QMMultiMedia
