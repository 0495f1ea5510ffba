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
    void onePlayerPerPlayAndEmptyAfterwards_data();
    void onePlayerPerPlayAndEmptyAfterwards();
    void missingFileLeavesASilentPlayer();
    void newPlayersTakeThePoolVolume_data();
    void newPlayersTakeThePoolVolume();
    void limitOfTwo_data();
    void limitOfTwo();
    void singletonStartsNearlySilent();

private:
    QString tone() const { return m_dir.filePath(QStringLiteral("tone.wav")); }

    QTemporaryDir m_dir;
};

void tst_AudioPlayersPool::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestSounds::writeSineWave(tone(), 0.6));
}

void tst_AudioPlayersPool::onePlayerPerPlayAndEmptyAfterwards_data()
{
    QTest::addColumn<int>("plays");

    QTest::newRow("one note") << 1;
    QTest::newRow("two fast clicks on one note") << 2;
    QTest::newRow("six-note chord") << 6;
}

void tst_AudioPlayersPool::onePlayerPerPlayAndEmptyAfterwards()
{
    QFETCH(int, plays);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    AudioPlayersPool pool(-1);
    for (int i = 0; i < plays; ++i)
        pool.play(tone());
    const QList<NativeAudioPlayer*> players = pool.players();
    QCOMPARE(players.size(), plays);
    QCOMPARE(QSet<NativeAudioPlayer*>(players.begin(), players.end()).size(), plays);
    for (NativeAudioPlayer* player : players)
        QVERIFY(player->isPlaying());

    // 0.6 s of sound, then up to one more poll.
    QTRY_VERIFY_WITH_TIMEOUT(pool.players().isEmpty(), 2000);
}

void tst_AudioPlayersPool::missingFileLeavesASilentPlayer()
{
    AudioPlayersPool pool(-1);
    pool.play(m_dir.filePath(QStringLiteral("missing.mp3")));
    QCOMPARE(pool.players().size(), 1);
    QTest::qWait(1200);
    QCOMPARE(pool.players().size(), 1);
    QVERIFY(!pool.players().first()->isPlaying());
}

void tst_AudioPlayersPool::newPlayersTakeThePoolVolume_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<double>("playerVolume");

    QTest::newRow("boards and staff") << 50 << 50.0;
    QTest::newRow("tuner pages") << 6 << 5.0;
}

void tst_AudioPlayersPool::newPlayersTakeThePoolVolume()
{
    QFETCH(int, volume);
    QFETCH(double, playerVolume);

    AudioPlayersPool pool(-1);
    const QString missing = m_dir.filePath(QStringLiteral("missing.mp3"));
    pool.play(missing);
    pool.setVolume(volume);
    pool.play(missing);
    QCOMPARE(pool.players().size(), 2);
    // Made before: keeps the pool's first volume of 1 percent, which reads back as 0.
    QCOMPARE(pool.players().at(0)->volume(), 0.0);
    QCOMPARE(pool.players().at(1)->volume(), playerVolume);
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
    QCOMPARE(pool.players().size(), 2);
    const QString idle = m_dir.filePath(QStringLiteral("missing.mp3"));
    first->play(firstBusy ? tone() : idle);
    second->play(secondBusy ? tone() : idle);

    NativeAudioPlayer* expected = freeIndex < 0 ? nullptr : pool.players().at(freeIndex);
    QCOMPARE(pool.findFreePlayer(), expected);

    // A play with a limit makes no new player; with both busy it is dropped
    // and neither sounding player starts again.
    QTest::qWait(200);
    pool.play(tone());
    QCOMPARE(pool.players().size(), 2);
    if (expected) {
        if (TestSounds::hasAudioOutput())
            QVERIFY(expected->isPlaying());
    } else {
        QVERIFY(first->position() >= 150);
        QVERIFY(second->position() >= 150);
    }
    first->stop();
    second->stop();
}

void tst_AudioPlayersPool::singletonStartsNearlySilent()
{
    AudioPoolPlayer* pool = AudioPoolPlayer::instance();
    QCOMPARE(AudioPoolPlayer::instance(), pool);
    pool->play(m_dir.filePath(QStringLiteral("missing.mp3")));
    QCOMPARE(pool->pool()->players().size(), 1);
    // 1 percent, which reads back as 0 and counts as muted.
    QCOMPARE(pool->pool()->players().first()->volume(), 0.0);
    QVERIFY(pool->pool()->players().first()->isMuted());
}

QTEST_GUILESS_MAIN(tst_AudioPlayersPool)
#include "tst_AudioPlayersPool.moc"
