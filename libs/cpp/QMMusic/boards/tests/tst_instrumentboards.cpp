#include "BalalaikaBoard.h"
#include "BanjoBoard.h"
#include "BassBoard.h"
#include "FingerboardMap.h"
#include "MandolinBoard.h"
#include "NoteSpelling.h"
#include "UkuleleBoard.h"
#include "ViolinBoard.h"

#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>

using namespace QMMusic;

namespace {

std::unique_ptr<BoardBase> makeBoard(const QString& key)
{
    if (key == QLatin1String("Ukulele"))
        return std::make_unique<UkuleleBoard>();
    if (key == QLatin1String("Violin"))
        return std::make_unique<ViolinBoard>();
    if (key == QLatin1String("Bass"))
        return std::make_unique<BassBoard>();
    if (key == QLatin1String("Balalaika"))
        return std::make_unique<BalalaikaBoard>();
    if (key == QLatin1String("Banjo"))
        return std::make_unique<BanjoBoard>();
    return std::make_unique<MandolinBoard>();
}

// The centre of the widget pixels that truncate to this design point.
QPoint widgetPoint(const QWidget& board, const QPoint& design)
{
    return QPoint(int((design.x() + 0.5) * board.width() / 800.0), int((design.y() + 0.5) * board.height() / 194.0));
}

QPoint placeOf(const QString& key, int string, int column)
{
    const FingerboardDesign& design = FingerboardDesign::forKey(key);
    const double x = design.columnX(column);
    return QPoint(qRound(x), qRound(design.stringY(string, x)));
}

bool isMark(QRgb pixel)
{
    return qRed(pixel) < 130 && qGreen(pixel) > 160 && qBlue(pixel) > 170;
}

// How many of the places show a mark's colour near them.
int litPlaces(QWidget& board, const QVector<QPoint>& places)
{
    const QImage image = board.grab().toImage();
    const int reach = qMax(2, board.width() / 100);
    int lit = 0;
    for (const QPoint& place : places) {
        const QPoint centre = widgetPoint(board, place);
        bool found = false;
        for (int dy = -reach; dy <= reach && !found; ++dy) {
            for (int dx = -reach; dx <= reach && !found; ++dx)
                found = image.rect().contains(centre + QPoint(dx, dy)) && isMark(image.pixel(centre + QPoint(dx, dy)));
        }
        lit += found ? 1 : 0;
    }
    return lit;
}

} // namespace

class tst_InstrumentBoards : public QObject
{
    Q_OBJECT

private slots:
    void press_data();
    void press();
    void trainingNotesSpanTheRange_data();
    void trainingNotesSpanTheRange();
    void paintLightsEveryPlace_data();
    void paintLightsEveryPlace();
    void noteAboveTheRangeShowsTheBareBoard_data();
    void noteAboveTheRangeShowsTheBareBoard();
};

void tst_InstrumentBoards::press_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("width");
    QTest::addColumn<QPoint>("design");
    QTest::addColumn<QString>("name"); // empty: the press changes nothing
    QTest::addColumn<int>("accidental");

    QTest::newRow("ukulele G string far end plays C5#") << "Ukulele" << 800 << placeOf("Ukulele", 4, 17) << "C5" << 1;
    QTest::newRow("ukulele open C string") << "Ukulele" << 800 << placeOf("Ukulele", 3, 0) << "C4" << 0;
    QTest::newRow("ukulele, double size, fret 15 of A") << "Ukulele" << 1600 << placeOf("Ukulele", 1, 15) << "C6" << 0;
    QTest::newRow("violin A string, place 3") << "Violin" << 800 << placeOf("Violin", 2, 3) << "C5" << 0;
    QTest::newRow("bass open E") << "Bass" << 800 << placeOf("Bass", 4, 0) << "E1" << 0;
    QTest::newRow("bass E string fret 1 is no box") << "Bass" << 800 << placeOf("Bass", 4, 1) << "" << 0;
    QTest::newRow("balalaika string 3, fret 2") << "Balalaika" << 800 << placeOf("Balalaika", 3, 2) << "F4" << 1;
    QTest::newRow("banjo short string, fret 9") << "Banjo" << 800 << placeOf("Banjo", 5, 9) << "G4" << 0;
    QTest::newRow("banjo, double size, short string") << "Banjo" << 1600 << placeOf("Banjo", 5, 20) << "G4" << 0;
    QTest::newRow("mandolin G course far end") << "Mandolin" << 800 << placeOf("Mandolin", 4, 19) << "G3" << 0;
    QTest::newRow("mandolin above the neck") << "Mandolin" << 800 << QPoint(400, 8) << "" << 0;
}

