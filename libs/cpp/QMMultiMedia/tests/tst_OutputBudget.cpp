#include "MemoryAudioPlayer.h"
#include "OutputBudget.h"

#include <QtTest>

using namespace QMMultiMedia;

class tst_OutputBudget : public QObject
{
    Q_OBJECT

private slots:
    void admitAndRelease_data();
    void admitAndRelease();
};

void tst_OutputBudget::admitAndRelease_data()
{
    QTest::addColumn<int>("places");
    // Steps: "+n" admits player n, "-n" releases it.
    QTest::addColumn<QStringList>("steps");
    // Per step: the player that must give way, or -1 for none.
    QTest::addColumn<QList<int>>("givingWay");

    QTest::newRow("room for all") << 3 << QStringList { "+0", "+1", "+2" } << QList<int> { -1, -1, -1 };
    QTest::newRow("full: the first gives way, then the second")
        << 2 << QStringList { "+0", "+1", "+2", "+3" } << QList<int> { -1, -1, 0, 1 };
    QTest::newRow("a release makes room")
        << 2 << QStringList { "+0", "+1", "-0", "+2", "+3" } << QList<int> { -1, -1, -1, -1, 1 };
    QTest::newRow("released in the middle: order kept")
        << 3 << QStringList { "+0", "+1", "+2", "-1", "+3", "+4" } << QList<int> { -1, -1, -1, -1, -1, 0 };
    QTest::newRow("a place of none is one") << 0 << QStringList { "+0", "+1" } << QList<int> { -1, 0 };
}

void tst_OutputBudget::admitAndRelease()
{
    QFETCH(int, places);
    QFETCH(QStringList, steps);
    QFETCH(QList<int>, givingWay);

    MemoryAudioPlayer players[6];
    OutputBudget budget(places);
    for (int i = 0; i < steps.size(); ++i) {
        MemoryAudioPlayer* player = &players[steps.at(i).mid(1).toInt()];
        if (steps.at(i).startsWith(QLatin1Char('-'))) {
            budget.release(player);
            continue;
        }
        MemoryAudioPlayer* expected = givingWay.at(i) < 0 ? nullptr : &players[givingWay.at(i)];
        QCOMPARE(budget.admit(player), expected);
        QVERIFY(budget.used() <= qMax(1, places));
    }
}

QTEST_GUILESS_MAIN(tst_OutputBudget)
#include "tst_OutputBudget.moc"
