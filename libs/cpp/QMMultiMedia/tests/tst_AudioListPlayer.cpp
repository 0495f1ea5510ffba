#include "AudioListPlayer.h"
#include "AudioPlayer.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

// The walk through a list of short files on the whole-file player.
class tst_AudioListPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void walk_data();
    void walk();
    void emptyListChangesNothing();
    void appendKeepsThePlaceAndTellsTheList();
    void brokenFilesAreSkipped();

private:
    QUrl url(const QString& name) const { return QUrl::fromLocalFile(m_dir.filePath(name)); }

    QTemporaryDir m_dir;
};

void tst_AudioListPlayer::initTestCase()
{
    QVERIFY(m_dir.isValid());
    for (const char* name : { "a.wav", "b.wav", "c.wav" })
        QVERIFY(TestSounds::writeSineWave(m_dir.filePath(QLatin1String(name)), 0.15, 440.0, 8000));
    QFile damaged(m_dir.filePath(QStringLiteral("damaged.wav")));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("RIFF\x10\0\0\0WAVEjunk") > 0);
    damaged.close();
    QFile empty(m_dir.filePath(QStringLiteral("empty.mp3")));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
}

void tst_AudioListPlayer::init()
{
    AudioPlayer::instance()->stop();
}

void tst_AudioListPlayer::walk_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QStringList>("before"); // steps taken before the spies listen
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("nexts");
    QTest::addColumn<int>("previouses");
    QTest::addColumn<int>("finishes");
    QTest::addColumn<QString>("playing");

    const QStringList abc { "a.wav", "b.wav", "c.wav" };
    QTest::newRow("next from the first") << abc << QStringList() << QStringList { "next" } << 1 << 1 << 0 << 0
                                         << "b.wav";
    QTest::newRow("next at the last changes nothing")
        << abc << QStringList { "next", "next" } << QStringList { "next" } << 2 << 0 << 0 << 0 << "c.wav";
    QTest::newRow("previous at the first changes nothing")
        << abc << QStringList() << QStringList { "previous" } << 0 << 0 << 0 << 0 << "a.wav";
    QTest::newRow("previous from the third")
        << abc << QStringList { "next", "next" } << QStringList { "previous" } << 1 << 0 << 1 << 0 << "b.wav";
    QTest::newRow("finished walks on") << abc << QStringList() << QStringList { "finished" } << 1 << 1 << 0 << 0
                                       << "b.wav";
    QTest::newRow("finished at the last ends the list and starts over")
        << abc << QStringList { "next", "next" } << QStringList { "finished" } << 0 << 0 << 0 << 1 << "c.wav";
    QTest::newRow("from the list: the current entry itself finds nothing")
        << abc << QStringList() << QStringList { "from a.wav" } << 0 << 0 << 0 << 0 << "a.wav";
    QTest::newRow("from the list: a file not in the list finds nothing")
        << abc << QStringList { "next" } << QStringList { "from other.wav" } << 1 << 0 << 0 << 0 << "b.wav";
    QTest::newRow("from the list: an entry twice ahead sounds twice, ends on the later, past the end")
        << QStringList { "a.wav", "b.wav", "c.wav", "b.wav", "c.wav" } << QStringList() << QStringList { "from b.wav" }
        << 5 << 2 << 0 << 0 << "b.wav";
    QTest::newRow("from the list: after a jump ahead the next end ends the list")
        << abc << QStringList() << QStringList { "from b.wav", "finished" } << 0 << 1 << 0 << 1 << "b.wav";
    QTest::newRow("from the list: backwards leaves the number before the first")
        << abc << QStringList { "next", "next" } << QStringList { "from a.wav" } << -1 << 0 << 1 << 0 << "a.wav";
    QTest::newRow("from the list: after a jump back the next end plays the first")
        << abc << QStringList { "next", "next" } << QStringList { "from b.wav", "finished" } << 0 << 1 << 1 << 0
        << "a.wav";
    QTest::newRow("from the list: an entry both ahead and behind is found ahead only")
        << QStringList { "b.wav", "a.wav", "b.wav" } << QStringList { "next" } << QStringList { "from b.wav" } << 3 << 1
        << 0 << 0 << "b.wav";
}