// A press names the note, shows its overlay and asks for its sample by stem.
void tst_InstrumentBoards::press()
{
    QFETCH(QString, key);
    QFETCH(int, width);
    QFETCH(QPoint, design);
    QFETCH(QString, name);
    QFETCH(int, accidental);

    std::unique_ptr<BoardBase> board = makeBoard(key);
    board->resize(width, 600);
    board->show();
    QCOMPARE(board->height(), width * 194 / 800);
    const QString before = board->currentNote();
    QSignalSpy spy(board.get(), &BoardBase::noteChanged);
    QTest::mouseClick(board.get(), Qt::LeftButton, Qt::NoModifier, widgetPoint(*board, design));
    QCOMPARE(spy.count(), name.isEmpty() ? 0 : 1);
    if (name.isEmpty()) {
        QCOMPARE(board->currentNote(), before);
        return;
    }
    QCOMPARE(spy.at(0).at(0).toString(), name);
    QCOMPARE(spy.at(0).at(1).toInt(), accidental);
    QCOMPARE(board->currentNote(), NoteSpelling::stem(name, accidental));
}

void tst_InstrumentBoards::trainingNotesSpanTheRange_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("unpressable"); // a training note no press gives, or empty
    QTest::newRow("ukulele") << "Ukulele"
                             << "";
    QTest::newRow("violin") << "Violin"
                            << "";
    QTest::newRow("bass: F1 only from the staff and training") << "Bass"
                                                               << "F1";
    QTest::newRow("balalaika") << "Balalaika"
                               << "";
    QTest::newRow("banjo: C6# above the last fret") << "Banjo"
                                                    << "C6#";
    QTest::newRow("mandolin") << "Mandolin"
                              << "";
}

// Training draws from every note of the range, one each, and each of them has
// an overlay entry; the draw tells the note it shows.
void tst_InstrumentBoards::trainingNotesSpanTheRange()
{
    QFETCH(QString, key);
    QFETCH(QString, unpressable);

    std::unique_ptr<BoardBase> board = makeBoard(key);
    const FingerboardMap& map = FingerboardMap::forKey(key);
    QCOMPARE(board->overlayMap().size(), map.positions().size());
    for (const QString& position : map.positions()) {
        const QString stem = NoteSpelling::positionStem(position);
        QVERIFY2(board->overlayMap().contains(QStringLiteral(":/%1_%2@2x.png").arg(key, stem))
                || board->overlayMap().contains(QStringLiteral(":/%1_%2.png").arg(key, stem)),
            qPrintable(stem));
        const bool pressable = !map.places(stem).isEmpty();
        QCOMPARE(pressable, position != unpressable);
    }
    QSignalSpy spy(board.get(), &BoardBase::noteChanged);
    for (int draw = 0; draw < 20; ++draw) {
        board->slotNextNote();
        const QString position
            = spy.last().at(0).toString() + (spy.last().at(1).toInt() ? QStringLiteral("#") : QString());
        QVERIFY2(map.positions().contains(position), qPrintable(position));
    }
}

void tst_InstrumentBoards::paintLightsEveryPlace_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stem");
    QTest::newRow("ukulele C5#, far end of the G string included") << "Ukulele"
                                                                   << "Cd5";
    QTest::newRow("violin E5 on two strings") << "Violin"
                                              << "E5";
    QTest::newRow("bass A1") << "Bass"
                             << "A1";
    QTest::newRow("balalaika E4 on both lower strings") << "Balalaika"
                                                        << "E4";
    QTest::newRow("banjo G4, the short string's every box") << "Banjo"
                                                            << "G4";
    QTest::newRow("mandolin A4") << "Mandolin"
                                 << "A4";
}

// The overlay that the board paints for a note marks every place whose press
// answers that note: the art and the hit test agree.
void tst_InstrumentBoards::paintLightsEveryPlace()
{
    QFETCH(QString, key);
    QFETCH(QString, stem);

    std::unique_ptr<BoardBase> board = makeBoard(key);
    board->resize(800, 600);
    board->show();
    QVector<QPoint> places;
    for (const FingerboardMap::Box& box : FingerboardMap::forKey(key).places(stem))
        places.append(box.centre);
    QVERIFY(places.size() >= 2);
    QCOMPARE(litPlaces(*board, places), 0);
    board->slotSetNote(stem.left(1) + stem.right(1), stem.contains(QLatin1Char('d')) ? 1 : 0);
    QCOMPARE(board->currentNote(), stem);
    QCOMPARE(litPlaces(*board, places), places.size());
}

void tst_InstrumentBoards::noteAboveTheRangeShowsTheBareBoard_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("note");
    QTest::newRow("ukulele C7") << "Ukulele"
                                << "C7";
    QTest::newRow("bass C6") << "Bass"
                             << "C6";
    QTest::newRow("violin below its G string") << "Violin"
                                               << "C3";
}

// A note of the staff outside the board's range has no overlay: the board
// shows the bare background, without a failure.
void tst_InstrumentBoards::noteAboveTheRangeShowsTheBareBoard()
{
    QFETCH(QString, key);
    QFETCH(QString, note);

    std::unique_ptr<BoardBase> board = makeBoard(key);
    board->resize(800, 600);
    board->show();
    const QImage bare = board->grab().toImage();
    QSignalSpy spy(board.get(), &BoardBase::noteChanged);
    board->slotSetNote(note, 0);
    QCOMPARE(board->currentNote(), note);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(board->grab().toImage(), bare);
}

QTEST_MAIN(tst_InstrumentBoards)
#include "tst_instrumentboards.moc"
