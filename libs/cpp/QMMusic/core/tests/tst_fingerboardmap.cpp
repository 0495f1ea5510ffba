#include "FingerboardMap.h"
#include "GuitarFretMap.h"

#include <QtTest>

using QMMusic::FingerboardDesign;
using QMMusic::FingerboardMap;
using QMMusic::GuitarFretMap;

namespace {

const FingerboardMap::Contains kBox = &GuitarFretMap::boxContains;

// The design point of a string and column as the instrument's geometry puts it.
QPoint placeOf(const FingerboardDesign& design, int string, int column)
{
    const double x = design.columnX(column);
    return QPoint(qRound(x), qRound(design.stringY(string, x)));
}

} // namespace

class tst_FingerboardMap : public QObject
{
    Q_OBJECT

private:
    static void instruments();

private slots:
    void everyBoxGivesItsNote_data() { instruments(); }
    void everyBoxGivesItsNote();
    void pressAtTwiceTheDesignSize_data() { instruments(); }
    void pressAtTwiceTheDesignSize();
    void overlapGoesToTheEarlierNote_data() { instruments(); }
    void overlapGoesToTheEarlierNote();
    void boxesPassTheirCheck_data() { instruments(); }
    void boxesPassTheirCheck();
    void exception_data();
    void exception();
    void brokenDesignFailsItsCheck_data();
    void brokenDesignFailsItsCheck();
    void unknownKeyHasNoBoxes();
};

void tst_FingerboardMap::instruments()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("lowest");
    QTest::addColumn<QString>("highest");
    QTest::newRow("ukulele") << "Ukulele"
                             << "C4"
                             << "C6";
    QTest::newRow("violin") << "Violin"
                            << "G3"
                            << "B5";
    QTest::newRow("bass") << "Bass"
                          << "E1"
                          << "D4#";
    QTest::newRow("balalaika") << "Balalaika"
                               << "E4"
                               << "E6";
    QTest::newRow("banjo") << "Banjo"
                           << "D3"
                           << "C6#";
    QTest::newRow("mandolin") << "Mandolin"
                              << "G3"
                              << "A6";
}

// The centre of every box answers that box's note: no box hides behind
// another of an earlier note, and the training notes span the range.
void tst_FingerboardMap::everyBoxGivesItsNote()
{
    QFETCH(QString, key);
    QFETCH(QString, lowest);
    QFETCH(QString, highest);
    const FingerboardMap& map = FingerboardMap::forKey(key);
    QVERIFY(!map.boxes().isEmpty());
    QCOMPARE(map.positions().first(), lowest);
    QCOMPARE(map.positions().last(), highest);
    for (const FingerboardMap::Box& box : map.boxes()) {
        const QString answer = map.noteAtDesignPoint(box.centre, kBox);
        QVERIFY2(answer == box.name,
            qPrintable(QStringLiteral("string %1 column %2 at (%3, %4): %5 instead of %6")
                           .arg(box.string)
                           .arg(box.column)
                           .arg(box.centre.x())
                           .arg(box.centre.y())
                           .arg(answer, box.name)));
    }
}

// A window twice the design size finds the same notes at twice the coordinates.
void tst_FingerboardMap::pressAtTwiceTheDesignSize()
{
    QFETCH(QString, key);
    const FingerboardMap& map = FingerboardMap::forKey(key);
    for (const FingerboardMap::Box& box : map.boxes()) {
        const QString answer = map.noteAt(2 * box.centre.x() + 1, 2 * box.centre.y() + 1, 1600, 388, kBox);
        QVERIFY2(answer == box.name, qPrintable(box.name + QStringLiteral(" gave ") + answer));
    }
    QCOMPARE(map.noteAt(5, 5, 1600, 388, kBox), QString());
}

// Where two boxes of one string overlap, the point between them goes to the
// note that the test order names first: naturals before sharps, low before high.
void tst_FingerboardMap::overlapGoesToTheEarlierNote()
{
    QFETCH(QString, key);
    const FingerboardMap& map = FingerboardMap::forKey(key);
    const QVector<QString>& order = map.noteOrder();
    int overlaps = 0;
    for (const FingerboardMap::Box& a : map.boxes()) {
        for (const FingerboardMap::Box& b : map.boxes()) {
            if (a.string != b.string || b.column != a.column + 1 || a.name == b.name)
                continue;
            const QPoint middle((a.centre.x() + b.centre.x()) / 2, (a.centre.y() + b.centre.y()) / 2);
            if (!GuitarFretMap::boxContains(a.centre.x(), a.centre.y(), middle)
                || !GuitarFretMap::boxContains(b.centre.x(), b.centre.y(), middle))
                continue;
            ++overlaps;
            const QString first = order.indexOf(a.name) < order.indexOf(b.name) ? a.name : b.name;
            QCOMPARE(map.noteAtDesignPoint(middle, kBox), first);
        }
    }
    if (overlaps == 0)
        QSKIP("the places lie too far apart for their boxes to overlap");
}

