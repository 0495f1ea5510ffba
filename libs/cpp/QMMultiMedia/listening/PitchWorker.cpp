#include "PitchWorker.h"

#include <QAudioDeviceInfo>
#include <QAudioInput>

#include <aubio/aubio.h>

#include <cmath>

namespace QMMultiMedia {

// aubio's objects for one listening: the detector and its in and out vectors.
// The detector is YIN with its difference function computed by FFT
// ("yinfast"): aubio 0.4.9's spectrally weighted "yinfft" reports a
// confidence of 0 whatever it hears, which leaves no way to tell a string
// from noise.
struct PitchDetector
{
    aubio_pitch_t* pitch = nullptr;
    fvec_t* hop = nullptr;
    fvec_t* result = nullptr;

    PitchDetector()
        : pitch(new_aubio_pitch("yinfast", PitchWorker::WindowSize, PitchWorker::HopSize, PitchWorker::SampleRate))
        , hop(new_fvec(PitchWorker::HopSize))
        , result(new_fvec(1))
    {
        if (pitch) {
            aubio_pitch_set_unit(pitch, "Hz");
            // The tracker has its own silence gate; aubio's would hide quiet strings.
            aubio_pitch_set_silence(pitch, -100.0f);
        }
    }
    ~PitchDetector()
    {
        if (pitch)
            del_aubio_pitch(pitch);
        if (hop)
            del_fvec(hop);
        if (result)
            del_fvec(result);
    }
    PitchDetector(const PitchDetector&) = delete;
    PitchDetector& operator=(const PitchDetector&) = delete;

    bool isValid() const { return pitch && hop && result; }
};

namespace {

QAudioDeviceInfo inputDevice(const QString& name)
{
    if (name.isEmpty())
        return QAudioDeviceInfo::defaultInputDevice();
    const QList<QAudioDeviceInfo> devices = QAudioDeviceInfo::availableDevices(QAudio::AudioInput);
    for (const QAudioDeviceInfo& device : devices) {
        if (device.deviceName() == name)
            return device;
    }
    return QAudioDeviceInfo();
}

} // namespace

PitchWorker::PitchWorker() = default;

PitchWorker::~PitchWorker()
{
    slotStop();
}

void PitchWorker::slotStart(const QString& deviceName)
{
    slotStop();
    const QAudioDeviceInfo device = inputDevice(deviceName);
    m_detector = std::make_unique<PitchDetector>();
    if (device.isNull() || !m_detector->isValid()) {
        m_detector.reset();
        emit failed();
        return;
    }
    QAudioFormat format;
    format.setSampleRate(SampleRate);
    format.setChannelCount(1);
    format.setSampleSize(16);
    format.setSampleType(QAudioFormat::SignedInt);
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setCodec(QStringLiteral("audio/pcm"));
    m_input = new QAudioInput(device, format, this);
    // Small server fragments keep the delay from string to needle short.
    m_input->setBufferSize(HopSize * 2);
    connect(m_input, &QAudioInput::stateChanged, this, [this](QAudio::State state) {
        if (state == QAudio::StoppedState && m_input && m_input->error() != QAudio::NoError) {
            slotStop();
            emit failed();
        }
    });
    m_device = m_input->start();
    if (!m_device) {
        slotStop();
        emit failed();
        return;
    }
    connect(m_device, &QIODevice::readyRead, this, &PitchWorker::slotReadyRead);
}

void PitchWorker::slotStop()
{
    if (m_input) {
        QAudioInput* input = m_input;
        m_input = nullptr;
        m_device = nullptr;
        input->stop();
        delete input;
    }
    m_detector.reset();
    m_pending.clear();
}

void PitchWorker::slotReadyRead()
{
    if (!m_device)
        return;
    const QByteArray bytes = m_device->readAll();
    const int count = bytes.size() / 2;
    const auto* samples = reinterpret_cast<const qint16*>(bytes.constData());
    m_pending.reserve(m_pending.size() + count);
    for (int i = 0; i < count; ++i)
        m_pending.append(samples[i] / 32768.0f);
    analyseHops();
}

void PitchWorker::analyseHops()
{
    constexpr double hopMs = 1000.0 * HopSize / SampleRate;
    int offset = 0;
    while (m_detector && m_pending.size() - offset >= HopSize) {
        double energy = 0.0;
        for (int i = 0; i < HopSize; ++i) {
            const float sample = m_pending.at(offset + i);
            m_detector->hop->data[i] = sample;
            energy += double(sample) * sample;
        }
        offset += HopSize;
        aubio_pitch_do(m_detector->pitch, m_detector->hop, m_detector->result);
        emit reading(m_detector->result->data[0], aubio_pitch_get_confidence(m_detector->pitch),
            std::sqrt(energy / HopSize), hopMs);
    }
    m_pending.remove(0, offset);
}

} // namespace QMMultiMedia
