#include "NotesLernBar.h"
#include "NotesLernReportDialog.h"
#include "NotesLernStatistic.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using QMMusic::NotesLernStatistic;

using Report = QMap<QString, QPair<int, int> >;
using Additions = QList<QPair<QString, QPair<int, int> > >;

namespace {

QStringList labelTexts(const QWidget& widget)
{
    QStringList texts;
    for (QLabel* label : widget.findChildren<QLabel*>())
        texts << label->text();
    return texts;
}

} // namespace

class tst_NotesLernStatistic : public QObject
{
    Q_OBJECT

private slots:
    void labels_data();
    void labels();
    void addToReport_data();
    void addToReport();
    void resetEmptiesCountsAndReport();
    void fullReportShowsTheReport();
};

void tst_NotesLernStatistic::labels_data()
{
    QTest::addColumn<int>("rights");
    QTest::addColumn<int>("wrongs");

    QTest::newRow("fresh panel") << 0 << 0;
    QTest::newRow("one right") << 1 << 0;
    QTest::newRow("two digits") << 12 << 7;
}

void tst_NotesLernStatistic::labels()
{
    QFETCH(int, rights);
    QFETCH(int, wrongs);

    NotesLernStatistic statistic;
    for (int i = 0; i < rights; ++i)
        statistic.incRight();
    for (int i = 0; i < wrongs; ++i)
        statistic.incWrong();

    QCOMPARE(statistic.rightCount(), rights);
    QCOMPARE(statistic.wrongCount(), wrongs);
    QCOMPARE(statistic.bar()->rightCount(), rights);
    QCOMPARE(statistic.bar()->wrongCount(), wrongs);
    const QStringList texts = labelTexts(statistic);
    QVERIFY(texts.contains(QStringLiteral("<FONT COLOR='green'>Right:%1</FONT>").arg(rights)));
    QVERIFY(texts.contains(QStringLiteral("<FONT COLOR='red'>Wrong:%1</FONT>").arg(wrongs)));

    auto* button = statistic.findChild<QPushButton*>();
    QVERIFY(button);
    QCOMPARE(button->text(), QStringLiteral("Full Report"));
    QCOMPARE(button->objectName(), QStringLiteral("PushButton"));
    QCOMPARE(button->minimumHeight(), 32);
}

void tst_NotesLernStatistic::addToReport_data()
{
    QTest::addColumn<Additions>("additions");
    QTest::addColumn<Report>("report");

    QTest::newRow("nothing") << Additions() << Report();
    QTest::newRow("one right") << Additions { { "C", { 1, 0 } } } << Report { { "C", { 1, 0 } } };
    QTest::newRow("same key adds up")
        << Additions { { "E", { 1, 0 } }, { "E", { 0, 1 } }, { "E", { 0, 1 } } } << Report { { "E", { 1, 2 } } };
    QTest::newRow("keys kept apart")
        << Additions { { "F", { 0, 1 } }, { "F#", { 1, 0 } }, { "F", { 1, 0 } } }
        << Report { { "F", { 1, 1 } }, { "F#", { 1, 0 } } };
    QTest::newRow("pairs larger than one") << Additions { { "A", { 2, 3 } }, { "A", { 4, 5 } } }
                                           << Report { { "A", { 6, 8 } } };
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

void tst_NotesLernStatistic::resetEmptiesCountsAndReport()
{
    NotesLernStatistic statistic;
    statistic.incRight();
    statistic.incWrong();
    statistic.incWrong();
    statistic.addToReport(QStringLiteral("B"), qMakePair(1, 2));
    statistic.reset();

    QCOMPARE(statistic.rightCount(), 0);
    QCOMPARE(statistic.wrongCount(), 0);
    QVERIFY(statistic.report().isEmpty());
    const QStringList texts = labelTexts(statistic);
    QVERIFY(texts.contains(QStringLiteral("<FONT COLOR='green'>Right:0</FONT>")));
    QVERIFY(texts.contains(QStringLiteral("<FONT COLOR='red'>Wrong:0</FONT>")));
}

void tst_NotesLernStatistic::fullReportShowsTheReport()
{
    NotesLernStatistic statistic;
    statistic.addToReport(QStringLiteral("D"), qMakePair(2, 0));
    statistic.addToReport(QStringLiteral("C"), qMakePair(0, 1));
    statistic.show();
    QVERIFY(QTest::qWaitForWindowExposed(&statistic));

    QStringList shownKeys;
    bool modal = false;
    QObject* dialogParent = nullptr;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QMMusic::NotesLernReportDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        modal = dialog->isModal();
        dialogParent = dialog->parent();
        for (QGridLayout* grid : dialog->findChildren<QGridLayout*>()) {
            for (int r = 0; r < grid->rowCount(); ++r) {
                QLayoutItem* item = grid->itemAtPosition(r, 0);
                if (item && qobject_cast<QLabel*>(item->widget()))
                    shownKeys << static_cast<QLabel*>(item->widget())->text();
            }
        }
        dialog->accept();
    });
    QTest::mouseClick(statistic.findChild<QPushButton*>(), Qt::LeftButton);

    QVERIFY(modal);
    QCOMPARE(dialogParent, &statistic);
    shownKeys.sort();
    QCOMPARE(shownKeys, (QStringList { "C", "D" }));
}

QTEST_MAIN(tst_NotesLernStatistic)
#include "tst_noteslernstatistic.moc"