void tst_FingerboardMap::boxesPassTheirCheck()
{
    QFETCH(QString, key);
    const QStringList problems = FingerboardMap::forKey(key).problems();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_FingerboardMap::exception_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("string");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("expected"); // empty: nothing to press there

    // The far end of the ukulele's G string answers C5#, except one column
    // without a box.
    QTest::newRow("ukulele G string, first far-end column") << "Ukulele" << 4 << 16 << "C5#";
    QTest::newRow("ukulele G string, second far-end column") << "Ukulele" << 4 << 17 << "C5#";
    QTest::newRow("ukulele G string, third far-end column") << "Ukulele" << 4 << 18 << "";
    QTest::newRow("ukulele G string, last far-end column") << "Ukulele" << 4 << 19 << "C5#";
    QTest::newRow("ukulele A string, far end") << "Ukulele" << 1 << 18 << "A4";
    QTest::newRow("ukulele G string, fret 15") << "Ukulele" << 4 << 15 << "A5#";
    // F1 is a training note but nothing on the bass's neck gives it.
    QTest::newRow("bass E string, fret 1") << "Bass" << 4 << 1 << "";
    QTest::newRow("bass E string, fret 2") << "Bass" << 4 << 2 << "F1#";
    QTest::newRow("bass E string, open") << "Bass" << 4 << 0 << "E1";
    QTest::newRow("bass E string, far end") << "Bass" << 4 << 21 << "E1";
    // The balalaika's two lower strings are in unison.
    QTest::newRow("balalaika string 2, fret 7") << "Balalaika" << 2 << 7 << "B4";
    QTest::newRow("balalaika string 3, fret 7") << "Balalaika" << 3 << 7 << "B4";
    QTest::newRow("balalaika string 1, fret 19") << "Balalaika" << 1 << 19 << "E6";
    // The banjo's short string: nothing before its peg, G4 at every fret after.
    QTest::newRow("banjo short string, fret 3") << "Banjo" << 5 << 3 << "";
    QTest::newRow("banjo short string, fret 5") << "Banjo" << 5 << 5 << "G4";
    QTest::newRow("banjo short string, fret 12") << "Banjo" << 5 << 12 << "G4";
    QTest::newRow("banjo short string, fret 22") << "Banjo" << 5 << 22 << "G4";
    QTest::newRow("banjo short string, far end") << "Banjo" << 5 << 23 << "G4";
    QTest::newRow("banjo G string, fret 4") << "Banjo" << 3 << 4 << "";
    QTest::newRow("banjo G string, fret 5") << "Banjo" << 3 << 5 << "C4";
    QTest::newRow("banjo D string, fret 22") << "Banjo" << 1 << 22 << "C6";
    // The mandolin's D course lacks three boxes.
    QTest::newRow("mandolin D course, fret 14") << "Mandolin" << 3 << 14 << "";
    QTest::newRow("mandolin D course, fret 15") << "Mandolin" << 3 << 15 << "F5";
    QTest::newRow("mandolin D course, fret 16") << "Mandolin" << 3 << 16 << "";
    QTest::newRow("mandolin D course, fret 17") << "Mandolin" << 3 << 17 << "";
    QTest::newRow("mandolin E course, fret 17") << "Mandolin" << 1 << 17 << "A6";
    QTest::newRow("mandolin G course, far end") << "Mandolin" << 4 << 20 << "G3";
    // The violin's places overlap from string to string and end at the seventh.
    QTest::newRow("violin A string, place 7") << "Violin" << 2 << 7 << "E5";
    QTest::newRow("violin E string, open") << "Violin" << 1 << 0 << "E5";
    QTest::newRow("violin E string, place 7") << "Violin" << 1 << 7 << "B5";
    QTest::newRow("violin G string, open") << "Violin" << 4 << 0 << "G3";
}

void tst_FingerboardMap::exception()
{
    QFETCH(QString, key);
    QFETCH(int, string);
    QFETCH(int, column);
    QFETCH(QString, expected);
    const FingerboardMap& map = FingerboardMap::forKey(key);
    QCOMPARE(map.noteAtDesignPoint(placeOf(map.design(), string, column), kBox), expected);
}

void tst_FingerboardMap::brokenDesignFailsItsCheck_data()
{
    QTest::addColumn<FingerboardDesign>("design");
    QTest::addColumn<QString>("problem");

    FingerboardDesign outside = FingerboardDesign::forKey(QStringLiteral("Bass"));
    outside.bottomAtBridge = 400;
    QTest::newRow("strings leave the picture") << outside << "outside the design space";

    FingerboardDesign cramped = FingerboardDesign::forKey(QStringLiteral("Banjo"));
    cramped.lastWireX = cramped.nutX + 300;
    QTest::newRow("frets too close for their boxes") << cramped << "inside the box of column";

    FingerboardDesign narrow = FingerboardDesign::forKey(QStringLiteral("Ukulele"));
    narrow.highestNote -= 2;
    QTest::newRow("a box above the range") << narrow << "outside the range";
}

void tst_FingerboardMap::brokenDesignFailsItsCheck()
{
    QFETCH(FingerboardDesign, design);
    QFETCH(QString, problem);
    const QStringList problems = FingerboardMap(design).problems();
    QVERIFY2(!problems.filter(problem).isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_FingerboardMap::unknownKeyHasNoBoxes()
{
    const FingerboardMap& map = FingerboardMap::forKey(QStringLiteral("Theorbo"));
    QVERIFY(map.boxes().isEmpty());
    QVERIFY(map.positions().isEmpty());
    QCOMPARE(map.noteAt(400, 97, 800, 194, kBox), QString());
}

QTEST_GUILESS_MAIN(tst_FingerboardMap)
#include "tst_fingerboardmap.moc"
