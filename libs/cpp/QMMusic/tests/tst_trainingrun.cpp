#include "DecoratedNotesWidget.h"
#include "GuitarBoard.h"
#include "GuitarTonarium.h"
#include "MMessageBox.h"
#include "NoteSpelling.h"
#include "NotesLernBar.h"
#include "NotesLernReportDialog.h"
#include "NotesLernStatistic.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using QMMusic::GuitarBoard;
using QMMusic::GuitarTonarium;
using QMMusic::NotesTrainerWidget;

using Report = QMap<QString, QPair<int, int> >;

namespace {

const QStringList s_chromatic { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };

// The key that names a note as the guitar board asks it (naturals and sharps only).
QString rightKeyFor(const QString& note, int accidental)
{
    return note.left(1) + (accidental > 0 ? QStringLiteral("#") : QString());
}

// A semitone above the right key: always a wrong answer.
QString wrongKeyFor(const QString& note, int accidental)
{
    const int right = s_chromatic.indexOf(rightKeyFor(note, accidental));
    return s_chromatic.at((right + 1) % s_chromatic.size());
}

QPushButton* buttonWithText(const QWidget* parent, const QString& text)
{
    for (QPushButton* button : parent->findChildren<QPushButton*>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

QPoint boardPointOf(const GuitarBoard* board, const QString& positionName)
{
    for (int y = 0; y < board->height(); y += 2) {
        for (int x = 0; x < board->width(); x += 2) {
            if (board->positionToNote(x, y) == positionName)
                return QPoint(x, y);
        }
    }
    return QPoint(-1, -1);
}

// The columns in which two renderings of the board differ visibly.
QList<int> changedColumns(const QImage& a, const QImage& b)
{
    QList<int> columns;
    for (int x = 0; x < qMin(a.width(), b.width()); ++x) {
        for (int y = 0; y < qMin(a.height(), b.height()); ++y) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            if (qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q)) > 60) {
                columns << x;
                break;
            }
        }
    }
    return columns;
}

// What the "Full Report" dialog lists, row by row, read while it is open.
struct ShownReport
{
    QStringList keys;
    QList<QPair<int, int> > bars;
    bool noDataText = false;
    bool opened = false;
};

ShownReport openReport(QMMusic::NotesLernStatistic* statistic)
{
    ShownReport shown;
    QTimer::singleShot(0, statistic, [&shown] {
        auto* dialog = qobject_cast<QMMusic::NotesLernReportDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        shown.opened = true;
        QLayout* rows = dialog->layout()->itemAt(0)->layout();
        for (int i = 0; rows && i < rows->count(); ++i) {
            auto* grid = qobject_cast<QGridLayout*>(rows->itemAt(i)->layout());
            for (int r = 0; grid && r < grid->rowCount(); ++r) {
                QLayoutItem* key = grid->itemAtPosition(r, 0);
                QLayoutItem* bar = grid->itemAtPosition(r, 1);
                if (!key || !bar)
                    continue;
                shown.keys << qobject_cast<QLabel*>(key->widget())->text();
                auto* lernBar = qobject_cast<QMMusic::NotesLernBar*>(bar->widget());
                shown.bars << qMakePair(lernBar->rightCount(), lernBar->wrongCount());
            }
        }
        for (QLabel* label : dialog->findChildren<QLabel*>())
            shown.noDataText |= label->text().contains(QLatin1String("No report data is available"));
        dialog->accept();
    });
    QTest::mouseClick(buttonWithText(statistic, QStringLiteral("Full Report")), Qt::LeftButton);
    return shown;
}

QStringList labelTexts(const QWidget* widget)
{
    QStringList texts;
    for (QLabel* label : widget->findChildren<QLabel*>())
        texts << label->text();
    return texts;
}

} // namespace

class tst_TrainingRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void scriptedRun_data();
    void scriptedRun();
    void boardShowsOnePlaceInARun();
};

