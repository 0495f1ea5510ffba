#include "GuitarBoard.h"
#include "NoteSpelling.h"

#include <QSignalSpy>
#include <QtTest>

using QMMusic::GuitarBoard;
using QMMusic::NoteSpelling;

namespace {

bool isLightBlue(QRgb pixel)
{
    return qRed(pixel) < 130 && qGreen(pixel) > 160 && qBlue(pixel) > 170;
}

// The five places of E4 in design units: open string 1, fret 5 of string
// 2, fret 9 of string 3, fret 14 of string 4, fret 19 of string 5.
const QList<QPoint> kE4Places = { { 106, 78 }, { 300, 89 }, { 438, 102 }, { 587, 116 }, { 706, 133 } };

} // namespace

class TestGuitarBoard : public QObject
{
    Q_OBJECT

private slots:
    void pressNamesTheNote_data();
    void pressNamesTheNote();
    void setNoteRespellsQuietly_data();
    void setNoteRespellsQuietly();
    void nextNoteDrawsATrainingNote();
    void paintShowsPlaces_data();
    void paintShowsPlaces();

private:
    static QPoint widgetPoint(const GuitarBoard& board, const QPoint& design);
    static int litPlaces(GuitarBoard& board, const QList<QPoint>& places);
};

QPoint TestGuitarBoard::widgetPoint(const GuitarBoard& board, const QPoint& design)
{
    // The centre of the widget pixels that truncate to this design point.
    return QPoint(int((design.x() + 0.5) * board.width() / 800.0), int((design.y() + 0.5) * board.height() / 194.0));
}

int TestGuitarBoard::litPlaces(GuitarBoard& board, const QList<QPoint>& places)
{
    // A mark is a ring around its string: look for its colour near the place.
    const QImage image = board.grab().toImage();
    const int reach = qMax(2, board.width() / 100);
    int lit = 0;
    for (const QPoint& place : places) {
        const QPoint centre = widgetPoint(board, place);
        bool found = false;
        for (int dy = -reach; dy <= reach && !found; ++dy) {
            for (int dx = -reach; dx <= reach && !found; ++dx)
                found = image.rect().contains(centre + QPoint(dx, dy))
                    && isLightBlue(image.pixel(centre + QPoint(dx, dy)));
        }
        lit += found ? 1 : 0;
    }
    return lit;
}

void TestGuitarBoard::pressNamesTheNote_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("runOn");
    QTest::addColumn<QPoint>("design");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");

    // Before each press the board shows A2; a refused press leaves it there.
    QTest::newRow("open E2 at the far end") << 800 << false << QPoint(787, 149) << "E2" << 0;
    QTest::newRow("fret 2 of string 6 is a sharp") << 800 << false << QPoint(182, 136) << "F2" << 1;
    QTest::newRow("overlap of E4 and B3") << 800 << false << QPoint(100, 82) << "B3" << 0;
    QTest::newRow("fret 22 of string 1") << 800 << false << QPoint(767, 74) << "D6" << 0;
    QTest::newRow("gap right of the open E2 box") << 800 << false << QPoint(120, 132) << "" << 0;
    QTest::newRow("above the neck") << 800 << false << QPoint(400, 20) << "" << 0;
    QTest::newRow("double size, fret 2 of string 6") << 1600 << false << QPoint(182, 136) << "F2" << 1;
    QTest::newRow("double size, overlap of frets 10 and 11") << 1600 << false << QPoint(484, 140) << "D3" << 0;
    QTest::newRow("double size, fret 21 of string 2") << 1600 << false << QPoint(749, 88) << "G5" << 1;
    QTest::newRow("training run on refuses the press") << 800 << true << QPoint(104, 132) << "" << 0;
}

void TestGuitarBoard::pressNamesTheNote()
{
    QFETCH(int, width);
    QFETCH(bool, runOn);
    QFETCH(QPoint, design);
    QFETCH(QString, name);
    QFETCH(int, accidental);

    GuitarBoard board;
    board.resize(width, 600);
    board.show();
    QCOMPARE(board.height(), width * 194 / 800);
    board.slotSetNote(QStringLiteral("A2"), 0);
    // Training selected without a run still takes presses.
    board.setTrainButtonChecked();
    board.slotSetInTraining(runOn);
    QSignalSpy spy(&board, &GuitarBoard::noteChanged);
    QTest::mouseClick(&board, Qt::LeftButton, Qt::NoModifier, widgetPoint(board, design));
    QCOMPARE(spy.count(), name.isEmpty() ? 0 : 1);
    if (!name.isEmpty()) {
        QCOMPARE(spy.at(0).at(0).toString(), name);
        QCOMPARE(spy.at(0).at(1).toInt(), accidental);
    }
    QCOMPARE(board.currentNote(), name.isEmpty() ? QStringLiteral("A2") : NoteSpelling::stem(name, accidental));
}

void TestGuitarBoard::setNoteRespellsQuietly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("stem");

    QTest::newRow("E4 sharp") << "E4" << 1 << "F4";
    QTest::newRow("accidental 5") << "F2" << 5 << "Fd2";
    QTest::newRow("accidental -5") << "B3" << -5 << "Ad3";
    QTest::newRow("outside the guitar") << "C1" << 0 << "C1";
}

void TestGuitarBoard::setNoteRespellsQuietly()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, stem);

    GuitarBoard board;
    QSignalSpy spy(&board, &GuitarBoard::noteChanged);
    board.slotSetNote(name, accidental);
    QCOMPARE(board.currentNote(), stem);
    QCOMPARE(spy.count(), 0);
    // A note without a picture paints the bare neck without failing.
    QVERIFY(!board.grab().isNull());
}

void TestGuitarBoard::nextNoteDrawsATrainingNote()
{
    GuitarBoard board;
    QSignalSpy spy(&board, &GuitarBoard::noteChanged);
    for (int draw = 0; draw < 10; ++draw) {
        board.slotNextNote();
        QCOMPARE(spy.count(), draw + 1);
        const QString name = spy.last().at(0).toString();
        const int accidental = spy.last().at(1).toInt();
        const QString position = name + (accidental ? QStringLiteral("#") : QString());
        QVERIFY2(board.trainingNotes().contains(position), qPrintable(position));
        QCOMPARE(board.currentNote(), NoteSpelling::stem(name, accidental));
    }
}

void TestGuitarBoard::paintShowsPlaces_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<bool>("runOn");
    QTest::addColumn<int>("lit");

    QTest::newRow("no note: bare neck") << "" << false << 0;
    QTest::newRow("E4 lights all five places") << "E4" << false << 5;
    QTest::newRow("E4 in a run lights one place") << "E4" << true << 1;
    QTest::newRow("another note lights none of E4's") << "F4" << false << 0;
}

void TestGuitarBoard::paintShowsPlaces()
{
    QFETCH(QString, note);
    QFETCH(bool, runOn);
    QFETCH(int, lit);

    GuitarBoard board;
    board.resize(800, 600);
    board.show();
    if (!note.isEmpty())
        board.slotSetNote(note, 0);
    board.slotSetInTraining(runOn);
    // In a run each paint may pick another place; every paint shows one.
    for (int paint = 0; paint < (runOn ? 5 : 1); ++paint)
        QCOMPARE(litPlaces(board, kE4Places), lit);
}

QTEST_MAIN(TestGuitarBoard)
#include "tst_guitarboard.moc"
