#include "NativeAudioRecorder.h"
#include "RecordingWriter.h"

#include <QAudioDeviceInfo>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <sys/resource.h>

using namespace QMMultiMedia;

// What recording costs: CPU of a real recording from the null sink's
// monitor in each codec, the writers' own CPU per second of sound, and the
// memory of a ten-minute recording fed to the writer.
class bench_recording : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void recordingCpu_data();
    void recordingCpu();
    void writerCpu_data();
    void writerCpu();
    void memoryOfTenMinutes_data();
    void memoryOfTenMinutes();

private:
    static void addCodecs();
    static MAudioFormat stereo48k(const QString& codec);
    static QVector<qint16> tone(int frames);
    static double cpuSeconds();
    static double residentKilobytes();

    QTemporaryDir m_dir;
};

void bench_recording::addCodecs()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("WAV") << "WAV"
                         << ".wav";
    QTest::newRow("AIFF") << "AIFF"
                          << ".aiff";
    QTest::newRow("CAF") << "CAF"
                         << ".caf";
    QTest::newRow("MPEG4ACC") << "MPEG4ACC"
                              << ".m4a";
}

MAudioFormat bench_recording::stereo48k(const QString& codec)
{
    MAudioFormat format;
    format.codec = codec;
    format.sampleRate = 48000;
    format.channels = 2;
    return format;
}

// Interleaved stereo, a 440 Hz sine at half scale.
QVector<qint16> bench_recording::tone(int frames)
{
    QVector<qint16> samples(frames * 2);
    for (int n = 0; n < frames; ++n)
        samples[2 * n] = samples[2 * n + 1] = static_cast<qint16>(16000 * std::sin(2.0 * M_PI * 440.0 * n / 48000));
    return samples;
}

double bench_recording::cpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double bench_recording::residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble();
    }
    return 0.0;
}

void bench_recording::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void bench_recording::recordingCpu_data()
{
    addCodecs();
}

// Three seconds of stereo 48 kHz from the monitor; CPU time over wall time.
void bench_recording::recordingCpu()
{
    QFETCH(QString, codec);
    QFETCH(QString, suffix);
    NativeAudioRecorder recorder;
    if (QAudioDeviceInfo::defaultOutputDevice().isNull()
        || !recorder.availableInputDevices().contains(QStringLiteral("null.monitor")))
        QSKIP("no sound server with a null sink");
    recorder.setFormat(stereo48k(codec));
    recorder.setInputDevice(QStringLiteral("null.monitor"));
    const double cpuBefore = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    recorder.slotStart(m_dir.filePath(QStringLiteral("cpu") + suffix));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.processedUSecs() >= 3000, 10000);
    recorder.slotStop();
    const double share = (cpuSeconds() - cpuBefore) / (wall.nsecsElapsed() / 1e9);
    qInfo("recording %s, stereo 48 kHz: %.2f %% of a core", qPrintable(codec), share * 100.0);
    QTest::setBenchmarkResult(share * 100.0, QTest::Events);
}

void bench_recording::writerCpu_data()
{
    addCodecs();
}

// The writer alone on ten seconds of sound, in the 20 ms batches of a recording.
void bench_recording::writerCpu()
{
    QFETCH(QString, codec);
    QFETCH(QString, suffix);
    const int batch = 960;
    const QVector<qint16> samples = tone(batch);
    QBENCHMARK
    {
        std::unique_ptr<RecordingWriter> writer
            = RecordingWriter::create(m_dir.filePath(QStringLiteral("writer") + suffix), stereo48k(codec));
        QVERIFY(writer);
        for (int i = 0; i < 500; ++i)
            QCOMPARE(writer->write(samples.constData(), batch), qint64(batch));
        writer->close();
    }
}

void bench_recording::memoryOfTenMinutes_data()
{
    addCodecs();
}

// Ten minutes of stereo 48 kHz in 20 ms batches: the resident set after the
// first minute and after the tenth.
void bench_recording::memoryOfTenMinutes()
{
    QFETCH(QString, codec);
    QFETCH(QString, suffix);
    const int batch = 960;
    const QVector<qint16> samples = tone(batch);
    const QString path = m_dir.filePath(QStringLiteral("ten") + suffix);
    std::unique_ptr<RecordingWriter> writer = RecordingWriter::create(path, stereo48k(codec));
    QVERIFY(writer);
    double afterOneMinute = 0.0;
    for (int i = 0; i < 10 * 3000; ++i) {
        QCOMPARE(writer->write(samples.constData(), batch), qint64(batch));
        if (i == 3000)
            afterOneMinute = residentKilobytes();
    }
    const double afterTen = residentKilobytes();
    writer->close();
    qInfo("%s: resident %.0f kB after 1 minute, %.0f kB after 10 (file %.1f MB)", qPrintable(codec), afterOneMinute,
        afterTen, QFileInfo(path).size() / 1e6);
    QFile::remove(path);
    QTest::setBenchmarkResult(afterTen - afterOneMinute, QTest::BytesAllocated);
}

QTEST_GUILESS_MAIN(bench_recording)
#include "bench_recording.moc"
