#include "AudioPlayersPool.h"
#include "AudioPoolPlayer.h"
#include "NativeAudioPlayer.h"
#include "OutputBudget.h"
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
    void floodKeepsTheStreamsWithinTheBudget_data();
    void floodKeepsTheStreamsWithinTheBudget();

private:
    QString tone() const { return m_dir.filePath(QStringLiteral("tone.wav")); }
    QString longTone() const { return m_dir.filePath(QStringLiteral("long.wav")); }
    QString missing() const { return m_dir.filePath(QStringLiteral("missing.mp3")); }

    QTemporaryDir m_dir;
};

void tst_AudioPlayersPool::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestSounds::writeSineWave(tone(), 0.6));
    QVERIFY(TestSounds::writeSineWave(longTone(), 5.0));
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
    if (TestSounds::hasAudioOutput()) {
        // Time for any poll to find them ended, waited for on a real sample's end.
        pool.play(tone());
        QTRY_COMPARE_WITH_TIMEOUT(pool.players().size(), 2, 3000);
    }
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
    if (!expected)
        QTRY_VERIFY(first->position() >= 150 && second->position() >= 150);
    pool.play(tone());
    QCOMPARE(pool.players().size(), 2);
    if (expected && TestSounds::hasAudioOutput())
        QVERIFY(expected->isPlaying());
    if (!expected)
        QVERIFY(first->position() >= 150 && second->position() >= 150);
    first->stop();
    second->stop();
}

void tst_AudioPlayersPool::floodKeepsTheStreamsWithinTheBudget_data()
{
    QTest::addColumn<int>("presses");

    QTest::newRow("one more than the budget") << OutputBudget::SharedPlaces + 1;
    QTest::newRow("a thousand presses") << 1000;
}

// Each press still gets its own player, but no more sound at once than the
// budget holds: the oldest gives way, emits finished() and leaves the list.
// The last press sounds.
void tst_AudioPlayersPool::floodKeepsTheStreamsWithinTheBudget()
{
    QFETCH(int, presses);
    if (!TestSounds::hasAudioOutput())
        QSKIP("no audio output");

    AudioPlayersPool pool(-1);
    QList<NativeAudioPlayer*> first;
    int finished = 0;
    for (int i = 0; i < presses; ++i) {
        pool.play(longTone());
        NativeAudioPlayer* player = pool.players().last();
        connect(player, &NativeAudioPlayer::finished, this, [&finished] { ++finished; });
        if (first.size() < 2)
            first.append(player);
        QVERIFY2(pool.players().size() <= OutputBudget::SharedPlaces, qPrintable(QString::number(i)));
    }
    QCOMPARE(pool.players().size(), OutputBudget::SharedPlaces);
    QCOMPARE(finished, presses - OutputBudget::SharedPlaces);
    QCOMPARE(OutputBudget::shared().used(), OutputBudget::SharedPlaces);
    QVERIFY(!pool.players().contains(first.first()));
    QVERIFY(pool.players().last()->isPlaying());
    QTRY_VERIFY(pool.players().last()->position() > 100);
    QVERIFY(pool.players().last()->isPlaying());
    for (NativeAudioPlayer* player : pool.players())
        player->stop();
}

QTEST_GUILESS_MAIN(tst_AudioPlayersPool)
#include "tst_AudioPlayersPool.moc"
