#include "PulseStream.h"

#include "PulseConnection.h"

#include <pulse/pulseaudio.h>

namespace QMMultiMedia {

namespace {
// Buffered ahead of the speaker: short enough that pause and the end of a
// sample are prompt, long enough for a 10 ms top-up timer on a busy machine.
const int TargetMilliseconds = 80;
}

PulseStream::PulseStream(int sampleRate)
    : m_sampleRate(sampleRate)
{
    PulseConnection::Locker lock;
    tryCreate();
}

PulseStream::~PulseStream()
{
    PulseConnection::Locker lock;
    finishOperation(&m_drain);
    if (m_stream)
        PulseConnection::instance().retire(m_stream);
}

PulseStream::State PulseStream::state()
{
    PulseConnection::Locker lock;
    if (m_failed)
        return State::Failed;
    if (!m_stream && !tryCreate())
        return m_failed ? State::Failed : State::Connecting;
    const pa_stream_state_t state = pa_stream_get_state(m_stream);
    if (state == PA_STREAM_READY)
        return State::Ready;
    if (PA_STREAM_IS_GOOD(state))
        return State::Connecting;
    m_failed = true;
    return State::Failed;
}

qint64 PulseStream::writableBytes()
{
    if (state() != State::Ready)
        return 0;
    PulseConnection::Locker lock;
    const size_t bytes = pa_stream_writable_size(m_stream);
    if (bytes == static_cast<size_t>(-1))
        return 0;
    return static_cast<qint64>(bytes) / BytesPerFrame * BytesPerFrame;
}

qint64 PulseStream::write(const char* data, qint64 bytes)
{
    if (bytes <= 0 || state() != State::Ready)
        return 0;
    PulseConnection::Locker lock;
    if (pa_stream_write(m_stream, data, static_cast<size_t>(bytes), nullptr, 0, PA_SEEK_RELATIVE) < 0)
        return 0;
    return bytes;
}

void PulseStream::drain()
{
    if (state() != State::Ready || m_drain)
        return;
    PulseConnection::Locker lock;
    m_drain = pa_stream_drain(m_stream, nullptr, nullptr);
}

bool PulseStream::drained()
{
    if (state() == State::Failed)
        return true;
    PulseConnection::Locker lock;
    return m_drain && pa_operation_get_state(m_drain) != PA_OPERATION_RUNNING;
}

void PulseStream::setPaused(bool paused)
{
    m_paused = paused;
    if (state() != State::Ready)
        return;
    PulseConnection::Locker lock;
    if (pa_operation* operation = pa_stream_cork(m_stream, paused ? 1 : 0, nullptr, nullptr))
        pa_operation_unref(operation);
}

// Makes the stream once the connection is ready; false while it is not (yet).
// Called with the lock held.
bool PulseStream::tryCreate()
{
    PulseConnection& connection = PulseConnection::instance();
    const PulseConnection::State server = connection.state();
    if (server != PulseConnection::State::Ready) {
        m_failed = server == PulseConnection::State::Down;
        return false;
    }
    // Streams given up a moment ago may still live on the server: wait for
    // them to go rather than run into the server's limit of streams.
    if (!connection.hasRoom())
        return false;
    pa_context* context = connection.context();
    pa_sample_spec format;
    format.format = PA_SAMPLE_S16LE;
    format.rate = static_cast<uint32_t>(m_sampleRate);
    format.channels = 2;
    if (!pa_sample_spec_valid(&format)) {
        m_failed = true;
        return false;
    }
    m_stream = connection.newStream(&format);
    if (!m_stream) {
        m_failed = true;
        return false;
    }
    pa_buffer_attr attributes;
    attributes.maxlength = static_cast<uint32_t>(-1);
    attributes.tlength = static_cast<uint32_t>(pa_usec_to_bytes(TargetMilliseconds * 1000, &format));
    attributes.prebuf = static_cast<uint32_t>(-1);
    attributes.minreq = static_cast<uint32_t>(-1);
    attributes.fragsize = static_cast<uint32_t>(-1);
    const auto flags = static_cast<pa_stream_flags_t>(
        PA_STREAM_ADJUST_LATENCY | (m_paused ? PA_STREAM_START_CORKED : PA_STREAM_NOFLAGS));
    if (pa_stream_connect_playback(m_stream, nullptr, &attributes, flags, nullptr, nullptr) < 0) {
        connection.retire(m_stream);
        m_stream = nullptr;
        m_failed = true;
        return false;
    }
    return true;
}

void PulseStream::finishOperation(pa_operation** operation)
{
    if (!*operation)
        return;
    pa_operation_cancel(*operation);
    pa_operation_unref(*operation);
    *operation = nullptr;
}

} // namespace QMMultiMedia
