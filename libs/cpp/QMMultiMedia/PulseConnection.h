#pragma once

#include <QVector>

struct pa_context;
struct pa_sample_spec;
struct pa_stream;
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
    // A new playback stream of the ready context, or null; it counts against
    // MaximumStreams until retired and closed. Call with the lock held.
    pa_stream* newStream(const pa_sample_spec* format);
    // Whether another stream may be made now. Call with the lock held.
    bool hasRoom();
    // Takes over a stream that is no longer wanted. One still being made on
    // the server cannot be closed yet (it would live on there, unnoticed, up
    // to the server's limit of streams): it is closed as soon as it can be.
    // Call with the lock held.
    void retire(pa_stream* stream);

    // Holds the loop's lock for one scope.
    class Locker
    {
        Q_DISABLE_COPY(Locker)

    public:
        Locker();
        ~Locker();
    };

    // Streams on the server at once, those being closed included: well below
    // the server's limit of 256 per client, well above the players' budget.
    static constexpr int MaximumStreams = 64;

private:
    PulseConnection();

    void connectContext();
    void dropContext();
    void closeRetired();

    pa_threaded_mainloop* m_mainloop = nullptr;
    pa_context* m_context = nullptr;
    QVector<pa_stream*> m_retired;
    int m_streams = 0;
};

} // namespace QMMultiMedia
