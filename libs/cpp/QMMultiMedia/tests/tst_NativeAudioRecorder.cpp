#include "NativeAudioPlayer.h"
#include "NativeAudioRecorder.h"
#include "RecordedSound.h"
#include "TestSounds.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace QMMultiMedia;

// Records what a player sounds on the private sound server's null sink from
// its monitor, and reads each file back as another program would.
class tst_NativeAudioRecorder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void roundTrip_data();
    void roundTrip();
    void suspensionLeavesNoGapAndNoClick();
    void restartTakesTheNewFileAndFormat();
    void unwritableFolderFinishesWithoutFile_data();
    void unwritableFolderFinishesWithoutFile();
    void fullDiskKeepsWhatWasWritten_data();
    void fullDiskKeepsWhatWasWritten();
    void vanishingSourceEndsTheRecording();

private:
    static MAudioFormat format(const QString& codec, int rate, int channels);
    static QString suffix(const QString& codec);
    bool canRecord() const;

    QTemporaryDir m_dir;
    QString m_tone;
    QString m_longTone;
    const QString m_monitor = QStringLiteral("null.monitor");
};

MAudioFormat tst_NativeAudioRecorder::format(const QString& codec, int rate, int channels)
{
    MAudioFormat format;
    format.codec = codec;
    format.sampleRate = rate;
    format.channels = channels;
    return format;
}

QString tst_NativeAudioRecorder::suffix(const QString& codec)
{
    static const QMap<QString, QString> suffixes { { "WAV", ".wav" }, { "AIFF", ".aiff" }, { "CAF", ".caf" },
        { "MPEG4ACC", ".m4a" } };
    return suffixes.value(codec);
}

bool tst_NativeAudioRecorder::canRecord() const
{
    return TestSounds::hasAudioOutput() && NativeAudioRecorder().availableInputDevices().contains(m_monitor);
}

void tst_NativeAudioRecorder::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_tone = m_dir.filePath(QStringLiteral("tone.wav"));
    m_longTone = m_dir.filePath(QStringLiteral("long.wav"));
    QVERIFY(TestSounds::writeSineWave(m_tone, 0.6));
    QVERIFY(TestSounds::writeSineWave(m_longTone, 1.6));
}

void tst_NativeAudioRecorder::roundTrip_data()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");

    for (const char* codec : { "WAV", "AIFF", "CAF", "MPEG4ACC" }) {
        QTest::addRow("%s, 44.1 kHz mono", codec) << codec << 44100 << 1;
        QTest::addRow("%s, 48 kHz stereo", codec) << codec << 48000 << 2;
    }
    QTest::newRow("WAV, 22.05 kHz stereo") << "WAV" << 22050 << 2;
    QTest::newRow("MPEG4ACC, 44.1 kHz stereo") << "MPEG4ACC" << 44100 << 2;
}

// The tone comes back at its pitch in every channel, and the file is as long
// as the recorder says it recorded.
void tst_NativeAudioRecorder::roundTrip()
{
    QFETCH(QString, codec);
    QFETCH(int, rate);
    QFETCH(int, channels);
    if (!canRecord())
        QSKIP("no sound server with a null sink to record from");

    const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + suffix(codec));
    NativeAudioRecorder recorder;
    recorder.setFormat(format(codec, rate, channels));
    recorder.setInputDevice(m_monitor);
    QSignalSpy finished(&recorder, &NativeAudioRecorder::finished);
    recorder.slotStart(path);
    QVERIFY(!recorder.isStopped());
    QTRY_VERIFY(recorder.processedUSecs() > 100);

    NativeAudioPlayer player;
    player.setVolume(100);
    QSignalSpy played(&player, &NativeAudioPlayer::finished);
    player.play(m_tone);
    QVERIFY(played.wait(5000));
    recorder.slotStop();
    QCOMPARE(finished.count(), 1);
    QVERIFY(recorder.isStopped());

    const RecordedSound::Sound sound = RecordedSound::read(path);
    QCOMPARE(sound.sampleRate, rate);
    QCOMPARE(sound.channels, channels);
    // AAC in .m4a reads back with the encoder's lead-in and a padded last
    // frame: up to 2047 frames more than were recorded.
    const double slack = 50.0 + (codec == QLatin1String("MPEG4ACC") ? 2047.0 * 1000.0 / rate : 0.0);
    QVERIFY2(qAbs(sound.seconds() * 1000.0 - recorder.processedUSecs()) <= slack,
        qPrintable(
            QStringLiteral("%1 s in the file, %2 ms recorded").arg(sound.seconds()).arg(recorder.processedUSecs())));
    for (int channel = 0; channel < channels; ++channel) {
        const double frequency = RecordedSound::toneFrequency(sound, channel);
        QVERIFY2(qAbs(RecordedSound::cents(frequency, 440.0)) < 1.0,
            qPrintable(QStringLiteral("channel %1 at %2 Hz").arg(channel).arg(frequency, 0, 'f', 4)));
    }
}

