// Sound path figures on the machine at hand: press-to-sound latency from the
// board's press handler to the first samples at the sink's monitor, the start
// of a six-note chord, CPU while six notes sound, memory per player, how late
// a player reports its end, and the GUI thread's time per press.
// Needs a PulseAudio server with a sink "null" (scripts/headless-sound.sh).
#include "App.h"
#include "AudioFileDecoder.h"
#include "AudioPlayersPool.h"
#include "AudioPoolPlayer.h"
#include "GuitarBoard.h"
#include "NativeAudioPlayer.h"
#include "OutputBudget.h"

#include <QAudioDeviceInfo>
#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

#include <malloc.h>
#include <pulse/simple.h>
#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

using namespace QMMultiMedia;

namespace {

// Records the sink's monitor on a thread of its own in blocks of 32 frames
// (0.7 ms) and notes the time at which the first loud block arrives.
class MonitorProbe
{
public:
    ~MonitorProbe() { stop(); }

    void stop()
    {
        m_running = false;
        if (m_thread.joinable())
            m_thread.join();
        if (m_stream)
            pa_simple_free(m_stream);
        m_stream = nullptr;
    }

    bool start()
    {
        const pa_sample_spec format { PA_SAMPLE_S16LE, 44100, 1 };
        pa_buffer_attr attributes {};
        attributes.maxlength = static_cast<uint32_t>(-1);
        attributes.fragsize = BlockFrames * 2;
        int error = 0;
        m_stream = pa_simple_new(
            nullptr, "bench_sound", PA_STREAM_RECORD, "null.monitor", "probe", &format, nullptr, &attributes, &error);
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
    bool heard() const { return m_onset >= 0; }
    qint64 onset() const { return m_onset; }
    qint64 lastSound() const { return m_lastSound; }

    static qint64 now()
    {
        return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    }

private:
    static const int BlockFrames = 32;

    void record()
    {
        qint16 block[BlockFrames];
        while (m_running) {
            int error = 0;
            if (pa_simple_read(m_stream, block, sizeof(block), &error) < 0)
                return;
            const qint64 arrived = now();
            bool loud = false;
            for (qint16 value : block)
                loud = loud || std::abs(value) > 64;
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

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0.0 : values.at(values.size() / 2);
}

double cpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double threadCpuMilliseconds()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

qint64 residentBytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toLongLong() * sysconf(_SC_PAGESIZE) : 0;
}

// Bytes the allocator has handed out, heap and mapped blocks together.
qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

QString sample(const QString& stem)
{
    return QMWidgets::App::theApp()->bundleResourcePath() + QStringLiteral("guitar_440_") + stem
        + QStringLiteral(".mp3");
}

} // namespace

class bench_sound : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pressToSound();
    void chordStart();
    void cpuWhileSixNotesSound();
    void memoryPerPlayer();
    void finishedAfterTheSample();
    void guiThreadPerPress();

private:
    void waitForSilence();

    MonitorProbe m_probe;
};

void bench_sound::initTestCase()
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        QSKIP("no audio output");
    if (!m_probe.start())
        QSKIP("no monitor source null.monitor to record");
    QTest::qWait(500);
}

