#include "DecoratedNotesWidget.h"
#include "GuitarBoard.h"
#include "GuitarTonarium.h"
#include "MMessageBox.h"
#include "NoteSpelling.h"
#include "NotesLernBar.h"
#include "NotesLernStatistic.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"

#include <QApplication>
#include <QLabel>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using QMMusic::DecoratedNotesWidget;
using QMMusic::GuitarBoard;
using QMMusic::GuitarTonarium;
using QMMusic::NotesTrainerWidget;
using QMMusic::NotesWidget;
using QMWidgets::MMessageBox;

using Report = QMap<QString, QPair<int, int>>;

namespace {

// A widget point on the board whose hit test gives the position name.
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

QPushButton* buttonWithText(const QWidget* parent, const QString& text)
{
    for (QPushButton* button : parent->findChildren<QPushButton*>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void hover(QWidget* widget, const QPoint& point)
{
    QMouseEvent move(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

struct Page
{
    GuitarTonarium tonarium;
    DecoratedNotesWidget* decorated = tonarium.decoratedNotesWidget();
    GuitarBoard* board = tonarium.guitarBoard();
    NotesWidget* staff = decorated->notesWidget();
    NotesTrainerWidget* trainer = decorated->trainerWidget();
    QPushButton* findNote = buttonWithText(board, QStringLiteral("Find Note"));
    QPushButton* training = buttonWithText(board, QStringLiteral("Training"));

    bool show()
    {
        tonarium.resize(1100, 760);
        tonarium.show();
        return QTest::qWaitForWindowExposed(&tonarium);
    }
};

// What a message box showed before its first button closed it.
struct ShownMessage
{
    QString title;
    QString text;
    QStringList buttons;
};

// Clicks the button and reads the message box the click opens, if any.
ShownMessage clickAndReadMessage(GuitarTonarium& page, QPushButton* button)
{
    ShownMessage shown;
    QTimer::singleShot(0, &page, [&] {
        auto* box = page.findChild<MMessageBox*>();
        if (!box)
            return;
        shown.title = box->windowTitle();
        for (const QLabel* label : box->findChildren<QLabel*>()) {
            if (!label->text().isEmpty())
                shown.text = label->text();
        }
        for (QPushButton* boxButton : box->findChildren<QPushButton*>())
            shown.buttons.append(boxButton->text());
        box->findChildren<QPushButton*>().value(0)->click();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    return shown;
}

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

// The counts of the bars the "Full Report" dialog shows, top to bottom,
// and whether it says that it has no data.
struct ShownReport
{
    QList<QPair<int, int>> bars;
    bool noDataText = false;
};

ShownReport openReport(QMMusic::NotesLernStatistic* statistic)
{
    ShownReport shown;
    QTimer::singleShot(0, statistic, [&shown] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        for (const QMMusic::NotesLernBar* bar : dialog->findChildren<QMMusic::NotesLernBar*>())
            shown.bars << qMakePair(bar->rightCount(), bar->wrongCount());
        for (QLabel* label : dialog->findChildren<QLabel*>())
            shown.noDataText |= label->text().contains(QLatin1String("No report data is available"));
        dialog->close();
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

class TestGuitarTonarium : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startsInFindNote();
    void boardPressReachesStaffThenTrainer_data();
    void boardPressReachesStaffThenTrainer();
    void staffHoverLightsBoard_data();
    void staffHoverLightsBoard();
    void findNoteOutsideARun_data();
    void findNoteOutsideARun();
    void scriptedRun_data();
    void scriptedRun();
};

void TestGuitarTonarium::initTestCase()
{
    // Each note of a run writes a debug line; keep the test log readable.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void TestGuitarTonarium::startsInFindNote()
{
    Page page;
    QVERIFY(page.show());

    QVERIFY(page.staff->isVisible());
    QVERIFY(!page.trainer->isVisible());
    QVERIFY(page.findNote->isChecked());
    // The side pictures are painted: not one flat colour.
    for (const char* side : { "GuitarLeftLabel", "GuitarRightLabel" }) {
        auto* label = page.tonarium.findChild<QLabel*>(QLatin1String(side));
        QVERIFY2(label && label->width() > 20, side);
        const QImage image = label->grab().toImage();
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 7)
            colours.insert(image.pixel(image.width() / 3, y));
        QVERIFY2(colours.size() > 10, side);
    }
}

void TestGuitarTonarium::boardPressReachesStaffThenTrainer_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("position");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");

    QTest::newRow("A2 after A2 sharp") << "A2#"
                                       << "A2"
                                       << "A2" << 0;
    QTest::newRow("A2 sharp after A2") << "A2"
                                       << "A2#"
                                       << "A2" << 1;
    QTest::newRow("F3 sharp after E4") << "E4"
                                       << "F3#"
                                       << "F3" << 1;
}

void TestGuitarTonarium::boardPressReachesStaffThenTrainer()
{
    QFETCH(QString, before);
    QFETCH(QString, position);
    QFETCH(QString, name);
    QFETCH(int, accidental);

    Page page;
    QVERIFY(page.show());
    const QPoint first = boardPointOf(page.board, before);
    const QPoint second = boardPointOf(page.board, position);
    QVERIFY2(first.x() >= 0 && second.x() >= 0, "note not found on the board");

    QTest::mouseClick(page.board, Qt::LeftButton, Qt::NoModifier, first);
    QCoreApplication::processEvents();
    const QString firstName = page.trainer->currentNote();
    const int firstAccidental = page.trainer->currentAccidental();

    // The staff's sign buttons switch while the staff takes the note; the
    // trainer must not have it yet at that moment.
    QString trainerNoteWhenStaffMoved;
    int trainerAccidentalWhenStaffMoved = 99;
    const QString signName = accidental > 0 ? QStringLiteral("SharpSignButton") : QStringLiteral("NaturalSignButton");
    auto* sign = page.staff->findChild<QPushButton*>(signName);
    QVERIFY(sign);
    connect(sign, &QPushButton::toggled, this, [&](bool on) {
        if (!on)
            return;
        trainerNoteWhenStaffMoved = page.trainer->currentNote();
        trainerAccidentalWhenStaffMoved = page.trainer->currentAccidental();
    });

    QSignalSpy boardSpy(page.board, &GuitarBoard::noteChanged);
    QTest::mouseClick(page.board, Qt::LeftButton, Qt::NoModifier, second);

    QCOMPARE(boardSpy.count(), 1);
    QCOMPARE(boardSpy.at(0), (QList<QVariant> { name, accidental }));
    QCOMPARE(trainerNoteWhenStaffMoved, firstName);
    QCOMPARE(trainerAccidentalWhenStaffMoved, firstAccidental);
    QCOMPARE(page.trainer->currentNote(), name);
    QCOMPARE(page.trainer->currentAccidental(), accidental);
    QCOMPARE(page.staff->isSharp(), accidental > 0);

    // The staff reports the note back to the board when it paints, and the
    // board takes it silently: the round trip ends there.
    page.staff->repaint();
    QCoreApplication::processEvents();
    QCOMPARE(boardSpy.count(), 1);
    QCOMPARE(page.board->currentNote(), QMMusic::NoteSpelling::positionStem(position));
}

void TestGuitarTonarium::staffHoverLightsBoard_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("E4 on the treble staff") << "E4";
    QTest::newRow("E2, the low string") << "E2";
}

void TestGuitarTonarium::staffHoverLightsBoard()
{
    QFETCH(QString, name);

    Page page;
    QVERIFY(page.show());
    const QPoint spot = page.staff->nameToPos(name);
    QVERIFY2(spot.y() > 0, "note not on the staff");

    QSignalSpy boardSpy(page.board, &GuitarBoard::noteChanged);
    QSignalSpy staffSpy(page.decorated, &DecoratedNotesWidget::noteChanged);
    hover(page.staff, QPoint(page.staff->width() / 2, spot.y()));

    QTRY_COMPARE(page.board->currentNote(), name);
    QVERIFY(staffSpy.count() >= 1);
    QCOMPARE(staffSpy.last().at(0).toString(), name);
    // Another paint of the staff reports the note again.
    page.staff->repaint();
    QCoreApplication::processEvents();
    // The board lights the note without announcing it again.
    QCOMPARE(boardSpy.count(), 0);
    QCOMPARE(page.trainer->currentNote(), QString());
}

void TestGuitarTonarium::findNoteOutsideARun_data()
{
    QTest::addColumn<bool>("toTraining");

    // Refused during a run: see the scripted run.
    QTest::newRow("training, run off: back to find note") << true;
    QTest::newRow("find note again: nothing changes") << false;
}

// Outside a run Find Note switches back to the staff without a message.
void TestGuitarTonarium::findNoteOutsideARun()
{
    QFETCH(bool, toTraining);

    Page page;
    QVERIFY(page.show());
    if (toTraining) {
        QTest::mouseClick(page.training, Qt::LeftButton);
        QVERIFY(page.trainer->isVisible());
        QVERIFY(!page.staff->isVisible());
    }
    const ShownMessage message = clickAndReadMessage(page.tonarium, page.findNote);
    QCoreApplication::processEvents();
    QVERIFY(message.title.isEmpty());
    QVERIFY(page.findNote->isChecked());
    QVERIFY(page.staff->isVisible());
    QVERIFY(!page.trainer->isVisible());
}

void TestGuitarTonarium::scriptedRun_data()
{
    QTest::addColumn<QString>("answers");

    QTest::newRow("all wrong") << "WWWW";
    QTest::newRow("all right") << "RRR";
    QTest::newRow("mixed run of ten") << "RRWRWWRRRW";
}

// A whole run through the page as a user makes it: Training, Start, answers
// on the keys (right or wrong as the script says), a click on the board and
// on Find Note in the middle of it, Stop, the report, Start again.
void TestGuitarTonarium::scriptedRun()
{
    QFETCH(QString, answers);

    Page page;
    QVERIFY(page.show());
    GuitarBoard* board = page.board;
    NotesTrainerWidget* trainer = page.trainer;
    QMMusic::NotesLernStatistic* statistic = trainer->statistic();

    QTest::mouseClick(page.training, Qt::LeftButton);
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
    const ShownMessage message = clickAndReadMessage(page.tonarium, page.findNote);
    QCOMPARE(message.title, QStringLiteral("Info"));
    QCOMPARE(message.text, QStringLiteral("Please, stop the training to be able to do other actions."));
    QCOMPARE(message.buttons, QStringList { QStringLiteral("Ok") });
    QVERIFY(page.training->isChecked());
    QVERIFY(!page.findNote->isChecked());
    QVERIFY(trainer->isVisible());
    QVERIFY(!page.staff->isVisible());
    QVERIFY(trainer->isTrainingStarted());

    // Stop (the same round button): the board takes clicks again, score and report stay.
    QTest::mouseClick(start, Qt::LeftButton);
    QVERIFY(!board->isInTraining());
    QVERIFY(!trainer->keyButton(QStringLiteral("C"))->isEnabled());
    QCOMPARE(statistic->rightCount(), rights);
    QCOMPARE(statistic->wrongCount(), wrongs);

    const ShownReport report = openReport(statistic);
    QCOMPARE(report.bars, expected.values());
    QVERIFY(!report.noDataText);

    // Start again: everything from zero, the report empty.
    QTest::mouseClick(start, Qt::LeftButton);
    QVERIFY(board->isInTraining());
    QCOMPARE(statistic->rightCount(), 0);
    QCOMPARE(statistic->wrongCount(), 0);
    QVERIFY(labelTexts(statistic).contains(QStringLiteral("<FONT COLOR='green'>Right:0</FONT>")));
    const ShownReport empty = openReport(statistic);
    QVERIFY(empty.bars.isEmpty());
    QVERIFY(empty.noDataText);
}

QTEST_MAIN(TestGuitarTonarium)
#include "tst_GuitarTonarium.moc"