// The file runs on across a suspension in the middle of a tone without a
// jump, and nothing is counted while the recording waits.
void tst_NativeAudioRecorder::suspensionLeavesNoGapAndNoClick()
{
    if (!canRecord())
        QSKIP("no sound server with a null sink to record from");

    const QString path = m_dir.filePath(QStringLiteral("suspended.wav"));
    NativeAudioRecorder recorder;
    recorder.setFormat(format(QStringLiteral("WAV"), 44100, 1));
    recorder.setInputDevice(m_monitor);
    recorder.slotStart(path);
    QTRY_VERIFY(recorder.processedUSecs() > 100);
    NativeAudioPlayer player;
    player.setVolume(100);
    QSignalSpy played(&player, &NativeAudioPlayer::finished);
    player.play(m_longTone);
    QTRY_VERIFY(player.position() > 400);

    recorder.slotSuspend();
    QVERIFY(!recorder.isStopped());
    const qint64 atSuspension = recorder.processedUSecs();
    QTRY_VERIFY(player.position() > 900);
    QCOMPARE(recorder.processedUSecs(), atSuspension);
    recorder.slotResume();
    QTRY_VERIFY(recorder.processedUSecs() > atSuspension + 300);
    recorder.slotStop();

    const RecordedSound::Sound sound = RecordedSound::read(path);
    QVERIFY(qAbs(sound.seconds() * 1000.0 - recorder.processedUSecs()) <= 50.0);
    // A 440 Hz sine at this level moves at most 0.04 from one sample to the
    // next; a cut from one phase to another jumps by up to twice its height.
    // Only the join is looked at: the server itself may jump where a stream sets in.
    float jump = 0.0f;
    qint64 at = 0;
    const int join = static_cast<int>(atSuspension * 44100 / 1000);
    for (int n = qMax(1, join - 4410); n < qMin(sound.samples.size(), join + 4410); ++n) {
        if (qAbs(sound.samples.at(n) - sound.samples.at(n - 1)) > jump) {
            jump = qAbs(sound.samples.at(n) - sound.samples.at(n - 1));
            at = n;
        }
    }
    QVERIFY2(jump < 0.06f, qPrintable(QStringLiteral("jump of %1 at %2 ms").arg(jump).arg(at * 1000 / 44100)));
}

// A second start ends the first file whole and records the next one in the
// format set in the meantime.
void tst_NativeAudioRecorder::restartTakesTheNewFileAndFormat()
{
    if (!canRecord())
        QSKIP("no sound server with a null sink to record from");

    const QString first = m_dir.filePath(QStringLiteral("first.wav"));
    const QString second = m_dir.filePath(QStringLiteral("second.wav"));
    NativeAudioRecorder recorder;
    recorder.setFormat(format(QStringLiteral("WAV"), 44100, 2));
    recorder.setInputDevice(m_monitor);
    QSignalSpy finished(&recorder, &NativeAudioRecorder::finished);
    recorder.slotStart(first);
    QTRY_VERIFY(recorder.processedUSecs() > 200);
    recorder.setFormat(format(QStringLiteral("WAV"), 22050, 1));
    recorder.slotStart(second);
    QCOMPARE(recorder.outputFileName(), second);
    QTRY_VERIFY(recorder.processedUSecs() > 200);
    recorder.slotStop();
    QCOMPARE(finished.count(), 1);

    const RecordedSound::Sound one = RecordedSound::read(first);
    const RecordedSound::Sound two = RecordedSound::read(second);
    QCOMPARE(one.sampleRate, 44100);
    QCOMPARE(one.channels, 2);
    QVERIFY(one.seconds() > 0.2);
    QCOMPARE(two.sampleRate, 22050);
    QCOMPARE(two.channels, 1);
    QVERIFY(two.seconds() > 0.2);
}

void tst_NativeAudioRecorder::unwritableFolderFinishesWithoutFile_data()
{
    QTest::addColumn<QString>("codec");
    for (const char* codec : { "WAV", "AIFF", "CAF", "MPEG4ACC" })
        QTest::newRow(codec) << codec;
}

