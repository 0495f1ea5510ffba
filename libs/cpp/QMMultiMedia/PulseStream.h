#pragma once

#include <QtGlobal>

struct pa_operation;
struct pa_stream;

namespace QMMultiMedia {

// One playback stream of 16-bit stereo on the default sink, fed by pushing.
// Every call returns at once: the stream is made as soon as the server's
// connection is ready and reports failure when the server refuses it or
// goes away, so that a player never waits for the sound server.
class PulseStream
{
    Q_DISABLE_COPY(PulseStream)

public:
    explicit PulseStream(int sampleRate);
    ~PulseStream();

    enum class State
    {
        Connecting,
        Ready,
        Failed
    };
    State state();

    // Bytes the stream takes now without blocking; 0 unless Ready.
    qint64 writableBytes();
    // Copies the bytes into the stream; returns how many were taken.
    qint64 write(const char* data, qint64 bytes);
    // After the last write: plays what is buffered; drained() tells when all was heard.
    void drain();
    bool drained();
    void setPaused(bool paused);

    static constexpr int BytesPerFrame = 4;

private:
    bool tryCreate();
    void finishOperation(pa_operation** operation);

    int m_sampleRate = 0;
    pa_stream* m_stream = nullptr;
    pa_operation* m_drain = nullptr;
    bool m_failed = false;
    bool m_paused = false;
};

} // namespace QMMultiMedia
