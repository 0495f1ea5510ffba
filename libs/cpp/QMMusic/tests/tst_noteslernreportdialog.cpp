#include "NotesLernBar.h"
#include "NotesLernReportDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using QMMusic::NotesLernBar;
using QMMusic::NotesLernReportDialog;

using Report = QMap<QString, QPair<int, int> >;

namespace {

// One report row as the dialog shows it: key text, the bar's counts, the
// two count texts, and how many grid rows hold something.
struct Row
{
    QString key;
    int barRight = -1;
    int barWrong = -1;
    QString rightText;
    QString wrongText;
    int filledRows = 0;
    int gridRow = -1;
    int barMinimumWidth = 0;
};

QWidget* widgetAt(QGridLayout* grid, int row, int column)
{
    QLayoutItem* item = grid->itemAtPosition(row, column);
    return item ? item->widget() : nullptr;
}

QString labelText(QWidget* widget)
{
    auto* label = qobject_cast<QLabel*>(widget);
    return label ? label->text() : QString();
}

QList<Row> rowsOf(NotesLernReportDialog& dialog)
{
    QList<Row> rows;
    auto* outer = qobject_cast<QBoxLayout*>(dialog.layout());
    if (!outer || outer->count() == 0)
        return rows;
    QLayout* box = outer->itemAt(0)->layout();
    if (!box)
        return rows;
    for (int i = 0; i < box->count(); ++i) {
        auto* grid = qobject_cast<QGridLayout*>(box->itemAt(i)->layout());
        if (!grid)
            continue;
        Row row;
        for (int r = 0; r < grid->rowCount(); ++r) {
            if (!widgetAt(grid, r, 0))
                continue;
            ++row.filledRows;
            row.gridRow = r;
            row.key = labelText(widgetAt(grid, r, 0));
            if (auto* bar = qobject_cast<NotesLernBar*>(widgetAt(grid, r, 1))) {
                row.barRight = bar->rightCount();
                row.barWrong = bar->wrongCount();
                row.barMinimumWidth = bar->minimumWidth();
            }
            row.rightText = labelText(widgetAt(grid, r, 2));
            row.wrongText = labelText(widgetAt(grid, r, 3));
        }
        rows.append(row);
    }
    return rows;
}

bool showsNoDataText(NotesLernReportDialog& dialog)
{
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->text() == QLatin1String("<CENTER><H2>No report data is available</H2></CENTER>"))
            return true;
    }
    return false;
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
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QList<int> >("rights");
    QTest::addColumn<QList<int> >("wrongs");

    QTest::newRow("empty report") << Report() << QStringList() << QList<int>() << QList<int>();

    Report single;
    single.insert(QStringLiteral("E"), qMakePair(0, 3));
    QTest::newRow("a key pressed only wrongly") << single << QStringList { "E" } << QList<int> { 0 }
                                                << QList<int> { 3 };

    // Filled in a played order; shown in the string order of the keys.
    Report several;
    several.insert(QStringLiteral("G#"), qMakePair(1, 0));
    several.insert(QStringLiteral("C"), qMakePair(2, 1));
    several.insert(QStringLiteral("A#"), qMakePair(0, 2));
    several.insert(QStringLiteral("A"), qMakePair(4, 4));
    several.insert(QStringLiteral("C#"), qMakePair(1, 1));
    QTest::newRow("rows in the map's order") << several << QStringList { "A", "A#", "C", "C#", "G#" }
                                             << QList<int> { 4, 0, 2, 1, 1 } << QList<int> { 4, 2, 1, 1, 0 };

    Report all;
    const QStringList chromatic { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };
    for (int i = 0; i < chromatic.size(); ++i)
        all.insert(chromatic.at(i), qMakePair(i, 11 - i));
    QTest::newRow("all twelve keys")
        << all << QStringList { "A", "A#", "B", "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#" }
        << QList<int> { 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7, 8 } << QList<int> { 2, 1, 0, 11, 10, 9, 8, 7, 6, 5, 4, 3 };
}

void tst_NotesLernReportDialog::rows()
{
    QFETCH(Report, report);
    QFETCH(QStringList, keys);
    QFETCH(QList<int>, rights);
    QFETCH(QList<int>, wrongs);

    NotesLernReportDialog dialog(report);
    QCOMPARE(dialog.minimumWidth(), 300);
    QCOMPARE(dialog.windowTitle(), QString());

    const QList<Row> rows = rowsOf(dialog);
    QCOMPARE(rows.size(), keys.size());
    for (int i = 0; i < rows.size(); ++i) {
        const Row& row = rows.at(i);
        // Each entry has a grid of its own and sits in that grid's row n,
        // so the rows of different entries do not share columns.
        QCOMPARE(row.filledRows, 1);
        QCOMPARE(row.gridRow, i);
        QCOMPARE(row.key, keys.at(i));
        QCOMPARE(row.barRight, rights.at(i));
        QCOMPARE(row.barWrong, wrongs.at(i));
        QCOMPARE(row.barMinimumWidth, 175);
        QCOMPARE(row.rightText, QStringLiteral("<FONT COLOR='#00FF00'>%1</FONT>").arg(rights.at(i)));
        QCOMPARE(row.wrongText, QStringLiteral("<FONT COLOR='#FF0000'>%1</FONT>").arg(wrongs.at(i)));
    }
    QCOMPARE(showsNoDataText(dialog), report.isEmpty());

    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 1);
    QCOMPARE(buttons.first()->text(), QStringLiteral("&Ok"));
    QCOMPARE(buttons.first()->objectName(), QStringLiteral("PushButton"));
    // The Ok button closes the layout, below the rows and the empty-state text.
    auto* outer = qobject_cast<QBoxLayout*>(dialog.layout());
    QVERIFY(outer);
    QCOMPARE(outer->itemAt(outer->count() - 1)->widget(), buttons.first());
}

void tst_NotesLernReportDialog::okCloses()
{
    NotesLernReportDialog dialog(Report {});
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QPushButton* ok = dialog.findChild<QPushButton*>();
    QVERIFY(ok);
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(tst_NotesLernReportDialog)
#include "tst_noteslernreportdialog.moc"
