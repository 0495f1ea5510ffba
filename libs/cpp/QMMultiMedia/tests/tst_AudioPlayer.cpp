#include "AudioPlayer.h"
#include "TestSounds.h"

#include <App.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

// The whole-file player: its loop on the program's timer and the volume it
// keeps in the settings.
class tst_AudioPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void storedVolumeWinsOverStoredMuting();
    void loop_data();
    void loop();
    void fileThatDoesNotOpen_data();
    void fileThatDoesNotOpen();
    void quitSavesUnderTheProgramsName();

private:
    QTemporaryDir m_dir;
    QString m_tone;
};

void tst_AudioPlayer::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_tone = m_dir.filePath(QStringLiteral("tone.wav"));
    QVERIFY(TestSounds::writeSineWave(m_tone, 0.3));
}

// main() stored muting on and 40 percent before the player was first asked for.
void tst_AudioPlayer::storedVolumeWinsOverStoredMuting()
{
    QCOMPARE(AudioPlayer::instance()->volume(), 40.0);
    QVERIFY(!AudioPlayer::instance()->isMuted());
}

void tst_AudioPlayer::loop_data()
{
    QTest::addColumn<bool>("loop");
    QTest::newRow("once") << false;
    QTest::newRow("looped") << true;
}

// Played once the file ends; looped it is started again before its end is
// seen, over several passes, and stops only when asked.
void tst_AudioPlayer::loop()
{
    QFETCH(bool, loop);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    AudioPlayer* player = AudioPlayer::instance();
    QSignalSpy finished(player, &AudioPlayer::finished);
    player->play(m_tone, loop);
    QCOMPARE(player->duration(), qint64(300));
    QVERIFY(player->isPlaying());
    QCOMPARE(finished.wait(2000), !loop);
    if (!loop)
        return;
    QVERIFY(player->isPlaying());
    player->stop();
    QVERIFY(player->isStopped());
    QVERIFY(!finished.wait(1500));
    QVERIFY(!player->isPlaying());
}

void tst_AudioPlayer::fileThatDoesNotOpen_data()
{
    QTest::addColumn<bool>("loop");
    QTest::newRow("once: ends at once") << false;
    QTest::newRow("looped: goes on at 0 ms until stopped") << true;
}

void tst_AudioPlayer::fileThatDoesNotOpen()
{
    QFETCH(bool, loop);
    AudioPlayer* player = AudioPlayer::instance();
    QSignalSpy finished(player, &AudioPlayer::finished);
    player->play(m_dir.filePath(QStringLiteral("missing.mp3")), loop);
    QCOMPARE(player->duration(), qint64(0));
    QCOMPARE(player->remainingDuration(), qint64(0));
    QCOMPARE(finished.wait(500), !loop);
    player->stop();
}

void tst_AudioPlayer::quitSavesUnderTheProgramsName()
{
    QMWidgets::App* app = QMWidgets::App::theApp();
    AudioPlayer::instance()->setVolume(50);
    AudioPlayer::instance()->slotSetAboutToQuit();
    const QString name = QCoreApplication::applicationName();
    QCOMPARE(app->settingsValue(name + QStringLiteral("/SoundVolume")).toDouble(), 50.0);
    QCOMPARE(app->settingsValue(name + QStringLiteral("/SoundMute")).toBool(), false);
    // The keys that the next start reads keep their old values.
    QCOMPARE(app->settingsValue(QStringLiteral("/SoundVolume")).toDouble(), 40.0);
    QVERIFY(AudioPlayer::instance()->isStopped());
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME" })
        qunsetenv(name);
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("PlayerTest"));
    app.setSettingsValue(QStringLiteral("/SoundMute"), true);
    app.setSettingsValue(QStringLiteral("/SoundVolume"), 40);
    tst_AudioPlayer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AudioPlayer.moc"
