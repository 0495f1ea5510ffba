#include "StaffGeometry.h"

#include <QtTest>

using QMMusic::StaffGeometry;

namespace {

const int kNoIndex = 1000;

// The guitar's staff as its page sets it up: start line 8, 22 lines, shifted
// up by 5 lines, paper factor 1.3.
StaffGeometry guitarStaff(int height)
{
    StaffGeometry geometry;
    geometry.setHeight(height);
    geometry.setStartLine(8);
    geometry.setLines(22);
    geometry.setTranslateLines(5);
    geometry.setPaperHeightFactor(1.3f);
    return geometry;
}

} // namespace

class TestStaffGeometry : public QObject
{
    Q_OBJECT

private slots:
    void nameAndIndex_data();
    void nameAndIndex();
    void halfLineOfPixel_data();
    void halfLineOfPixel();
    void snapMovesOnlyAsFarAsNeeded_data();
    void snapMovesOnlyAsFarAsNeeded();
    void unknownInstrumentHasNoRows();
    void boxes_data();
    void boxes();
};

void TestStaffGeometry::nameAndIndex_data()
{
    QTest::addColumn<int>("halfLine");
    QTest::addColumn<QString>("name");

    // kNoIndex: a text that names no half-line.
    QTest::newRow("C0 at the bottom of the range") << 58 << "C0";
    QTest::newRow("B0 is the last of octave 0") << 52 << "B0";
    QTest::newRow("C1 starts the next octave") << 51 << "C1";
    QTest::newRow("middle C on the ledger line between the staves") << 30 << "C4";
    QTest::newRow("B of octave 3 lies just under C4") << 31 << "B3";
    QTest::newRow("E4 on the lowest treble line") << 28 << "E4";
    QTest::newRow("B8 is the highest named") << -4 << "B8";
    QTest::newRow("below C0 names nothing") << 59 << "";
    QTest::newRow("above B8 names nothing") << -5 << "";
    QTest::newRow("lower-case letter") << kNoIndex << "e4";
    QTest::newRow("position name with sharp") << kNoIndex << "F2#";
}

void TestStaffGeometry::nameAndIndex()
{
    QFETCH(int, halfLine);
    QFETCH(QString, name);
    if (halfLine != kNoIndex)
        QCOMPARE(StaffGeometry::nameOfIndex(halfLine), name);
    const bool known = halfLine != kNoIndex && !name.isEmpty();
    int index = kNoIndex;
    QCOMPARE(StaffGeometry::indexOfName(name, &index), known);
    if (known)
        QCOMPARE(index, halfLine);
}

void TestStaffGeometry::halfLineOfPixel_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("halfLine");

    // Guitar staff 324 high: line height 19.145, shifted up by 5 lines.
    QTest::newRow("first row below line 14 (at 172.3)") << 173 << 28;
    QTest::newRow("row just above line 14 belongs to the space above") << 172 << 27;
    QTest::newRow("just before the next half-line") << 181 << 28;
    QTest::newRow("next half-line") << 182 << 29;
    QTest::newRow("near the top of the widget") << 1 << 10;
}

void TestStaffGeometry::halfLineOfPixel()
{
    QFETCH(int, y);
    QFETCH(int, halfLine);
    QCOMPARE(guitarStaff(324).halfLineIndex(float(y)), halfLine);
}

void TestStaffGeometry::snapMovesOnlyAsFarAsNeeded_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");

    // At 330 the guitar's C3 scales to 263, which lies in D3's half-line
    // (up to 263.25); the first row of C3's own half-line is 264.
    QTest::newRow("guitar C3 at 330 moves down one pixel") << 330 << "C3" << 264;
    // Where scaling stays inside, the scaled row stands: trunc(175*330/324).
    QTest::newRow("guitar E4 at 330 stays scaled") << 330 << "E4" << 178;
    QTest::newRow("guitar E4 at 648 doubles") << 648 << "E4" << 350;
}

void TestStaffGeometry::snapMovesOnlyAsFarAsNeeded()
{
    QFETCH(int, height);
    QFETCH(QString, name);
    QFETCH(int, row);
    QCOMPARE(guitarStaff(height).namePositions(QStringLiteral("guitar")).value(name), row);
}

void TestStaffGeometry::unknownInstrumentHasNoRows()
{
    QVERIFY(StaffGeometry::referenceRows(QStringLiteral("theremin")).isEmpty());
    QVERIFY(!StaffGeometry::referenceRows(QStringLiteral("Guitar")).isEmpty());
    QVERIFY(guitarStaff(324).namePositions(QStringLiteral("theremin")).isEmpty());
}

void TestStaffGeometry::boxes_data()
{
    QTest::addColumn<int>("halfLine");
    QTest::addColumn<QRect>("note");
    QTest::addColumn<QPoint>("sign");

    // Guitar staff 324 high in a widget 400 wide: line height 19.145,
    // note width 15.95; the head is centred whatever the pointer's x.
    QTest::newRow("E4 on its line") << 28 << QRect(184, 162, 35, 19) << QPoint(160, 181);
    QTest::newRow("E2 below the bass staff") << 42 << QRect(184, 296, 35, 19) << QPoint(160, 315);
}

void TestStaffGeometry::boxes()
{
    QFETCH(int, halfLine);
    QFETCH(QRect, note);
    QFETCH(QPoint, sign);
    const StaffGeometry geometry = guitarStaff(324);
    const float top = geometry.noteTop(halfLine);
    QCOMPARE(geometry.noteRect(400, top), note);
    QCOMPARE(geometry.signBasePoint(400, top), sign);
}

QTEST_GUILESS_MAIN(TestStaffGeometry)
#include "tst_staffgeometry.moc"
