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
