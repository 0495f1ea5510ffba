#include "NativeAudioRecorder.h"

#include "NativeAudioRecorderInternal.h"

namespace QMMultiMedia {

NativeAudioRecorder::NativeAudioRecorder(QObject* parent)
    : QObject(parent)
    , m_internal(new NativeAudioRecorderInternal(this))
{
    connect(m_internal, &NativeAudioRecorderInternal::finished, this, &NativeAudioRecorder::finished);
}

void NativeAudioRecorder::setOutputFileName(const QString& path)
{
    m_outputFileName = path;
}

QString NativeAudioRecorder::outputFileName() const
{
    return m_outputFileName;
}

bool NativeAudioRecorder::isStopped() const
{
    return m_internal->isStopped();
}

qint64 NativeAudioRecorder::processedUSecs() const
{
    return m_internal->processedUSecs();
}

void NativeAudioRecorder::setFormat(const MAudioFormat& format)
{
    m_format = format;
    m_internal->setFormat(format);
}

MAudioFormat NativeAudioRecorder::format() const
{
    return m_format;
}

QStringList NativeAudioRecorder::availableInputDevices() const
{
    return m_internal->availableInputDevices();
}

QString NativeAudioRecorder::defaultInputDevice() const
{
    return m_internal->defaultInputDevice();
}

void NativeAudioRecorder::setInputDevice(const QString& name)
{
    m_internal->setInputDevice(name);
}

void NativeAudioRecorder::slotStart()
{
    m_internal->slotStart(m_outputFileName);
}

void NativeAudioRecorder::slotStart(const QString& path)
{
    m_outputFileName = path;
    m_internal->slotStart(path);
}

void NativeAudioRecorder::slotStop()
{
    m_internal->slotStop();
}

void NativeAudioRecorder::slotSuspend()
{
    m_internal->slotSuspend();
}

void NativeAudioRecorder::slotResume()
{
    m_internal->slotResume();
}

} // namespace QMMultiMedia
