#include "NativeAudioPlayer.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

namespace {
int g_cannotPlayMessages = 0;
QtMessageHandler g_previousHandler = nullptr;

void countingHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("Cannot play")))
        ++g_cannotPlayMessages;
    g_previousHandler(type, context, message);
}
}

// Timing (how late finished() comes after the sound) is measured in
// bench/bench_sound; these check what happens and in which order.
class tst_NativeAudioPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void unreadableFileIsQuiet_data();
    void unreadableFileIsQuiet();
    void finishedAfterTheSound_data();
    void finishedAfterTheSound();
    void stopOrPause_data();
    void stopOrPause();
    void setMediaWhilePlayingFinishesAtTheNextTick();

private:
    QString tone(int ms) const { return m_dir.filePath(QStringLiteral("tone_%1ms.wav").arg(ms)); }
    // Lets a reference sound of `ms` play out: time for any stray signal of
    // the player under test, waited for on a signal instead of a clock.
    void letTimePass(int ms)
    {
        NativeAudioPlayer reference;
        QSignalSpy finished(&reference, &NativeAudioPlayer::finished);
        reference.setMedia(tone(ms));
        reference.play();
        QVERIFY(finished.wait(ms + 3000));
    }

    QTemporaryDir m_dir;
};

void tst_NativeAudioPlayer::initTestCase()
{
    QVERIFY(m_dir.isValid());
    for (int ms : { 700, 1000, 1300, 3000 })
        QVERIFY(TestSounds::writeSineWave(tone(ms), ms / 1000.0));
    QFile text(m_dir.filePath(QStringLiteral("notes.mp3")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("these are not sounds\n") > 0);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");
    g_previousHandler = qInstallMessageHandler(countingHandler);
}

void tst_NativeAudioPlayer::unreadableFileIsQuiet_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing file") << m_dir.filePath(QStringLiteral("missing.mp3"));
    QTest::newRow("text named mp3") << m_dir.filePath(QStringLiteral("notes.mp3"));
    QTest::newRow("directory") << m_dir.path();
}

// A failed play keeps nothing, says so once in the log and never signals.
void tst_NativeAudioPlayer::unreadableFileIsQuiet()
{
    QFETCH(QString, path);

    g_cannotPlayMessages = 0;
    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    player.play();
    player.setPosition(500);
    player.pause();
    player.play();
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.duration(), qint64(0));
    QCOMPARE(g_cannotPlayMessages, 1);
    letTimePass(700);
    QCOMPARE(finished.count(), 0);
}

void tst_NativeAudioPlayer::finishedAfterTheSound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("length");

    QTest::newRow("wave of one second") << tone(1000) << qint64(1000);
    QTest::newRow("guitar sample") << QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_E2.mp3") << qint64(2500);
}

void tst_NativeAudioPlayer::finishedAfterTheSound()
{
    QFETCH(QString, path);
    QFETCH(qint64, length);

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    QCOMPARE(player.duration(), length);
    player.play();
    QVERIFY(player.isPlaying());
    QTRY_VERIFY(player.position() > 0);
    QVERIFY(finished.wait(int(length) + 3000));
    QCOMPARE(finished.count(), 1);

    // The player is released: play() does nothing until a file is loaded again.
    QCOMPARE(player.duration(), qint64(0));
    player.play();
    QVERIFY(!player.isPlaying());
    letTimePass(700);
    QCOMPARE(finished.count(), 1);
}

void tst_NativeAudioPlayer::stopOrPause_data()
{
    QTest::addColumn<bool>("pause");

    QTest::newRow("stop rewinds, play starts from the top") << false;
    QTest::newRow("pause holds, play resumes") << true;
}

// Neither gives finished(); the file stays loaded and play goes on from the held place.
void tst_NativeAudioPlayer::stopOrPause()
{
    QFETCH(bool, pause);

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(1000));
    player.play();
    QTRY_VERIFY(player.position() >= 300);
    pause ? player.pause() : player.stop();
    QVERIFY(!player.isPlaying() && player.isPaused() == pause && player.isStopped() == !pause);
    const qint64 held = player.position();
    QVERIFY2(pause ? held >= 300 && held < 1000 : held == 0, qPrintable(QString::number(held)));
    letTimePass(1300);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(player.position(), held);
    player.play();
    QVERIFY(player.isPlaying());
    QVERIFY(finished.wait(4000));
    QCOMPARE(player.duration(), qint64(0));
}

void tst_NativeAudioPlayer::setMediaWhilePlayingFinishesAtTheNextTick()
{
    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(3000));
    player.play();
    player.setMedia(tone(1000));
    QCOMPARE(player.duration(), qint64(1000));
    QVERIFY(!player.isPlaying());
    QVERIFY(finished.wait(2000));
    QCOMPARE(player.duration(), qint64(0));
}

QTEST_GUILESS_MAIN(tst_NativeAudioPlayer)
#include "tst_NativeAudioPlayer.moc"
