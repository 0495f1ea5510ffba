#include "NotesLernBar.h"
#include "NotesLernReportDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using QMMusic::NotesLernBar;
using QMMusic::NotesLernReportDialog;

using Report = QMap<QString, QPair<int, int>>;

namespace {

QString textAt(QGridLayout* grid, int row, int column)
{
    QLayoutItem* item = grid->itemAtPosition(row, column);
    auto* label = item ? qobject_cast<QLabel*>(item->widget()) : nullptr;
    return label ? label->text() : QString();
}

// Each entry's grid as "grid row: key, bar counts, right text, wrong text",
// one line per grid row that holds anything.
QStringList rowsOf(NotesLernReportDialog& dialog)
{
    QStringList rows;
    QLayout* entries = dialog.layout()->itemAt(0)->layout();
    for (int i = 0; entries && i < entries->count(); ++i) {
        auto* grid = qobject_cast<QGridLayout*>(entries->itemAt(i)->layout());
        for (int r = 0; grid && r < grid->rowCount(); ++r) {
            QLayoutItem* barItem = grid->itemAtPosition(r, 1);
            auto* bar = barItem ? qobject_cast<NotesLernBar*>(barItem->widget()) : nullptr;
            if (!bar)
                continue;
            rows << QStringLiteral("%1: %2 %3/%4 %5 %6")
                        .arg(r)
                        .arg(textAt(grid, r, 0))
                        .arg(bar->rightCount())
                        .arg(bar->wrongCount())
                        .arg(textAt(grid, r, 2), textAt(grid, r, 3));
        }
        rows << QStringLiteral("-");
    }
    return rows;
}

QString row(int index, const QString& key, int right, int wrong)
{
    return QStringLiteral("%1: %2 %3/%4 <FONT COLOR='#00FF00'>%3</FONT> <FONT COLOR='#FF0000'>%4</FONT>")
        .arg(index)
        .arg(key)
        .arg(right)
        .arg(wrong);
}

} // namespace

class tst_NotesLernReportDialog : public QObject
{
    Q_OBJECT

private slots:
    void rows_data();
    void rows();
    void okCloses();
};

void tst_NotesLernReportDialog::rows_data()
{
    QTest::addColumn<Report>("report");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("empty report") << Report() << QStringList();
    // Filled in a played order; shown in the string order of the keys, each
    // entry in a grid of its own at that grid's row n.
    const Report several { { "G#", { 1, 0 } }, { "C", { 2, 1 } }, { "A#", { 0, 2 } }, { "A", { 4, 4 } } };
    QTest::newRow("rows in the map's order") << several
                                             << QStringList { row(0, "A", 4, 4), "-", row(1, "A#", 0, 2), "-",
                                                    row(2, "C", 2, 1), "-", row(3, "G#", 1, 0), "-" };
}

void tst_NotesLernReportDialog::rows()
{
    QFETCH(Report, report);
    QFETCH(QStringList, rows);

    NotesLernReportDialog dialog(report);
    QCOMPARE(rowsOf(dialog), rows);
    bool noDataText = false;
    for (QLabel* label : dialog.findChildren<QLabel*>())
        noDataText |= label->text() == QLatin1String("<CENTER><H2>No report data is available</H2></CENTER>");
    QCOMPARE(noDataText, report.isEmpty());
    // The Ok button closes the layout, below the rows and the empty-state text.
    QLayout* outer = dialog.layout();
    QCOMPARE(outer->itemAt(outer->count() - 1)->widget(), dialog.findChild<QPushButton*>());
}

void tst_NotesLernReportDialog::okCloses()
{
    NotesLernReportDialog dialog(Report {});
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(tst_NotesLernReportDialog)
#include "tst_noteslernreportdialog.moc"