void tst_TrainingRun::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_TrainingRun::scriptedRun_data()
{
    QTest::addColumn<QString>("answers");

    QTest::newRow("right, wrong, right") << "RWR";
    QTest::newRow("all wrong") << "WWWW";
    QTest::newRow("all right") << "RRR";
    QTest::newRow("mixed run of ten") << "RRWRWWRRRW";
}

// A whole run through the page as a user makes it: Training, Start, answers
// on the keys (right or wrong as the script says), a click on the board and
// on Find Note in the middle of it, Stop, the report, Start again.
void tst_TrainingRun::scriptedRun()
{
    QFETCH(QString, answers);

    GuitarTonarium page;
    page.resize(1100, 760);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    GuitarBoard* board = page.guitarBoard();
    NotesTrainerWidget* trainer = page.decoratedNotesWidget()->trainerWidget();
    QMMusic::NotesLernStatistic* statistic = trainer->statistic();
    QPushButton* training = buttonWithText(board, QStringLiteral("Training"));
    QPushButton* findNote = buttonWithText(board, QStringLiteral("Find Note"));
    QVERIFY(training && findNote);

    QTest::mouseClick(training, Qt::LeftButton);
    QVERIFY(trainer->isVisible());
    QPushButton* start = buttonWithText(trainer, QStringLiteral("Start"));
    QVERIFY(start);
    QSignalSpy boardNotes(board, &GuitarBoard::noteChanged);
    QTest::mouseClick(start, Qt::LeftButton);
    QVERIFY(board->isInTraining());
    QCOMPARE(boardNotes.count(), 1);
    QVERIFY(!trainer->currentNote().isEmpty());

    Report expected;
    int rights = 0;
    int wrongs = 0;
    for (const QChar answer : answers) {
        const QString note = trainer->currentNote();
        const int accidental = trainer->currentAccidental();
        // The board and the trainer agree on the note asked.
        QCOMPARE(board->currentNote(), QMMusic::NoteSpelling::stem(note, accidental));
        const bool right = answer == QLatin1Char('R');
        const QString key = right ? rightKeyFor(note, accidental) : wrongKeyFor(note, accidental);
        const int notesBefore = boardNotes.count();

        QTest::mouseClick(trainer->keyButton(key), Qt::LeftButton);

        (right ? rights : wrongs) += 1;
        expected[key].first += right ? 1 : 0;
        expected[key].second += right ? 0 : 1;
        QCOMPARE(boardNotes.count(), notesBefore + 1);
        QCOMPARE(statistic->rightCount(), rights);
        QCOMPARE(statistic->wrongCount(), wrongs);
    }
    QCOMPARE(statistic->report(), expected);
    QVERIFY(labelTexts(statistic).contains(QStringLiteral("<FONT COLOR='green'>Right:%1</FONT>").arg(rights)));
    QVERIFY(labelTexts(statistic).contains(QStringLiteral("<FONT COLOR='red'>Wrong:%1</FONT>").arg(wrongs)));

    // In a run the board takes no clicks: no note, no score.
    const QString asked = board->currentNote();
    const QPoint spot = boardPointOf(board, asked == QLatin1String("E2") ? QStringLiteral("A2") : QStringLiteral("E2"));
    QVERIFY(spot.x() >= 0);
    const int notesBeforeClick = boardNotes.count();
    QTest::mouseClick(board, Qt::LeftButton, Qt::NoModifier, spot);
    QCOMPARE(boardNotes.count(), notesBeforeClick);
    QCOMPARE(board->currentNote(), asked);
    QCOMPARE(statistic->rightCount() + statistic->wrongCount(), answers.size());

    // Find Note during the run: the message, and the switch springs back.
    QString messageTitle;
    QString messageText;
    QTimer::singleShot(0, &page, [&] {
        auto* box = page.findChild<QMWidgets::MMessageBox*>();
        if (!box)
            return;
        messageTitle = box->windowTitle();
        for (const QLabel* label : box->findChildren<QLabel*>()) {
            if (label->text().contains(QLatin1String("stop the training")))
                messageText = label->text();
        }
        box->findChildren<QPushButton*>().value(0)->click();
    });
    QTest::mouseClick(findNote, Qt::LeftButton);
    QCOMPARE(messageTitle, QStringLiteral("Info"));
    QCOMPARE(messageText, QStringLiteral("Please, stop the training to be able to do other actions."));
    QVERIFY(training->isChecked());
    QVERIFY(trainer->isVisible());
    QVERIFY(trainer->isTrainingStarted());

    // Stop: the board takes clicks again, score and report stay.
    QPushButton* stop = buttonWithText(trainer, QStringLiteral("Stop"));
    QVERIFY(stop);
    QTest::mouseClick(stop, Qt::LeftButton);
    QVERIFY(!board->isInTraining());
    QVERIFY(!trainer->keyButton(QStringLiteral("C"))->isEnabled());
    QCOMPARE(statistic->rightCount(), rights);
    QCOMPARE(statistic->wrongCount(), wrongs);

    const ShownReport report = openReport(statistic);
    QVERIFY(report.opened);
    QStringList sortedKeys = expected.keys();
    std::sort(sortedKeys.begin(), sortedKeys.end());
    QCOMPARE(report.keys, sortedKeys);
    for (int i = 0; i < report.keys.size(); ++i)
        QCOMPARE(report.bars.at(i), expected.value(report.keys.at(i)));
    QVERIFY(!report.noDataText);

    // Start again: everything from zero, the report empty.
    QTest::mouseClick(start, Qt::LeftButton);
    QVERIFY(board->isInTraining());
    QCOMPARE(statistic->rightCount(), 0);
    QCOMPARE(statistic->wrongCount(), 0);
    QVERIFY(labelTexts(statistic).contains(QStringLiteral("<FONT COLOR='green'>Right:0</FONT>")));
    const ShownReport empty = openReport(statistic);
    QVERIFY(empty.opened);
    QVERIFY(empty.keys.isEmpty());
    QVERIFY(empty.noDataText);
}

