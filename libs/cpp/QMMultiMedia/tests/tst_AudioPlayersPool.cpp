#include "AudioPlayersPool.h"
#include "AudioPoolPlayer.h"
#include "NativeAudioPlayer.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

class tst_AudioPlayersPool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void onePlayerPerPlayAndEmptyAfterwards();
    void missingFileKeepsASilentPlayerWithThePoolVolume();
    void limitOfTwo_data();
    void limitOfTwo();

private:
    QString tone() const { return m_dir.filePath(QStringLiteral("tone.wav")); }
    QString missing() const { return m_dir.filePath(QStringLiteral("missing.mp3")); }

    QTemporaryDir m_dir;
};

void tst_AudioPlayersPool::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestSounds::writeSineWave(tone(), 0.6));
}

// A six-note chord: six players at once, all gone after the sound and one more poll.
void tst_AudioPlayersPool::onePlayerPerPlayAndEmptyAfterwards()
{
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    AudioPlayersPool pool(-1);
    for (int i = 0; i < 6; ++i)
        pool.play(tone());
    const QList<NativeAudioPlayer*> players = pool.players();
    QCOMPARE(QSet<NativeAudioPlayer*>(players.begin(), players.end()).size(), 6);
    for (NativeAudioPlayer* player : players)
        QVERIFY(player->isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(pool.players().isEmpty(), 2000);
}

// A missing file's player stays, silent; players take the pool's volume when made.
void tst_AudioPlayersPool::missingFileKeepsASilentPlayerWithThePoolVolume()
{
    AudioPlayersPool pool(-1);
    pool.play(missing());
    pool.setVolume(6);
    pool.play(missing());
    QTest::qWait(1200);
    QCOMPARE(pool.players().size(), 2);
    QVERIFY(!pool.players().first()->isPlaying());
    QCOMPARE(pool.players().at(0)->volume(), 0.0); // the first volume of 1 percent reads 0
    QCOMPARE(pool.players().at(1)->volume(), 5.0);

    AudioPoolPlayer::instance()->play(missing());
    QCOMPARE(AudioPoolPlayer::instance()->pool()->players().first()->volume(), 0.0);
}

void tst_AudioPlayersPool::limitOfTwo_data()
{
    QTest::addColumn<bool>("firstBusy");
    QTest::addColumn<bool>("secondBusy");
    QTest::addColumn<int>("freeIndex"); // -1: none

    QTest::newRow("both busy: nothing free") << true << true << -1;
    QTest::newRow("first idle") << false << true << 0;
    QTest::newRow("second idle") << true << false << 1;
    QTest::newRow("both idle: the last one") << false << false << 1;
}

void tst_AudioPlayersPool::limitOfTwo()
{
    QFETCH(bool, firstBusy);
    QFETCH(bool, secondBusy);
    QFETCH(int, freeIndex);
    if ((firstBusy || secondBusy) && !TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    AudioPlayersPool pool(2);
    NativeAudioPlayer* first = pool.findFreePlayer();
    NativeAudioPlayer* second = pool.findFreePlayer();
    QVERIFY(first && second && first != second);
    first->play(firstBusy ? tone() : missing());
    second->play(secondBusy ? tone() : missing());
    NativeAudioPlayer* expected = freeIndex < 0 ? nullptr : pool.players().at(freeIndex);
    QCOMPARE(pool.findFreePlayer(), expected);

    // A play makes no third player; with both busy it is dropped and neither restarts.
    QTest::qWait(200);
    pool.play(tone());
    QCOMPARE(pool.players().size(), 2);
    if (expected && TestSounds::hasAudioOutput())
        QVERIFY(expected->isPlaying());
    if (!expected)
        QVERIFY(first->position() >= 150 && second->position() >= 150);
    first->stop();
    second->stop();
}

QTEST_GUILESS_MAIN(tst_AudioPlayersPool)
#include "tst_AudioPlayersPool.moc"
