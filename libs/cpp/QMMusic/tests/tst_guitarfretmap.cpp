#include "GuitarFretMap.h"

#include <QtTest>

#include <cmath>

using QMMusic::GuitarFretMap;

namespace {

// Position name of the note a number of semitones above E2, worked out
// from the chromatic scale rather than read from the board's table.
QString positionAbove(int semitones)
{
    static const char* const names[12] = { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };
    const int pitch = semitones + 4 + 2 * 12;
    const QString name = QLatin1String(names[pitch % 12]);
    return name.left(1) + QString::number(pitch / 12) + name.mid(1);
}

} // namespace

class TestGuitarFretMap : public QObject
{
    Q_OBJECT

private slots:
    void everyBoxCentreGivesItsNote_data();
    void everyBoxCentreGivesItsNote();
    void designPoint_data();
    void designPoint();
    void widgetPoint_data();
    void widgetPoint();
    void stringsRunStraight_data();
    void stringsRunStraight();
    void columnsRiseToTheRight_data();
    void columnsRiseToTheRight();
};

void TestGuitarFretMap::everyBoxCentreGivesItsNote_data()
{
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<QString>("note");

    // Open strings E4, B3, G3, D3, A2, E2 in semitones above E2.
    const int open[6] = { 24, 19, 15, 10, 5, 0 };
    for (int string = 1; string <= 6; ++string) {
        for (int column = 0; column < 24; ++column) {
            const int fret = column == 23 ? 0 : column;
            const QString row = column == 23 ? QStringLiteral("string %1 far end").arg(string)
                                             : QStringLiteral("string %1 fret %2").arg(string).arg(column);
            QTest::newRow(qPrintable(row)) << GuitarFretMap::centre(string, column)
                                           << positionAbove(open[string - 1] + fret);
        }
    }
}

void TestGuitarFretMap::everyBoxCentreGivesItsNote()
{
    QFETCH(QPoint, centre);
    QFETCH(QString, note);
    QVERIFY(!centre.isNull());
    QCOMPARE(GuitarFretMap::noteAtDesignPoint(centre), note);
}

void TestGuitarFretMap::designPoint_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("note");

    QTest::newRow("open E2 at the nut") << QPoint(104, 132) << "E2";
    QTest::newRow("open E2 at the far end") << QPoint(787, 149) << "E2";
    QTest::newRow("E4 and B3 overlap: B3 comes first") << QPoint(100, 82) << "B3";
    QTest::newRow("frets 10 and 11 of string 6 overlap: D3 before D3#") << QPoint(484, 140) << "D3";
    QTest::newRow("fret 22 and far end of string 1 overlap: E4 before D6") << QPoint(775, 74) << "E4";
    QTest::newRow("left edge of the open E2 box") << QPoint(88, 132) << "E2";
    QTest::newRow("right edge of the open E2 box") << QPoint(119, 132) << "E2";
    QTest::newRow("just right of the open E2 box") << QPoint(120, 132) << "";
    QTest::newRow("just left of the open E2 box") << QPoint(87, 132) << "";
    QTest::newRow("top edge of fret 2 on string 6") << QPoint(182, 131) << "F2#";
    QTest::newRow("bottom edge of fret 2 on string 6") << QPoint(182, 140) << "F2#";
    QTest::newRow("below fret 2 on string 6") << QPoint(182, 141) << "";
    QTest::newRow("above the neck") << QPoint(400, 10) << "";
    QTest::newRow("origin") << QPoint(0, 0) << "";
    QTest::newRow("fret 12 on string 3") << QPoint(532, 102) << "G4";
    QTest::newRow("fret 22 on string 1") << QPoint(767, 74) << "D6";
}

void TestGuitarFretMap::designPoint()
{
    QFETCH(QPoint, point);
    QFETCH(QString, note);
    QCOMPARE(GuitarFretMap::noteAtDesignPoint(point), note);
}

void TestGuitarFretMap::widgetPoint_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("note");

    QTest::newRow("design size, open E2") << QPoint(104, 132) << QSize(800, 194) << "E2";
    QTest::newRow("double size, open E2") << QPoint(208, 264) << QSize(1600, 388) << "E2";
    QTest::newRow("double size, truncates into the box") << QPoint(239, 265) << QSize(1600, 388) << "E2";
    QTest::newRow("double size, gap right of the box") << QPoint(240, 264) << QSize(1600, 388) << "";
    QTest::newRow("double size, E4/B3 overlap") << QPoint(200, 164) << QSize(1600, 388) << "B3";
    QTest::newRow("double size, fret 2 on string 6") << QPoint(364, 272) << QSize(1600, 388) << "F2#";
    QTest::newRow("half size, fret 5 on string 6") << QPoint(150, 69) << QSize(400, 97) << "A2";
    QTest::newRow("empty widget") << QPoint(10, 10) << QSize(0, 0) << "";
}

void TestGuitarFretMap::widgetPoint()
{
    QFETCH(QPoint, point);
    QFETCH(QSize, size);
    QFETCH(QString, note);
    QCOMPARE(GuitarFretMap::noteAt(point.x(), point.y(), size.width(), size.height()), note);
}

void TestGuitarFretMap::stringsRunStraight_data()
{
    QTest::addColumn<int>("string");
    for (int string = 1; string <= 6; ++string)
        QTest::newRow(qPrintable(QStringLiteral("string %1").arg(string))) << string;
}

// A mistyped centre shows up as a box far off the straight string.
void TestGuitarFretMap::stringsRunStraight()
{
    QFETCH(int, string);
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    const int n = GuitarFretMap::ColumnCount;
    for (int column = 0; column < n; ++column) {
        const QPoint c = GuitarFretMap::centre(string, column);
        sx += c.x();
        sy += c.y();
        sxx += double(c.x()) * c.x();
        sxy += double(c.x()) * c.y();
    }
    const double slope = (n * sxy - sx * sy) / (n * sxx - sx * sx);
    const double intercept = (sy - slope * sx) / n;
    // The measured centres scatter by up to about 3 units around the line
    // (string 3 the most); a mistyped digit lands much further away.
    double squares = 0;
    for (int column = 0; column < n; ++column) {
        const QPoint c = GuitarFretMap::centre(string, column);
        const double miss = intercept + slope * c.x() - c.y();
        squares += miss * miss;
        QVERIFY2(qAbs(miss) < 3.5, qPrintable(QStringLiteral("column %1 misses by %2").arg(column).arg(miss)));
    }
    QVERIFY(std::sqrt(squares / n) < 2.0);
}

void TestGuitarFretMap::columnsRiseToTheRight_data()
{
    stringsRunStraight_data();
}

void TestGuitarFretMap::columnsRiseToTheRight()
{
    QFETCH(int, string);
    for (int column = 1; column < GuitarFretMap::ColumnCount; ++column) {
        const int step = GuitarFretMap::centre(string, column).x() - GuitarFretMap::centre(string, column - 1).x();
        QVERIFY2(step > 10 && step < 50, qPrintable(QStringLiteral("column %1, step %2").arg(column).arg(step)));
    }
}

QTEST_APPLESS_MAIN(TestGuitarFretMap)
#include "tst_guitarfretmap.moc"
