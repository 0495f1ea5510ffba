#include "MemoryAudioPlayer.h"

#include "DecodedSoundCache.h"
#include "OutputBudget.h"
#include "PlaybackArithmetic.h"
#include "PulseStream.h"

namespace QMMultiMedia {

namespace {
// The stream's buffer is kept short; a timer tops it up.
const int TopUpIntervalMs = 10;
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
    return DecodedSoundCache::shared().decode(path, &m_sound);
}

bool MemoryAudioPlayer::loadWholeFile(const QString& path)
{
    return AudioFileDecoder::decode(path, &m_sound, AudioFileDecoder::MaximumWholeFileSeconds);
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
        // Played out (or the stream failed): a new play starts from the top.
        m_running = false;
        dropOutput();
        m_nextFrame = 0;
    }
    if (m_stream && m_paused) {
        m_stream->setPaused(false);
    } else {
        if (allWritten())
            m_nextFrame = 0;
        m_clockStart = PlaybackArithmetic::framesToSeconds(m_nextFrame, m_sound.sampleRate);
        startOutput();
    }
    m_paused = false;
    m_running = true;
    m_clock.start();
    slotTopUp();
    m_topUpTimer.start();
}

void MemoryAudioPlayer::pause()
{
    if (!m_running)
        return;
    m_clockStart = currentTime();
    m_running = false;
    m_topUpTimer.stop();
    if (m_stream) {
        m_stream->setPaused(true);
        m_paused = true;
    }
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
    if (!m_running || !m_stream || m_stream->state() == PulseStream::State::Failed)
        return false;
    return !(allWritten() && m_stream->drained());
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
    if (!m_stream)
        return;
    // What the stream still holds belongs to the old position.
    dropOutput();
    if (m_running) {
        startOutput();
        m_clock.start();
        slotTopUp();
        m_topUpTimer.start();
    }
}

double MemoryAudioPlayer::duration() const
{
    return PlaybackArithmetic::framesToSeconds(m_sound.frames(), m_sound.sampleRate);
}

void MemoryAudioPlayer::slotTopUp()
{
    if (!m_stream || m_stream->state() == PulseStream::State::Failed) {
        m_topUpTimer.stop();
        return;
    }
    writeAvailable();
    if (allWritten() && m_stream->state() == PulseStream::State::Ready) {
        m_stream->drain();
        m_topUpTimer.stop();
    }
}

void MemoryAudioPlayer::startOutput()
{
    dropOutput();
    if (MemoryAudioPlayer* oldest = OutputBudget::shared().admit(this))
        oldest->giveWay();
    m_stream = std::make_unique<PulseStream>(m_sound.sampleRate);
}

void MemoryAudioPlayer::dropOutput()
{
    if (!m_stream)
        return;
    OutputBudget::shared().release(this);
    m_stream.reset();
    m_paused = false;
}

void MemoryAudioPlayer::giveWay()
{
    m_running = false;
    m_topUpTimer.stop();
    m_stream.reset();
    m_paused = false;
    // The sound is over for good: its samples need not wait for the deletion.
    m_sound = DecodedSound();
    m_clockStart = 0.0;
    m_nextFrame = 0;
    emit gaveWay();
}

void MemoryAudioPlayer::writeAvailable()
{
    if (!m_stream || allWritten())
        return;
    const qint64 room = m_stream->writableBytes() / PulseStream::BytesPerFrame;
    const qint64 frames = qMin(room, m_sound.frames() - m_nextFrame);
    if (frames <= 0)
        return;
    m_scratch.resize(static_cast<int>(frames * PulseStream::BytesPerFrame));
    PlaybackArithmetic::mixToStereo16(m_sound.samples.constData() + m_nextFrame * m_sound.channels, m_sound.channels,
        frames, m_volume, m_pan, reinterpret_cast<qint16*>(m_scratch.data()));
    const qint64 written = m_stream->write(m_scratch.constData(), m_scratch.size());
    if (written > 0)
        m_nextFrame += written / PulseStream::BytesPerFrame;
}

bool MemoryAudioPlayer::allWritten() const
{
    return m_nextFrame >= m_sound.frames();
}

} // namespace QMMultiMedia
