#include "NativeAudioPlayer.h"
#include "TestSounds.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace QMMultiMedia;

// Runs a PulseAudio server of its own, stops and starts it again, and
// listens at its sink's monitor whether a sample really sounds.
class tst_SoundServerRestart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void soundComesBackWithTheServer();

private:
    bool startServer();
    void stopServer();
    bool serverAnswers() const { return QProcess::execute(m_pactl, { QStringLiteral("info") }) == 0; }
    // Plays the tone and tells whether it reached the sink.
    bool sounds();

    QTemporaryDir m_runtime;
    QString m_pulseaudio;
    QString m_pactl;
    QString m_parec;
    QString m_tone;
};

void tst_SoundServerRestart::initTestCase()
{
    m_pulseaudio = QStandardPaths::findExecutable(QStringLiteral("pulseaudio"));
    m_pactl = QStandardPaths::findExecutable(QStringLiteral("pactl"));
    m_parec = QStandardPaths::findExecutable(QStringLiteral("parec"));
    if (m_pulseaudio.isEmpty() || m_pactl.isEmpty() || m_parec.isEmpty())
        QSKIP("PulseAudio and its tools are not installed");
    QVERIFY(m_runtime.isValid());
    QVERIFY(QFile::setPermissions(
        m_runtime.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    // Nothing in this process has talked to a sound server yet.
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(m_runtime.path()) + "/pulse/native");
    m_tone = m_runtime.filePath(QStringLiteral("tone.wav"));
    QVERIFY(TestSounds::writeSineWave(m_tone, 0.4));
    QVERIFY(startServer());
}

void tst_SoundServerRestart::cleanupTestCase()
{
    stopServer();
}

bool tst_SoundServerRestart::startServer()
{
    const QStringList arguments { QStringLiteral("--daemonize=yes"), QStringLiteral("--exit-idle-time=-1"),
        QStringLiteral("--disallow-exit"), QStringLiteral("--log-level=error"), QStringLiteral("-n"),
        QStringLiteral("--load=module-null-sink sink_name=null"),
        QStringLiteral("--load=module-null-sink sink_name=keepalive"),
        QStringLiteral("--load=module-loopback source=keepalive.monitor sink=null latency_msec=20"),
        QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1") };
    if (QProcess::execute(m_pulseaudio, arguments) != 0)
        return false;
    if (!QTest::qWaitFor([this] { return serverAnswers(); }, 10000))
        return false;
    return QProcess::execute(m_pactl, { QStringLiteral("set-default-sink"), QStringLiteral("null") }) == 0;
}

void tst_SoundServerRestart::stopServer()
{
    QFile pidFile(m_runtime.filePath(QStringLiteral("pulse/pid")));
    if (!pidFile.open(QIODevice::ReadOnly))
        return;
    const QByteArray pid = pidFile.readAll().trimmed();
    QProcess::execute(QStringLiteral("kill"), { QString::fromLatin1(pid) });
    QTRY_VERIFY_WITH_TIMEOUT(!serverAnswers(), 10000);
}

bool tst_SoundServerRestart::sounds()
{
    QProcess recorder;
    QByteArray recorded;
    connect(&recorder, &QProcess::readyReadStandardOutput, this,
        [&recorder, &recorded] { recorded += recorder.readAllStandardOutput(); });
    recorder.start(m_parec,
        { QStringLiteral("-d"), QStringLiteral("null.monitor"), QStringLiteral("--format=s16le"),
            QStringLiteral("--rate=44100"), QStringLiteral("--channels=1"), QStringLiteral("--latency-msec=20") });
    if (!recorder.waitForStarted())
        return false;
    NativeAudioPlayer player;
    player.setMedia(m_tone);
    player.play();
    // The tone is at half scale; silence and the loopback's hum stay far below.
    const bool heard = QTest::qWaitFor(
        [&recorded] {
            const auto* samples = reinterpret_cast<const qint16*>(recorded.constData());
            for (int i = 0; i < recorded.size() / 2; ++i)
                if (qAbs(int(samples[i])) > 8000)
                    return true;
            return false;
        },
        5000);
    recorder.kill();
    recorder.waitForFinished();
    return heard;
}

void tst_SoundServerRestart::soundComesBackWithTheServer()
{
    QVERIFY(sounds());

    stopServer();
    // Presses while the server is away are silent and over at the next poll.
    // Eight of them keep it away for some four seconds, longer than a sound
    // library's own retry would wait.
    for (int press = 0; press < 8; ++press) {
        NativeAudioPlayer player;
        QSignalSpy finished(&player, &NativeAudioPlayer::finished);
        player.setMedia(m_tone);
        player.play();
        QVERIFY(!player.isPlaying());
        QVERIFY(finished.wait(3000));
    }

    QVERIFY(startServer());
    QVERIFY(sounds());
}

QTEST_GUILESS_MAIN(tst_SoundServerRestart)
#include "tst_SoundServerRestart.moc"
