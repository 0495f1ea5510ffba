#include "PulseConnection.h"

#include <QCoreApplication>
#include <QFile>

#include <pulse/pulseaudio.h>

namespace QMMultiMedia {

PulseConnection& PulseConnection::instance()
{
    static auto* connection = new PulseConnection;
    return *connection;
}

PulseConnection::PulseConnection()
{
    m_mainloop = pa_threaded_mainloop_new();
    if (m_mainloop && pa_threaded_mainloop_start(m_mainloop) < 0) {
        pa_threaded_mainloop_free(m_mainloop);
        m_mainloop = nullptr;
    }
}

PulseConnection::State PulseConnection::state()
{
    if (!m_mainloop)
        return State::Down;
    closeRetired();
    if (m_context && !PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)))
        dropContext();
    if (!m_context)
        connectContext();
    if (!m_context)
        return State::Down;
    const pa_context_state_t state = pa_context_get_state(m_context);
    if (state == PA_CONTEXT_READY)
        return State::Ready;
    return PA_CONTEXT_IS_GOOD(state) ? State::Connecting : State::Down;
}

pa_context* PulseConnection::context() const
{
    return m_context && pa_context_get_state(m_context) == PA_CONTEXT_READY ? m_context : nullptr;
}

pa_stream* PulseConnection::newStream(const pa_sample_spec* format)
{
    pa_context* ready = context();
    pa_stream* stream = ready ? pa_stream_new(ready, "sample", format, nullptr) : nullptr;
    if (stream)
        ++m_streams;
    return stream;
}

bool PulseConnection::hasRoom()
{
    closeRetired();
    return m_streams < MaximumStreams;
}

void PulseConnection::retire(pa_stream* stream)
{
    m_retired.append(stream);
    closeRetired();
}

void PulseConnection::closeRetired()
{
    for (int i = m_retired.size() - 1; i >= 0; --i) {
        pa_stream* stream = m_retired.at(i);
        const pa_stream_state_t state = pa_stream_get_state(stream);
        if (state == PA_STREAM_CREATING)
            continue;
        if (state == PA_STREAM_READY)
            pa_stream_disconnect(stream);
        pa_stream_unref(stream);
        m_retired.removeAt(i);
        --m_streams;
    }
}

void PulseConnection::connectContext()
{
    const QByteArray name = QCoreApplication::applicationName().toUtf8();
    m_context
        = pa_context_new(pa_threaded_mainloop_get_api(m_mainloop), name.isEmpty() ? "QMMultiMedia" : name.constData());
    if (!m_context)
        return;
    // No autospawn: a desktop starts its server by socket activation, and a
    // spawned default server would hide the one the user runs.
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        dropContext();
}

void PulseConnection::dropContext()
{
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
    m_context = nullptr;
}

PulseConnection::Locker::Locker()
{
    if (pa_threaded_mainloop* loop = PulseConnection::instance().m_mainloop)
        pa_threaded_mainloop_lock(loop);
}

PulseConnection::Locker::~Locker()
{
    if (pa_threaded_mainloop* loop = PulseConnection::instance().m_mainloop)
        pa_threaded_mainloop_unlock(loop);
}

} // namespace QMMultiMedia
