#include "NotesLernStatistic.h"

#include <QtTest>

using QMMusic::NotesLernStatistic;

using Report = QMap<QString, QPair<int, int>>;
using Additions = QList<QPair<QString, QPair<int, int>>>;

class tst_NotesLernStatistic : public QObject
{
    Q_OBJECT

private slots:
    void addToReport_data();
    void addToReport();
};

void tst_NotesLernStatistic::addToReport_data()
{
    QTest::addColumn<Additions>("additions");
    QTest::addColumn<Report>("report");

    QTest::newRow("same key adds up") << Additions { { "E", { 1, 0 } }, { "E", { 0, 1 } }, { "E", { 0, 1 } } }
                                      << Report { { "E", { 1, 2 } } };
    QTest::newRow("keys kept apart") << Additions { { "F", { 0, 1 } }, { "F#", { 1, 0 } }, { "F", { 1, 0 } } }
                                     << Report { { "F", { 1, 1 } }, { "F#", { 1, 0 } } };
    QTest::newRow("pairs larger than one")
        << Additions { { "A", { 2, 3 } }, { "A", { 4, 5 } } } << Report { { "A", { 6, 8 } } };
}

void tst_NotesLernStatistic::addToReport()
{
    QFETCH(Additions, additions);
    QFETCH(Report, report);

    NotesLernStatistic statistic;
    for (const auto& addition : additions)
        statistic.addToReport(addition.first, addition.second);
    QCOMPARE(statistic.report(), report);
    // The report is kept apart from the counts of the bar.
    QCOMPARE(statistic.rightCount(), 0);
    QCOMPARE(statistic.wrongCount(), 0);
}

QTEST_MAIN(tst_NotesLernStatistic)
#include "tst_noteslernstatistic.moc"
