#include "App.h"
#include "DecoratedNotesWidget.h"
#include "Label.h"
#include "MusicShopBase.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"
#include "PianoBoard.h"
#include "PianoTonarium.h"
#include "PianoTonariumMainPage.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace QMMusic;

class tst_PianoTonarium : public QObject
{
    Q_OBJECT

private slots:
    void pageIsThePianos();
    void staffHoverLightsTheKey_data();
    void staffHoverLightsTheKey();
    void keyPressReachesTheStaff();
};

// The piano's window: its names, side pictures, shop, and no training.
void tst_PianoTonarium::pageIsThePianos()
{
    PianoTonariumMainPage page;
    page.resize(1000, 700);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QCOMPARE(page.objectName(), QStringLiteral("PianoTonariumMainPage"));
    PianoTonarium* finder = page.pianoTonarium();
    QCOMPARE(finder->decoratedNotesWidget()->objectName(), QStringLiteral("DecoratedNotesWidgetPiano"));
    QVERIFY(finder->findChild<QMWidgets::Label*>(QStringLiteral("PianoLeftLabel")));
    QVERIFY(finder->findChild<QMWidgets::Label*>(QStringLiteral("PianoRightLabel")));
    QVERIFY(!QPixmap(QStringLiteral(":/pianoleft.png")).isNull());
    QVERIFY(!QPixmap(QStringLiteral(":/pianoright.png")).isNull());
    QVERIFY(!finder->decoratedNotesWidget()->trainerWidget()->isVisible());
    QVERIFY(finder->pianoBoard()->findChildren<QPushButton*>().isEmpty());
    page.addShopMenu();
    QCOMPARE(QString::fromLatin1(page.shop()->metaObject()->className()), QStringLiteral("QMMusic::PianoShop"));
}

void tst_PianoTonarium::staffHoverLightsTheKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::newRow("middle C") << "C4"
                              << "40";
    QTest::newRow("A4") << "A4"
                        << "49";
    QTest::newRow("low E on the bass staff") << "E2"
                                             << "20";
}

// Both staves of the grand staff reach the keyboard.
void tst_PianoTonarium::staffHoverLightsTheKey()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    PianoTonarium finder;
    finder.resize(1000, 600);
    finder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finder));
    NotesWidget* staff = finder.decoratedNotesWidget()->notesWidget();
    const QPoint spot = staff->nameToPos(name);
    QVERIFY2(spot.y() > 0, "note not on the staff");
    QMouseEvent move(QEvent::MouseMove, QPoint(staff->width() / 2, spot.y()),
        staff->mapToGlobal(QPoint(staff->width() / 2, spot.y())), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(staff, &move);
    QTRY_COMPARE(finder.pianoBoard()->currentNote(), key);
}

// A key pressed on the keyboard is named on the staff.
void tst_PianoTonarium::keyPressReachesTheStaff()
{
    PianoTonarium finder;
    finder.resize(1000, 600);
    finder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finder));
    PianoBoard* board = finder.pianoBoard();
    QSignalSpy spy(board, &PianoBoard::noteChanged);
    // The black key F4#, in its interval 414 to 424, above the white keys' lower part.
    QTest::mouseClick(
        board, Qt::LeftButton, Qt::NoModifier, QPoint(419 * board->width() / 800, 90 * board->height() / 194));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(board->currentNote(), QStringLiteral("46"));
    QCOMPARE(finder.decoratedNotesWidget()->trainerWidget()->currentNote(), QStringLiteral("F4"));
    QCOMPARE(finder.decoratedNotesWidget()->trainerWidget()->currentAccidental(), 1);
}

int main(int argc, char* argv[])
{
    // The menu bar asks the application object; a scratch home keeps the
    // tester's own settings untouched.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("PianoTonarium"));
    tst_PianoTonarium test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PianoTonarium.moc"