void tst_AudioListPlayer::walk()
{
    QFETCH(QStringList, list);
    QFETCH(QStringList, before);
    QFETCH(QStringList, steps);
    QFETCH(int, number);
    QFETCH(int, nexts);
    QFETCH(int, previouses);
    QFETCH(int, finishes);
    QFETCH(QString, playing);

    AudioListPlayer* player = AudioListPlayer::instance();
    QList<QUrl> urls;
    for (const QString& name : list)
        urls.append(url(name));
    player->setPlayList(urls);
    const auto run = [&](const QStringList& actions) {
        for (const QString& action : actions) {
            if (action == QLatin1String("next"))
                player->slotPlayNext();
            else if (action == QLatin1String("previous"))
                player->slotPlayPrevious();
            else if (action == QLatin1String("finished"))
                player->slotFinished();
            else
                player->slotPlayFromList(url(action.mid(5)));
        }
    };
    run(before);
    QSignalSpy next(player, &AudioListPlayer::nextTriggered);
    QSignalSpy previous(player, &AudioListPlayer::previousTriggered);
    QSignalSpy finished(player, &AudioListPlayer::finished);
    run(steps);
    QCOMPARE(player->currentNumber(), number);
    QCOMPARE(next.count(), nexts);
    QCOMPARE(previous.count(), previouses);
    QCOMPARE(finished.count(), finishes);
    QCOMPARE(QFileInfo(AudioPlayer::instance()->fileName()).fileName(), playing);
}

void tst_AudioListPlayer::emptyListChangesNothing()
{
    AudioListPlayer* player = AudioListPlayer::instance();
    player->setPlayList({ url(QStringLiteral("a.wav")), url(QStringLiteral("b.wav")) });
    player->slotPlayNext();
    QSignalSpy next(player, &AudioListPlayer::nextTriggered);
    QSignalSpy changed(player, &AudioListPlayer::listChanged);
    player->setPlayList(QList<QUrl>());
    player->appendToPlayList(QList<QUrl>());
    QCOMPARE(player->playList().size(), 2);
    QCOMPARE(player->currentNumber(), 1);
    QCOMPARE(player->currentName(), QStringLiteral("b.wav"));
    QCOMPARE(next.count() + changed.count(), 0);
}

void tst_AudioListPlayer::appendKeepsThePlaceAndTellsTheList()
{
    AudioListPlayer* player = AudioListPlayer::instance();
    player->setPlayList({ url(QStringLiteral("a.wav")) });
    QSignalSpy changed(player, &AudioListPlayer::listChanged);
    player->appendToPlayList({ url(QStringLiteral("c.wav")) });
    QCOMPARE(changed.count(), 1);
    QCOMPARE(player->currentNumber(), 0);
    player->slotPlayNext();
    QCOMPARE(player->currentIndex(), 1);
    QCOMPARE(player->currentUrl(), url(QStringLiteral("c.wav")));
}

// Files that do not open end at once and the walk goes on to the end, whether
// or not a sound server plays the others.
void tst_AudioListPlayer::brokenFilesAreSkipped()
{
    AudioListPlayer* player = AudioListPlayer::instance();
    QSignalSpy next(player, &AudioListPlayer::nextTriggered);
    QSignalSpy finished(player, &AudioListPlayer::finished);
    player->setPlayList({ url(QStringLiteral("damaged.wav")), url(QStringLiteral("a.wav")),
        url(QStringLiteral("empty.mp3")), url(QStringLiteral("missing.wav")), url(QStringLiteral("b.wav")) });
    QVERIFY(finished.wait(10000));
    QCOMPARE(next.count(), 5);
    QCOMPARE(player->currentNumber(), 0);
}

QTEST_GUILESS_MAIN(tst_AudioListPlayer)
#include "tst_AudioListPlayer.moc"
