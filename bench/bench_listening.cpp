#include "PitchListener.h"
#include "SinkSamplePlayer.h"

#include <QAudioDeviceInfo>
#include <QtTest>

#include <pulse/simple.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

using QMMultiMedia::PitchListener;

namespace {

qint64 now()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// Records the sink's monitor in blocks of 32 frames (0.7 ms) on a thread of
// its own and notes when the first loud block of a note arrives there.
class MonitorProbe
{
public:
    ~MonitorProbe()
    {
        m_running = false;
        if (m_thread.joinable())
            m_thread.join();
        if (m_stream)
            pa_simple_free(m_stream);
    }

    bool start()
    {
        const pa_sample_spec format { PA_SAMPLE_S16LE, 44100, 1 };
        pa_buffer_attr attributes {};
        attributes.maxlength = static_cast<uint32_t>(-1);
        attributes.fragsize = 32 * 2;
        int error = 0;
        m_stream = pa_simple_new(nullptr, "bench_listening", PA_STREAM_RECORD, "null.monitor", "probe", &format,
            nullptr, &attributes, &error);
        if (!m_stream)
            return false;
        m_running = true;
        m_thread = std::thread([this] { record(); });
        return true;
    }
    void arm()
    {
        m_onset = -1;
        m_armed = true;
    }
    qint64 onset() const { return m_onset; }
    qint64 lastSound() const { return m_lastSound; }

private:
    void record()
    {
        qint16 block[32];
        while (m_running) {
            int error = 0;
            if (pa_simple_read(m_stream, block, sizeof(block), &error) < 0)
                return;
            const qint64 arrived = now();
            const bool loud
                = std::any_of(std::begin(block), std::end(block), [](qint16 v) { return std::abs(v) > 64; });
            if (!loud)
                continue;
            m_lastSound = arrived;
            if (m_armed.exchange(false))
                m_onset = arrived;
        }
    }

    pa_simple* m_stream = nullptr;
    std::thread m_thread;
    std::atomic<bool> m_running { false };
    std::atomic<bool> m_armed { false };
    std::atomic<qint64> m_onset { -1 };
    std::atomic<qint64> m_lastSound { 0 };
};

// One guitar sample played from memory into the default sink.
// A guitar sample of the build played into the sink.
class SamplePlayer : public SinkSamplePlayer
{
public:
    explicit SamplePlayer(const QString& stem)
        : SinkSamplePlayer(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_%1.mp3").arg(stem))
    {
    }
};

} // namespace

// Latency of hearing: from the first sample of a note at the sink to the
// listener's notePlayed on the GUI thread.
class bench_listening : public QObject
{
    Q_OBJECT

private slots:
    void noteToDetection();
};

void bench_listening::noteToDetection()
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        QSKIP("no sound server");
    MonitorProbe probe;
    QVERIFY(probe.start());
    PitchListener listener;
    listener.setDeviceName(QStringLiteral("null.monitor"));
    qint64 detected = -1;
    connect(&listener, &PitchListener::notePlayed, this, [&detected](int, double) {
        if (detected < 0)
            detected = now();
    });
    listener.start();

    const QStringList stems { "E2", "A2", "D3", "G3", "B3", "E4", "A4", "E5", "C3", "F3", "Cd4", "D6" };
    QVector<double> latencies;
    for (const QString& stem : stems) {
        QTRY_VERIFY_WITH_TIMEOUT(now() - probe.lastSound() > 300000000LL, 5000);
        detected = -1;
        probe.arm();
        SamplePlayer player(stem);
        QTRY_VERIFY_WITH_TIMEOUT(detected >= 0 && probe.onset() >= 0, 5000);
        latencies.append((detected - probe.onset()) / 1e6);
        QTRY_VERIFY_WITH_TIMEOUT(now() - probe.lastSound() > 300000000LL, 5000);
    }
    std::sort(latencies.begin(), latencies.end());
    const double median = latencies.at(latencies.size() / 2);
    qInfo("first sample at the sink to the note heard: median %.1f ms, min %.1f, max %.1f (%d notes)", median,
        latencies.first(), latencies.last(), int(latencies.size()));
    QTest::setBenchmarkResult(median, QTest::WalltimeMilliseconds);
}

QTEST_GUILESS_MAIN(bench_listening)
#include "bench_listening.moc"