// A folder below a plain file cannot be made by anyone, root included.
void tst_NativeAudioRecorder::unwritableFolderFinishesWithoutFile()
{
    QFETCH(QString, codec);
    QFile plain(m_dir.filePath(QStringLiteral("plain")));
    QVERIFY(plain.open(QIODevice::WriteOnly));
    plain.close();
    const QString path = plain.fileName() + QStringLiteral("/recording") + suffix(codec);

    NativeAudioRecorder recorder;
    recorder.setFormat(format(codec, 44100, 2));
    QSignalSpy finished(&recorder, &NativeAudioRecorder::finished);
    recorder.slotStart(path);
    QVERIFY(finished.wait(2000));
    QVERIFY(recorder.isStopped());
    QCOMPARE(recorder.processedUSecs(), qint64(0));
    QVERIFY(!QFileInfo::exists(path));
}

void tst_NativeAudioRecorder::fullDiskKeepsWhatWasWritten_data()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("limitBytes");

    QTest::newRow("WAV") << "WAV" << 60000;
    QTest::newRow("AIFF") << "AIFF" << 60000;
    QTest::newRow("CAF") << "CAF" << 60000;
    QTest::newRow("MPEG4ACC") << "MPEG4ACC" << 8000;
}

// A file size limit stands for a full disk: the recording of a tone ends by
// itself and the file reads back whole up to where it stopped.
void tst_NativeAudioRecorder::fullDiskKeepsWhatWasWritten()
{
    QFETCH(QString, codec);
    QFETCH(int, limitBytes);
    if (!canRecord())
        QSKIP("no sound server with a null sink to record from");

    const QString path = m_dir.filePath(QStringLiteral("full") + suffix(codec));
    NativeAudioRecorder recorder;
    recorder.setFormat(format(codec, 44100, 1));
    recorder.setInputDevice(m_monitor);
    QSignalSpy finished(&recorder, &NativeAudioRecorder::finished);

    recorder.slotStart(path);
    NativeAudioPlayer player;
    player.setVolume(100);
    player.play(m_longTone);
    // Set only now, so that the sound connections are made without it.
    rlimit saved {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
    rlimit limited = saved;
    limited.rlim_cur = static_cast<rlim_t>(limitBytes);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
    const bool ended = finished.wait(10000);
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, oldHandler);

    QVERIFY(ended);
    QVERIFY(recorder.isStopped());
    QVERIFY(QFileInfo(path).size() <= limitBytes);
    const RecordedSound::Sound sound = RecordedSound::read(path);
    QCOMPARE(sound.sampleRate, 44100);
    QVERIFY2(sound.seconds() > 0.3, qPrintable(QString::number(sound.seconds())));
    QVERIFY(sound.seconds() * 1000.0 <= recorder.processedUSecs() + 50.0);
}

// The recorded source is unloaded from the server halfway: the recording
// ends on its own with what it had.
void tst_NativeAudioRecorder::vanishingSourceEndsTheRecording()
{
    if (!canRecord() || QStandardPaths::findExecutable(QStringLiteral("pactl")).isEmpty())
        QSKIP("no sound server with a null sink to record from");

    QProcess load;
    load.start(QStringLiteral("pactl"),
        { QStringLiteral("load-module"), QStringLiteral("module-null-sink"), QStringLiteral("sink_name=vanishing") });
    QVERIFY(load.waitForFinished(5000));
    const QString module = QString::fromLatin1(load.readAllStandardOutput()).trimmed();
    QVERIFY2(!module.isEmpty(), load.readAllStandardError().constData());
    NativeAudioRecorder recorder;
    QTRY_VERIFY(recorder.availableInputDevices().contains(QStringLiteral("vanishing.monitor")));

    const QString path = m_dir.filePath(QStringLiteral("vanishing.wav"));
    recorder.setFormat(format(QStringLiteral("WAV"), 44100, 2));
    recorder.setInputDevice(QStringLiteral("vanishing.monitor"));
    QSignalSpy finished(&recorder, &NativeAudioRecorder::finished);
    recorder.slotStart(path);
    QTRY_VERIFY(recorder.processedUSecs() > 300);
    QCOMPARE(QProcess::execute(QStringLiteral("pactl"), { QStringLiteral("unload-module"), module }), 0);
    QVERIFY(finished.wait(5000));
    QVERIFY(recorder.isStopped());
    const RecordedSound::Sound sound = RecordedSound::read(path);
    QCOMPARE(sound.channels, 2);
    QVERIFY(sound.seconds() >= 0.3);
}

QTEST_GUILESS_MAIN(tst_NativeAudioRecorder)
#include "tst_NativeAudioRecorder.moc"