// In a run the board paints the asked note at one place only: a narrow band
// of columns, where outside a run the same note lights all its places.
void tst_TrainingRun::boardShowsOnePlaceInARun()
{
    GuitarTonarium page;
    page.resize(1100, 760);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    GuitarBoard* board = page.guitarBoard();
    NotesTrainerWidget* trainer = page.decoratedNotesWidget()->trainerWidget();
    // The bare neck, with the mode switch already showing Training.
    QTest::mouseClick(buttonWithText(board, QStringLiteral("Training")), Qt::LeftButton);
    const QImage bare = board->grab().toImage();
    QTest::mouseClick(buttonWithText(trainer, QStringLiteral("Start")), Qt::LeftButton);
    QVERIFY(board->isInTraining());
    // A3 lies on four strings, far apart along the neck.
    board->slotSetNote(QStringLiteral("A3"), 0);
    const QList<int> inRun = changedColumns(bare, board->grab().toImage());

    QTest::mouseClick(buttonWithText(trainer, QStringLiteral("Stop")), Qt::LeftButton);
    board->slotSetNote(QStringLiteral("A3"), 0);
    const QList<int> findMode = changedColumns(bare, board->grab().toImage());

    QVERIFY(!inRun.isEmpty());
    QVERIFY(!findMode.isEmpty());
    const int runSpan = inRun.last() - inRun.first();
    const int findSpan = findMode.last() - findMode.first();
    QVERIFY2(runSpan < board->width() / 8, qPrintable(QStringLiteral("run span %1").arg(runSpan)));
    QVERIFY2(findSpan > board->width() / 3, qPrintable(QStringLiteral("find span %1").arg(findSpan)));
}

QTEST_MAIN(tst_TrainingRun)
#include "tst_trainingrun.moc"