void bench_sound::waitForSilence()
{
    QTest::qWait(300);
    QTRY_VERIFY_WITH_TIMEOUT(MonitorProbe::now() - m_probe.lastSound() > 300000000LL, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(AudioPoolPlayer::instance()->pool()->players().isEmpty(), 3000);
}

void bench_sound::pressToSound()
{
    QMMusic::GuitarBoard board;
    board.resize(800, 194);
    QVector<QPoint> hits;
    for (int y = 5; y < 194; y += 8) {
        for (int x = 5; x < 800; x += 40) {
            if (!board.positionToNote(x, y).isEmpty()) {
                hits.append(QPoint(x, y));
                break;
            }
        }
    }
    QVERIFY(!hits.isEmpty());

    QVector<double> latencies;
    const int trials = 12;
    for (int trial = 0; trial < trials; ++trial) {
        waitForSilence();
        m_probe.arm();
        const QPoint point = hits.at(trial % hits.size());
        const qint64 pressed = MonitorProbe::now();
        QTest::mousePress(&board, Qt::LeftButton, {}, point);
        QTRY_VERIFY_WITH_TIMEOUT(m_probe.heard(), 3000);
        latencies.append((m_probe.onset() - pressed) / 1e6);
        QTest::mouseRelease(&board, Qt::LeftButton, {}, point);
    }
    std::sort(latencies.begin(), latencies.end());
    qInfo("press to sound at the monitor: median %.2f ms, min %.2f, max %.2f (%d presses)", median(latencies),
        latencies.first(), latencies.last(), trials);
    QTest::setBenchmarkResult(median(latencies), QTest::WalltimeMilliseconds);
}

void bench_sound::chordStart()
{
    const QStringList chord { QStringLiteral("E2"), QStringLiteral("A2"), QStringLiteral("D3"), QStringLiteral("G3"),
        QStringLiteral("B3"), QStringLiteral("E4") };
    AudioPoolPlayer::instance()->setVolume(50);
    QVector<double> calls;
    QVector<double> firstSound;
    for (int trial = 0; trial < 8; ++trial) {
        waitForSilence();
        m_probe.arm();
        const qint64 start = MonitorProbe::now();
        for (const QString& stem : chord)
            AudioPoolPlayer::instance()->play(sample(stem));
        calls.append((MonitorProbe::now() - start) / 1e6);
        QTRY_VERIFY_WITH_TIMEOUT(m_probe.heard(), 3000);
        firstSound.append((m_probe.onset() - start) / 1e6);
        QCOMPARE(AudioPoolPlayer::instance()->pool()->players().size(), 6);
    }
    std::sort(calls.begin(), calls.end());
    qInfo("six-note chord: the six play calls take median %.2f ms (max %.2f), so the last voice starts"
          " at most that much after the first; first sound at the monitor after median %.2f ms",
        median(calls), calls.last(), median(firstSound));
    QTest::setBenchmarkResult(median(calls), QTest::WalltimeMilliseconds);
}

void bench_sound::cpuWhileSixNotesSound()
{
    // The recorder's own thread would count too: it rests while CPU is measured.
    waitForSilence();
    m_probe.stop();
    QElapsedTimer wall;
    const double idleStart = cpuSeconds();
    wall.start();
    QTest::qWait(1500);
    const double idle = (cpuSeconds() - idleStart) / (wall.nsecsElapsed() / 1e9);

    const QStringList chord { QStringLiteral("E2"), QStringLiteral("A2"), QStringLiteral("D3"), QStringLiteral("G3"),
        QStringLiteral("B3"), QStringLiteral("E4") };
    const double busyStart = cpuSeconds();
    wall.restart();
    for (const QString& stem : chord)
        AudioPoolPlayer::instance()->play(sample(stem));
    QTest::qWait(1500);
    const double busy = (cpuSeconds() - busyStart) / (wall.nsecsElapsed() / 1e9);
    QVERIFY(m_probe.start());
    qInfo("CPU while six notes sound: %.1f %% of a core (decoding and start included), %.1f %% when idle", busy * 100.0,
        idle * 100.0);
    QTest::setBenchmarkResult(busy * 100.0, QTest::Events);
}

void bench_sound::memoryPerPlayer()
{
    waitForSilence();
    // As many as may sound at once: a further one would end the oldest.
    const int players = OutputBudget::SharedPlaces;
    AudioPlayersPool pool(-1);
    pool.setVolume(1);
    const qint64 residentBefore = residentBytes();
    const qint64 heapBefore = heapInUse();
    for (int i = 0; i < players; ++i)
        pool.play(sample(QStringLiteral("E2")));
    QTest::qWait(200);
    const qint64 residentAfter = residentBytes();
    const qint64 heapAfter = heapInUse();
    QCOMPARE(pool.players().size(), players);
    const double perPlayer = double(heapAfter - heapBefore) / players;
    qInfo("memory per sounding player: %.0f kB of heap in use, resident set grew %.0f kB a player"
          " (%d players of a 2.5 s sample)",
        perPlayer / 1024.0, double(residentAfter - residentBefore) / players / 1024.0, players);
    QTest::setBenchmarkResult(perPlayer, QTest::BytesAllocated);
    QTRY_VERIFY_WITH_TIMEOUT(pool.players().isEmpty(), 4000);
}

void bench_sound::finishedAfterTheSample()
{
    const QString path = sample(QStringLiteral("A4"));
    DecodedSound sound;
    QVERIFY(AudioFileDecoder::decode(path, &sound));
    const double length = 1e3 * sound.samples.size() / sound.channels / sound.sampleRate;
    QVector<double> lateness;
    for (int trial = 0; trial < 6; ++trial) {
        waitForSilence();
        NativeAudioPlayer player;
        QSignalSpy finished(&player, &NativeAudioPlayer::finished);
        QElapsedTimer clock;
        clock.start();
        player.play(path);
        QVERIFY(finished.wait(int(length) + 3000));
        lateness.append(clock.nsecsElapsed() / 1e6 - length);
    }
    std::sort(lateness.begin(), lateness.end());
    qInfo("finished() after the end of a %.0f ms sample: median %.1f ms late, min %.1f, max %.1f", length,
        median(lateness), lateness.first(), lateness.last());
    QTest::setBenchmarkResult(median(lateness), QTest::WalltimeMilliseconds);
}

void bench_sound::guiThreadPerPress()
{
    QMMusic::GuitarBoard board;
    board.resize(800, 194);
    QPoint hit;
    for (int x = 5; x < 800 && hit.isNull(); x += 20) {
        if (!board.positionToNote(x, 97).isEmpty())
            hit = QPoint(x, 97);
    }
    QVERIFY(!hit.isNull());
    QVector<double> busy;
    for (int trial = 0; trial < 40; ++trial) {
        const double start = threadCpuMilliseconds();
        QTest::mousePress(&board, Qt::LeftButton, {}, hit);
        busy.append(threadCpuMilliseconds() - start);
        QTest::mouseRelease(&board, Qt::LeftButton, {}, hit);
        if (trial % 20 == 19)
            waitForSilence();
    }
    // What each press cost while every play decoded its file.
    DecodedSound sound;
    const double decodeStart = threadCpuMilliseconds();
    QVERIFY(AudioFileDecoder::decode(sample(QStringLiteral("E2")), &sound));
    const double decoding = threadCpuMilliseconds() - decodeStart;
    std::sort(busy.begin(), busy.end());
    qInfo("GUI thread CPU per press: median %.2f ms, max %.2f (%d presses); decoding a sample costs %.2f ms",
        median(busy), busy.last(), int(busy.size()), decoding);
    QTest::setBenchmarkResult(median(busy), QTest::WalltimeMilliseconds);
}

int main(int argc, char** argv)
{
    QMWidgets::App app(argc, argv, QStringLiteral("Bench"), QStringLiteral("GuitarTonariumBench"));
    // The application object silences the log; the figures go to the terminal.
    qInstallMessageHandler(nullptr);
    bench_sound bench;
    return QTest::qExec(&bench, argc, argv);
}

#include "bench_sound.moc"
