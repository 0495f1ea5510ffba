#include "NativeAudioPlayer.h"
#include "NativeAudioPlayerInternal.h"
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
    void positionFollowsTheClock();
    void stopRewindsWithoutFinished();
    void pauseHoldsAndPlayResumes();
    void setMediaWhilePlayingFinishesAtTheNextTick();
    void setPositionMovesThePlayback_data();
    void setPositionMovesThePlayback();
    void playWithPathKeepsTheFileName();

private:
    QString tone(double seconds) const;

    QTemporaryDir m_dir;
};

void tst_NativeAudioPlayer::initTestCase()
{
    QVERIFY(m_dir.isValid());
    for (double seconds : { 1.0, 3.0 })
        QVERIFY(TestSounds::writeSineWave(tone(seconds), seconds));
    QFile text(m_dir.filePath(QStringLiteral("notes.mp3")));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("these are not sounds\n");
}

QString tst_NativeAudioPlayer::tone(double seconds) const
{
    return m_dir.filePath(QStringLiteral("tone_%1ms.wav").arg(qRound(seconds * 1000)));
}

void tst_NativeAudioPlayer::unreadableFileIsQuiet_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing file") << m_dir.filePath(QStringLiteral("missing.mp3"));
    QTest::newRow("text named mp3") << m_dir.filePath(QStringLiteral("notes.mp3"));
    QTest::newRow("folder") << m_dir.path();
    QTest::newRow("empty path") << QString();
}

void tst_NativeAudioPlayer::unreadableFileIsQuiet()
{
    QFETCH(QString, path);

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    QCOMPARE(player.fileName(), path);
    player.play();
    player.setPosition(500);
    player.pause();
    player.play();
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.duration(), qint64(0));
    QCOMPARE(player.position(), qint64(0));
    QTest::qWait(700);
    QCOMPARE(finished.count(), 0);
}

void tst_NativeAudioPlayer::finishedAfterTheSound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("length");

    QTest::newRow("wave of one second") << tone(1.0) << qint64(1000);
    QTest::newRow("guitar sample") << QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_E2.mp3") << qint64(1800);
}

void tst_NativeAudioPlayer::finishedAfterTheSound()
{
    QFETCH(QString, path);
    QFETCH(qint64, length);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(path);
    QCOMPARE(player.duration(), length);

    QElapsedTimer clock;
    clock.start();
    player.play();
    QVERIFY(player.isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, int(length) + 2000);
    const qint64 elapsed = clock.elapsed();
    QVERIFY2(elapsed >= length && elapsed <= length + 600,
             qPrintable(QStringLiteral("finished after %1 ms").arg(elapsed)));

    // The player is released: nothing plays until a file is loaded again.
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.duration(), qint64(0));
    player.play();
    QVERIFY(!player.isPlaying());
    QTest::qWait(700);
    QCOMPARE(finished.count(), 1);
}

void tst_NativeAudioPlayer::positionFollowsTheClock()
{
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    auto* internal = player.findChild<NativeAudioPlayerInternal*>();
    QVERIFY(internal);
    QSignalSpy ticks(internal, &NativeAudioPlayerInternal::positionChanged);
    player.setMedia(tone(3.0));
    player.play();
    QTest::qWait(1100);
    const qint64 position = player.position();
    QVERIFY2(position >= 1000 && position <= 1400, qPrintable(QString::number(position)));
    QVERIFY(ticks.count() >= 1);
    const qint64 firstTick = ticks.first().first().toLongLong();
    QVERIFY2(firstTick >= 450 && firstTick <= 800, qPrintable(QString::number(firstTick)));
}

void tst_NativeAudioPlayer::stopRewindsWithoutFinished()
{
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(1.0));
    player.play();
    QTest::qWait(300);
    player.stop();
    QVERIFY(player.isStopped());
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.position(), qint64(0));
    QTest::qWait(1400);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(player.duration(), qint64(1000));

    // The file stays loaded: play starts it again from the top.
    QElapsedTimer clock;
    clock.start();
    player.play();
    QVERIFY(player.isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 3000);
    QVERIFY2(clock.elapsed() >= 1000 && clock.elapsed() <= 1600, qPrintable(QString::number(clock.elapsed())));
}

void tst_NativeAudioPlayer::pauseHoldsAndPlayResumes()
{
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(1.0));
    player.play();
    QTest::qWait(400);
    player.pause();
    QVERIFY(player.isPaused());
    QVERIFY(!player.isStopped());
    QVERIFY(!player.isPlaying());
    const qint64 held = player.position();
    QVERIFY2(held >= 350 && held <= 700, qPrintable(QString::number(held)));

    QTest::qWait(1300);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(player.position(), held);

    QElapsedTimer clock;
    clock.start();
    player.play();
    QVERIFY(player.isPlaying());
    QVERIFY(!player.isPaused());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 3000);
    const qint64 rest = 1000 - held;
    QVERIFY2(clock.elapsed() >= rest - 50 && clock.elapsed() <= rest + 600,
             qPrintable(QStringLiteral("rest %1 ms, finished after %2 ms").arg(rest).arg(clock.elapsed())));
}

void tst_NativeAudioPlayer::setMediaWhilePlayingFinishesAtTheNextTick()
{
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(3.0));
    player.play();
    QTest::qWait(100);
    player.setMedia(tone(1.0));
    QCOMPARE(player.duration(), qint64(1000));
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 700);
    QCOMPARE(player.duration(), qint64(0));
}

void tst_NativeAudioPlayer::setPositionMovesThePlayback_data()
{
    QTest::addColumn<qint64>("target");
    QTest::addColumn<bool>("whilePaused");

    QTest::newRow("skip ahead while playing") << qint64(2500) << false;
    QTest::newRow("skip ahead while paused") << qint64(2500) << true;
    QTest::newRow("back to the start") << qint64(0) << false;
    QTest::newRow("past the end acts as the end") << qint64(9000) << false;
}

void tst_NativeAudioPlayer::setPositionMovesThePlayback()
{
    QFETCH(qint64, target);
    QFETCH(bool, whilePaused);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    NativeAudioPlayer player;
    QSignalSpy finished(&player, &NativeAudioPlayer::finished);
    player.setMedia(tone(3.0));
    player.play();
    QTest::qWait(300);
    if (whilePaused)
        player.pause();
    player.setPosition(target);
    const qint64 expectedPosition = qMin(target, qint64(3000));
    QVERIFY(qAbs(player.position() - expectedPosition) <= 20);
    if (whilePaused)
        player.play();

    QElapsedTimer clock;
    clock.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 5000);
    const qint64 rest = 3000 - expectedPosition;
    QVERIFY2(clock.elapsed() >= rest - 50 && clock.elapsed() <= rest + 600,
             qPrintable(QStringLiteral("rest %1 ms, finished after %2 ms").arg(rest).arg(clock.elapsed())));
}

void tst_NativeAudioPlayer::playWithPathKeepsTheFileName()
{
    NativeAudioPlayer player;
    player.setMedia(tone(1.0));
    player.play(tone(3.0));
    QCOMPARE(player.fileName(), tone(1.0));
    QCOMPARE(player.duration(), qint64(3000));
    player.stop();
}

QTEST_GUILESS_MAIN(tst_NativeAudioPlayer)
#include "tst_NativeAudioPlayer.moc"
