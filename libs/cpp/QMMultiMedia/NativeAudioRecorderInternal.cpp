#include "NativeAudioRecorderInternal.h"

#include "PulseSourceWatch.h"
#include "RecordingWriter.h"
#include "SuspendRamp.h"

#include <QAudioInput>
#include <QDebug>
#include <QMetaObject>

#include <cstring>

namespace QMMultiMedia {

namespace {
// Long enough to take the edge off a suspension, too short to hear as a fade.
const int RampMilliseconds = 5;
// A new stream may wait this long for its first frames on a server that idled.
const int SourceSilenceLimitMs = 2500;
const int SourceWatchIntervalMs = 250;
}

NativeAudioRecorderInternal::NativeAudioRecorderInternal(QObject* parent)
    : QObject(parent)
{
    m_sourceWatch.setInterval(SourceWatchIntervalMs);
    connect(&m_sourceWatch, &QTimer::timeout, this, &NativeAudioRecorderInternal::slotWatchSource);
}

NativeAudioRecorderInternal::~NativeAudioRecorderInternal()
{
    closeRecording();
}

bool NativeAudioRecorderInternal::isStopped() const
{
    return m_stopped;
}

qint64 NativeAudioRecorderInternal::processedUSecs() const
{
    if (m_recordingFormat.sampleRate < 1)
        return 0;
    return m_framesWritten * 1000 / m_recordingFormat.sampleRate;
}

void NativeAudioRecorderInternal::setFormat(const MAudioFormat& format)
{
    m_format = format;
}

MAudioFormat NativeAudioRecorderInternal::format() const
{
    return m_format;
}

QStringList NativeAudioRecorderInternal::availableInputDevices() const
{
    QStringList names;
    for (const QAudioDeviceInfo& device : QAudioDeviceInfo::availableDevices(QAudio::AudioInput))
        names.append(device.deviceName());
    return names;
}

QString NativeAudioRecorderInternal::defaultInputDevice() const
{
    return QAudioDeviceInfo::defaultInputDevice().deviceName();
}

void NativeAudioRecorderInternal::setInputDevice(const QString& name)
{
    m_inputDevice = QAudioDeviceInfo();
    for (const QAudioDeviceInfo& device : QAudioDeviceInfo::availableDevices(QAudio::AudioInput)) {
        if (device.deviceName() == name) {
            m_inputDevice = device;
            return;
        }
    }
}

void NativeAudioRecorderInternal::slotStart(const QString& path)
{
    closeRecording();
    m_recordingFormat = m_format;
    m_framesWritten = 0;
    m_suspended = false;
    m_stopped = false;
    m_writer = RecordingWriter::create(path, m_recordingFormat);
    if (!m_writer) {
        qWarning().noquote() << "Cannot record into" << path;
        m_stopped = true;
        QMetaObject::invokeMethod(this, &NativeAudioRecorderInternal::finished, Qt::QueuedConnection);
        return;
    }
    m_ramp = std::make_unique<SuspendRamp>(
        m_recordingFormat.channels, m_recordingFormat.sampleRate * RampMilliseconds / 1000);

    QAudioFormat format;
    format.setSampleRate(m_recordingFormat.sampleRate);
    format.setChannelCount(m_recordingFormat.channels);
    format.setSampleSize(16);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setSampleType(QAudioFormat::SignedInt);
    const QAudioDeviceInfo device = m_inputDevice.isNull() ? QAudioDeviceInfo::defaultInputDevice() : m_inputDevice;
    m_input = std::make_unique<QAudioInput>(device, format);
    connect(m_input.get(), &QAudioInput::stateChanged, this, &NativeAudioRecorderInternal::slotStateChanged);
    m_source = m_input->start();
    if (!m_source) {
        QMetaObject::invokeMethod(this, &NativeAudioRecorderInternal::slotStop, Qt::QueuedConnection);
        return;
    }
    connect(m_source, &QIODevice::readyRead, this, &NativeAudioRecorderInternal::slotReadyRead);
    m_sourceExists = std::make_unique<PulseSourceWatch>(device.deviceName());
    m_sinceData.start();
    m_sourceWatch.start();
}

void NativeAudioRecorderInternal::slotStop()
{
    if (m_stopped)
        return;
    finish();
}

void NativeAudioRecorderInternal::slotSuspend()
{
    if (!m_input || m_suspended)
        return;
    readAvailable();
    m_suspended = true;
    m_ready.clear();
    m_ramp->fadeOut(&m_ready);
    writeFrames(m_ready);
}

void NativeAudioRecorderInternal::slotResume()
{
    if (!m_input || !m_suspended)
        return;
    // What arrived during the suspension is not part of the recording.
    readAvailable();
    m_suspended = false;
}

void NativeAudioRecorderInternal::slotReadyRead()
{
    readAvailable();
}

void NativeAudioRecorderInternal::slotWatchSource()
{
    if (m_stopped)
        return;
    if (m_sourceExists && m_sourceExists->isGone()) {
        qWarning() << "Recording stopped: the source has gone";
        slotStop();
    } else if (m_sinceData.elapsed() > SourceSilenceLimitMs) {
        qWarning() << "Recording stopped: the source delivers nothing";
        slotStop();
    } else if (m_sourceExists) {
        m_sourceExists->ask();
    }
}

void NativeAudioRecorderInternal::slotStateChanged(QAudio::State state)
{
    // The source went away or the server failed: the recording ends with
    // what it has.
    if (state == QAudio::StoppedState && m_input && m_input->error() != QAudio::NoError && !m_stopped)
        QMetaObject::invokeMethod(this, &NativeAudioRecorderInternal::slotStop, Qt::QueuedConnection);
}

void NativeAudioRecorderInternal::readAvailable()
{
    if (!m_source || !m_writer)
        return;
    const QByteArray bytes = m_partialFrame + m_source->readAll();
    const int frameBytes = 2 * m_recordingFormat.channels;
    const int frames = bytes.size() / frameBytes;
    m_partialFrame = bytes.mid(frames * frameBytes);
    if (frames == 0)
        return;
    m_sinceData.start();
    if (m_suspended)
        return;
    QVector<qint16> samples(frames * m_recordingFormat.channels);
    std::memcpy(samples.data(), bytes.constData(), static_cast<size_t>(frames) * frameBytes);
    m_ready.clear();
    m_ramp->push(samples.constData(), frames, &m_ready);
    writeFrames(m_ready);
}

void NativeAudioRecorderInternal::writeFrames(const QVector<qint16>& samples)
{
    if (!m_writer || samples.isEmpty())
        return;
    const qint64 frames = samples.size() / m_recordingFormat.channels;
    const qint64 written = m_writer->write(samples.constData(), frames);
    m_framesWritten += written;
    if (written == frames)
        return;
    // The disk is full: the file keeps what it has and the recording ends.
    qWarning() << "Recording stopped: the file cannot grow";
    QMetaObject::invokeMethod(this, &NativeAudioRecorderInternal::slotStop, Qt::QueuedConnection);
    m_writer->close();
    m_writer.reset();
}

void NativeAudioRecorderInternal::closeRecording()
{
    m_sourceWatch.stop();
    if (m_input) {
        readAvailable();
        m_input->disconnect(this);
        m_input->stop();
    }
    if (m_writer && m_ramp) {
        m_ready.clear();
        m_ramp->flush(&m_ready);
        writeFrames(m_ready);
    }
    m_source = nullptr;
    m_input.reset();
    if (m_writer)
        m_writer->close();
    m_writer.reset();
    m_ramp.reset();
    m_sourceExists.reset();
    m_partialFrame.clear();
}

void NativeAudioRecorderInternal::finish()
{
    closeRecording();
    m_stopped = true;
    emit finished();
}

} // namespace QMMultiMedia
