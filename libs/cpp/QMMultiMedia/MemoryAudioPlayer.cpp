#include "MemoryAudioPlayer.h"

#include "PlaybackArithmetic.h"

#include <QAudioDeviceInfo>
#include <QAudioOutput>

namespace QMMultiMedia {

namespace {
// The output's default buffer is kept; a short timer tops it up.
const int TopUpIntervalMs = 10;
const int BytesPerFrame = 4; // 16-bit stereo
}

MemoryAudioPlayer::MemoryAudioPlayer(QObject* parent)
    : QObject(parent)
{
    m_topUpTimer.setInterval(TopUpIntervalMs);
    m_topUpTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_topUpTimer, &QTimer::timeout, this, &MemoryAudioPlayer::slotTopUp);
}

MemoryAudioPlayer::~MemoryAudioPlayer()
{
    m_topUpTimer.stop();
    dropOutput();
}

bool MemoryAudioPlayer::load(const QString& path)
{
    if (!AudioFileDecoder::decode(path, &m_sound))
        return false;
    m_format.setSampleRate(m_sound.sampleRate);
    m_format.setChannelCount(2);
    m_format.setSampleSize(16);
    m_format.setSampleType(QAudioFormat::SignedInt);
    m_format.setByteOrder(QAudioFormat::LittleEndian);
    m_format.setCodec(QStringLiteral("audio/pcm"));
    return true;
}

void MemoryAudioPlayer::setVolume(float volume)
{
    m_volume = volume;
}

void MemoryAudioPlayer::setPan(float pan)
{
    m_pan = pan;
}

void MemoryAudioPlayer::play()
{
    if (m_sound.frames() == 0)
        return;
    if (m_running) {
        if (isPlaying())
            return;
        // Played out (or the output failed): a new play starts from the top.
        m_running = false;
        dropOutput();
        m_nextFrame = 0;
    }
    if (m_output && m_device && m_output->state() == QAudio::SuspendedState) {
        m_output->resume();
    } else {
        if (allWritten())
            m_nextFrame = 0;
        m_clockStart = PlaybackArithmetic::framesToSeconds(m_nextFrame, m_sound.sampleRate);
        startOutput();
    }
    m_running = true;
    m_clock.start();
    writeAvailable();
    if (!allWritten())
        m_topUpTimer.start();
}

void MemoryAudioPlayer::pause()
{
    if (!m_running)
        return;
    m_clockStart = currentTime();
    m_running = false;
    m_topUpTimer.stop();
    if (m_output)
        m_output->suspend();
}

void MemoryAudioPlayer::stop()
{
    const double position = currentTime();
    m_running = false;
    m_topUpTimer.stop();
    dropOutput();
    m_clockStart = position;
    m_nextFrame = PlaybackArithmetic::secondsToFrames(position, m_sound.sampleRate);
}

bool MemoryAudioPlayer::isPlaying() const
{
    if (!m_running || !m_output || !m_device)
        return false;
    const QAudio::State state = m_output->state();
    if (state == QAudio::StoppedState)
        return false;
    return !(allWritten() && state == QAudio::IdleState);
}

double MemoryAudioPlayer::currentTime() const
{
    if (!m_running)
        return m_clockStart;
    return qMin(m_clockStart + m_clock.nsecsElapsed() / 1e9, duration());
}

void MemoryAudioPlayer::setCurrentTime(double seconds)
{
    const double position = qBound(0.0, seconds, duration());
    m_clockStart = position;
    m_nextFrame = PlaybackArithmetic::secondsToFrames(position, m_sound.sampleRate);
    if (!m_output)
        return;
    // What the output still holds belongs to the old position.
    dropOutput();
    if (m_running) {
        startOutput();
        m_clock.start();
        writeAvailable();
        if (!allWritten())
            m_topUpTimer.start();
    }
}

double MemoryAudioPlayer::duration() const
{
    return PlaybackArithmetic::framesToSeconds(m_sound.frames(), m_sound.sampleRate);
}

void MemoryAudioPlayer::slotTopUp()
{
    writeAvailable();
    if (allWritten())
        m_topUpTimer.stop();
}

void MemoryAudioPlayer::startOutput()
{
    dropOutput();
    m_output = new QAudioOutput(QAudioDeviceInfo::defaultOutputDevice(), m_format, this);
    m_device = m_output->start();
}

void MemoryAudioPlayer::dropOutput()
{
    if (!m_output)
        return;
    m_output->stop();
    delete m_output;
    m_output = nullptr;
    m_device = nullptr;
}

void MemoryAudioPlayer::writeAvailable()
{
    if (!m_output || !m_device || allWritten())
        return;
    const qint64 room = m_output->bytesFree() / BytesPerFrame;
    const qint64 frames = qMin(room, m_sound.frames() - m_nextFrame);
    if (frames <= 0)
        return;
    m_scratch.resize(static_cast<int>(frames * BytesPerFrame));
    PlaybackArithmetic::mixToStereo16(m_sound.samples.constData() + m_nextFrame * m_sound.channels, m_sound.channels,
        frames, m_volume, m_pan, reinterpret_cast<qint16*>(m_scratch.data()));
    const qint64 written = m_device->write(m_scratch.constData(), m_scratch.size());
    if (written > 0)
        m_nextFrame += written / BytesPerFrame;
}

bool MemoryAudioPlayer::allWritten() const
{
    return m_nextFrame >= m_sound.frames();
}

} // namespace QMMultiMedia
