#include "NativeAudioPlayer.h"
#include "TestSounds.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

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
    // Plays from now on and checks that finished() comes between rest and rest + 600 ms.
    static void expectFinished(NativeAudioPlayer& player, QSignalSpy& finished, qint64 rest)
    {
        QElapsedTimer clock;
        clock.start();
        player.play();
        QVERIFY(player.isPlaying());
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, int(rest) + 2000);
        QVERIFY2(clock.elapsed() >= rest - 50 && clock.elapsed() <= rest + 600,
            qPrintable(QStringLiteral("rest %1 ms, finished after %2 ms").arg(rest).arg(clock.elapsed())));
    }

    QTemporaryDir m_dir;
};

void tst_NativeAudioPlayer::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestSounds::writeSineWave(tone(1000), 1.0));
    QVERIFY(TestSounds::writeSineWave(tone(3000), 3.0));
    QFile text(m_dir.filePath(QStringLiteral("notes.mp3")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("these are not sounds\n") > 0);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");
}

void tst_NativeAudioPlayer::unreadableFileIsQuiet_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing file") << m_dir.filePath(QStringLiteral("missing.mp3"));
    QTest::newRow("text named mp3") << m_dir.filePath(QStringLiteral("notes.mp3"));
}

void tst_NativeAudioPlayer::unreadableFileIsQuiet()
{
    QFETCH(QString, path);

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    player.play();
    player.setPosition(500);
    player.pause();
    player.play();
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.duration(), qint64(0));
    QTest::qWait(700);
    QCOMPARE(finished.count(), 0);
}

void tst_NativeAudioPlayer::finishedAfterTheSound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("length");

    QTest::newRow("wave of one second") << tone(1000) << qint64(1000);
    QTest::newRow("guitar sample") << QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_E2.mp3") << qint64(1800);
}

void tst_NativeAudioPlayer::finishedAfterTheSound()
{
    QFETCH(QString, path);
    QFETCH(qint64, length);

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    QCOMPARE(player.duration(), length);
    expectFinished(player, finished, length);

    // The player is released: play() does nothing until a file is loaded again.
    QCOMPARE(player.duration(), qint64(0));
    player.play();
    QVERIFY(!player.isPlaying());
    QTest::qWait(700);
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
    QTest::qWait(400);
    pause ? player.pause() : player.stop();
    QVERIFY(!player.isPlaying() && player.isPaused() == pause && player.isStopped() == !pause);
    const qint64 held = player.position();
    QVERIFY2(pause ? held >= 350 && held <= 700 : held == 0, qPrintable(QString::number(held)));
    QTest::qWait(1300);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(player.position(), held);
    expectFinished(player, finished, 1000 - held);
}

void tst_NativeAudioPlayer::setMediaWhilePlayingFinishesAtTheNextTick()
{
    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(3000));
    player.play();
    QTest::qWait(100);
    player.setMedia(tone(1000));
    QCOMPARE(player.duration(), qint64(1000));
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 700);
    QCOMPARE(player.duration(), qint64(0));
}

QTEST_GUILESS_MAIN(tst_NativeAudioPlayer)
#include "tst_NativeAudioPlayer.moc"
