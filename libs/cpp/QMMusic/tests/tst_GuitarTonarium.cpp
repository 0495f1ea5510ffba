#include "DecoratedNotesWidget.h"
#include "GuitarBoard.h"
#include "GuitarTonarium.h"
#include "MMessageBox.h"
#include "NoteSpelling.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"

#include <QLabel>
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
    QMouseEvent move(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

struct Page {
    GuitarTonarium tonarium;
    DecoratedNotesWidget* decorated = tonarium.decoratedNotesWidget();
    GuitarBoard* board = tonarium.guitarBoard();
    NotesWidget* staff = decorated->notesWidget();
    NotesTrainerWidget* trainer = decorated->trainerWidget();

    bool show()
    {
        tonarium.resize(1100, 760);
        tonarium.show();
        return QTest::qWaitForWindowExposed(&tonarium);
    }
};

} // namespace

class TestGuitarTonarium : public QObject
{
    Q_OBJECT

private slots:
    void startsInFindNote();
    void boardPressReachesStaffThenTrainer_data();
    void boardPressReachesStaffThenTrainer();
    void staffHoverLightsBoard_data();
    void staffHoverLightsBoard();
    void findNoteIsGuardedDuringRun_data();
    void findNoteIsGuardedDuringRun();
};

void TestGuitarTonarium::startsInFindNote()
{
    Page page;
    QVERIFY(page.show());

    QVERIFY(page.staff->isVisible());
    QVERIFY(!page.trainer->isVisible());
    QPushButton* findNote = buttonWithText(page.board, QStringLiteral("Find Note"));
    QVERIFY(findNote);
    QVERIFY(findNote->isChecked());
    QCOMPARE(page.decorated->objectName(), QStringLiteral("DecoratedNotesWidgetGuitar"));
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

    QTest::newRow("A2 after A2 sharp") << "A2#" << "A2" << "A2" << 0;
    QTest::newRow("A2 sharp after A2") << "A2" << "A2#" << "A2" << 1;
    QTest::newRow("F3 sharp after E4") << "E4" << "F3#" << "F3" << 1;
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
    QCOMPARE(boardSpy.at(0).at(0).toString(), name);
    QCOMPARE(boardSpy.at(0).at(1).toInt(), accidental);
    QCOMPARE(trainerNoteWhenStaffMoved, firstName);
    QCOMPARE(trainerAccidentalWhenStaffMoved, firstAccidental);
    QCOMPARE(page.trainer->currentNote(), name);
    QCOMPARE(page.trainer->currentAccidental(), accidental);
    QCOMPARE(page.staff->isSharp(), accidental > 0);

    // The staff repaints and reports the note back to the board, which takes
    // it silently: the round trip ends there.
    QTest::qWait(100);
    QCOMPARE(boardSpy.count(), 1);
    QCOMPARE(page.board->currentNote(), QMMusic::NoteSpelling::positionStem(position));
}

void TestGuitarTonarium::staffHoverLightsBoard_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stem");

    QTest::newRow("E4 on the treble staff") << "E4" << "E4";
    QTest::newRow("G3 below the treble staff") << "G3" << "G3";
    QTest::newRow("E2, the low string") << "E2" << "E2";
}

void TestGuitarTonarium::staffHoverLightsBoard()
{
    QFETCH(QString, name);
    QFETCH(QString, stem);

    Page page;
    QVERIFY(page.show());
    const QPoint spot = page.staff->nameToPos(name);
    QVERIFY2(spot.y() > 0, "note not on the staff");

    QSignalSpy boardSpy(page.board, &GuitarBoard::noteChanged);
    QSignalSpy staffSpy(page.decorated, &DecoratedNotesWidget::noteChanged);
    hover(page.staff, QPoint(page.staff->width() / 2, spot.y()));

    QTRY_COMPARE(page.board->currentNote(), stem);
    QVERIFY(staffSpy.count() >= 1);
    QCOMPARE(staffSpy.last().at(0).toString(), name);
    QTest::qWait(100);
    // The board lights the note without announcing it again.
    QCOMPARE(boardSpy.count(), 0);
    QCOMPARE(page.trainer->currentNote(), QString());
}

void TestGuitarTonarium::findNoteIsGuardedDuringRun_data()
{
    QTest::addColumn<bool>("toTraining");
    QTest::addColumn<bool>("startRun");
    QTest::addColumn<bool>("refused");

    QTest::newRow("training, run on: refused") << true << true << true;
    QTest::newRow("training, run off: back to find note") << true << false << false;
    QTest::newRow("find note again: nothing changes") << false << false << false;
}

void TestGuitarTonarium::findNoteIsGuardedDuringRun()
{
    QFETCH(bool, toTraining);
    QFETCH(bool, startRun);
    QFETCH(bool, refused);

    Page page;
    QVERIFY(page.show());
    QPushButton* findNote = buttonWithText(page.board, QStringLiteral("Find Note"));
    QPushButton* training = buttonWithText(page.board, QStringLiteral("Training"));
    QVERIFY(findNote && training);

    if (toTraining) {
        QTest::mouseClick(training, Qt::LeftButton);
        QVERIFY(page.trainer->isVisible());
        QVERIFY(!page.staff->isVisible());
    }
    if (startRun) {
        QPushButton* start = buttonWithText(page.trainer, QStringLiteral("Start"));
        QVERIFY(start);
        QTest::mouseClick(start, Qt::LeftButton);
        QVERIFY(page.decorated->isTrainingStarted());
        QVERIFY(page.board->isInTraining());
    }

    QString title;
    QString text;
    QStringList buttons;
    QTimer::singleShot(0, &page.tonarium, [&]() {
        auto* box = page.tonarium.findChild<MMessageBox*>();
        if (!box)
            return;
        title = box->windowTitle();
        for (const QLabel* label : box->findChildren<QLabel*>()) {
            if (!label->text().isEmpty())
                text = label->text();
        }
        for (QPushButton* button : box->findChildren<QPushButton*>())
            buttons.append(button->text());
        box->findChildren<QPushButton*>().value(0)->click();
    });
    QTest::mouseClick(findNote, Qt::LeftButton);
    QCoreApplication::processEvents();

    if (refused) {
        QCOMPARE(title, QStringLiteral("Info"));
        QCOMPARE(text, QStringLiteral("Please, stop the training to be able to do other actions."));
        QCOMPARE(buttons, QStringList { QStringLiteral("Ok") });
        QVERIFY(training->isChecked());
        QVERIFY(!findNote->isChecked());
        QVERIFY(page.trainer->isVisible());
        QVERIFY(!page.staff->isVisible());
        QVERIFY(page.decorated->isTrainingStarted());
    } else {
        QVERIFY(title.isEmpty());
        QVERIFY(findNote->isChecked());
        QVERIFY(page.staff->isVisible());
        QVERIFY(!page.trainer->isVisible());
    }
}

QTEST_MAIN(TestGuitarTonarium)
#include "tst_GuitarTonarium.moc"
