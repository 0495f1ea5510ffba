#pragma once

#include <QtGlobal>

struct pa_context;
struct pa_threaded_mainloop;

namespace QMMultiMedia {

// The program's one connection to the PulseAudio server. libpulse runs it on
// a thread of its own; every call into libpulse from the GUI thread holds
// the loop's lock (see Locker). Nothing here ever waits for the server: a
// lost connection (the server restarted, a headset switched profiles) is
// started again in the background at the next request, so that the first
// sound after the server returns is heard.
class PulseConnection
{
    Q_DISABLE_COPY(PulseConnection)

public:
    // Made on first use and kept for the life of the process: streams of
    // players that outlive main's objects may still be open at exit.
    static PulseConnection& instance();

    enum class State
    {
        Ready,
        Connecting,
        Down
    };

    // Where the connection stands; a failed or lost connection is tried
    // again at once, so that Down means "no server right now". Call with
    // the lock held.
    State state();
    // The context while the state is Ready, else null. Call with the lock held.
    pa_context* context() const;

    // Holds the loop's lock for one scope.
    class Locker
    {
        Q_DISABLE_COPY(Locker)

    public:
        Locker();
        ~Locker();
    };

private:
    PulseConnection();

    void connectContext();
    void dropContext();

    pa_threaded_mainloop* m_mainloop = nullptr;
    pa_context* m_context = nullptr;
};

} // namespace QMMultiMedia
