#include "GuitarFretMap.h"
#include "NeckGeometry.h"

#include <QtTest>

#include <cmath>

using QMMusic::GuitarFretMap;
using QMMusic::NeckGeometry;

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
    void widgetPoint_data();
    void widgetPoint();
    void stringsRunStraight_data();
    void stringsRunStraight();
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
            QTest::newRow(qPrintable(row))
                << GuitarFretMap::centre(string, column) << positionAbove(open[string - 1] + fret);
        }
    }
}

void TestGuitarFretMap::everyBoxCentreGivesItsNote()
{
    QFETCH(QPoint, centre);
    QFETCH(QString, note);
    QCOMPARE(GuitarFretMap::noteAtDesignPoint(centre), note);
}

void TestGuitarFretMap::widgetPoint_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("note");

    const QSize design(800, 194);
    const QSize twice(1600, 388);
    QTest::newRow("E4 and B3 overlap: B3 comes first") << QPoint(100, 82) << design << "B3";
    QTest::newRow("frets 10 and 11 of string 6 overlap: D3 before D3#") << QPoint(484, 140) << design << "D3";
    QTest::newRow("fret 22 and far end of string 1 overlap: E4 before D6") << QPoint(775, 74) << design << "E4";
    QTest::newRow("left edge of the open E2 box") << QPoint(88, 132) << design << "E2";
    QTest::newRow("right edge of the open E2 box") << QPoint(119, 132) << design << "E2";
    QTest::newRow("just right of the open E2 box") << QPoint(120, 132) << design << "";
    QTest::newRow("just left of the open E2 box") << QPoint(87, 132) << design << "";
    QTest::newRow("bottom edge of fret 2 on string 6") << QPoint(182, 140) << design << "F2#";
    QTest::newRow("below fret 2 on string 6") << QPoint(182, 141) << design << "";
    QTest::newRow("above the neck") << QPoint(400, 10) << design << "";
    QTest::newRow("twice the size, truncates into the box") << QPoint(239, 265) << twice << "E2";
    QTest::newRow("twice the size, gap right of the box") << QPoint(240, 264) << twice << "";
    QTest::newRow("twice the size, E4/B3 overlap") << QPoint(200, 164) << twice << "B3";
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
    const NeckGeometry neck;
    const int n = GuitarFretMap::ColumnCount;
    // The measured centres scatter by up to about 3 units around the line
    // (string 3 the most); a mistyped digit lands much further away.
    double squares = 0;
    for (int column = 0; column < n; ++column) {
        const QPoint c = GuitarFretMap::centre(string, column);
        const double miss = neck.stringY(string, c.x()) - c.y();
        squares += miss * miss;
        QVERIFY2(qAbs(miss) < 3.5, qPrintable(QStringLiteral("column %1 misses by %2").arg(column).arg(miss)));
    }
    QVERIFY(std::sqrt(squares / n) < 2.0);
}

QTEST_APPLESS_MAIN(TestGuitarFretMap)
#include "tst_guitarfretmap.moc"
