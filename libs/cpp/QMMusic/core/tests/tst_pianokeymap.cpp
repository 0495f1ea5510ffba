#include "NoteSpelling.h"
#include "PianoKeyMap.h"

#include <QtTest>

using QMMusic::NoteSpelling;
using QMMusic::PianoKeyMap;

class tst_PianoKeyMap : public QObject
{
    Q_OBJECT

private slots:
    void keyNumber_data();
    void keyNumber();
    void everyKeyNamesItsNumber();
    void press_data();
    void press();
    void everyIntervalAnswersItsKey_data();
    void everyIntervalAnswersItsKey();
    void listsCoverEveryKeyOnce();
};

void tst_PianoKeyMap::keyNumber_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<int>("key");

    QTest::newRow("A0 is the first key") << "A0" << 0 << 1;
    QTest::newRow("C8 is the last") << "C8" << 0 << 88;
    QTest::newRow("middle C") << "C4" << 0 << 40;
    QTest::newRow("B3 sharp is middle C too") << "B3" << 1 << 40;
    QTest::newRow("A4") << "A4" << 0 << 49;
    QTest::newRow("D flat 4 is C sharp 4") << "D4" << -1 << 41;
    QTest::newRow("A0 flat stops at the first key") << "A0" << -1 << 1;
    QTest::newRow("below the keyboard") << "C0" << 0 << 1;
    QTest::newRow("an unknown letter: base 0, no accidental") << "H4" << 1 << 36;
}

void tst_PianoKeyMap::keyNumber()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(int, key);
    QCOMPARE(PianoKeyMap::keyNumber(name, accidental), key);
}

// Position names and key numbers agree over the whole keyboard.
void tst_PianoKeyMap::everyKeyNamesItsNumber()
{
    for (int key = 1; key <= PianoKeyMap::KeyCount; ++key) {
        const QString position = PianoKeyMap::positionName(key);
        QCOMPARE(PianoKeyMap::keyNumber(
                     NoteSpelling::positionNoteName(position), NoteSpelling::positionAccidental(position)),
            key);
    }
    QCOMPARE(PianoKeyMap::positionName(2), QStringLiteral("A0#"));
    QCOMPARE(PianoKeyMap::positionName(0), QString());
    QCOMPARE(PianoKeyMap::positionName(89), QString());
}

void tst_PianoKeyMap::press_data()
{
    QTest::addColumn<double>("px");
    QTest::addColumn<double>("py");
    QTest::addColumn<QString>("position");

    QTest::newRow("black key just above the lower part") << 36.0 << 111.9 << "A0#";
    QTest::newRow("the lower part begins at 112") << 36.0 << 112.0 << "A0";
    QTest::newRow("front edge at 135") << 36.0 << 135.0 << "";
    QTest::newRow("below the keys") << 400.0 << 150.0 << "";
    QTest::newRow("above the keys") << 400.0 << 68.9 << "";
    QTest::newRow("top edge at 69") << 25.0 << 69.0 << "A0";
    QTest::newRow("B4 and C5 overlap: B4 comes first") << 460.5 << 90.0 << "B4";
    QTest::newRow("C5 right of the overlap") << 461.0 << 90.0 << "C5";
    QTest::newRow("gap between A0 and A0# in the upper part") << 32.0 << 80.0 << "A0#";
    QTest::newRow("gap of the upper white keys") << 42.5 << 80.0 << "";
    QTest::newRow("left of the keyboard") << 19.9 << 120.0 << "";
    QTest::newRow("C8, lower part") << 780.0 << 120.0 << "C8";
    QTest::newRow("right of the keyboard") << 790.0 << 120.0 << "";
}

void tst_PianoKeyMap::press()
{
    QFETCH(double, px);
    QFETCH(double, py);
    QFETCH(QString, position);
    QCOMPARE(PianoKeyMap::noteAtDesignPoint(px, py), position);
    // The same point of a widget twice the design size.
    QCOMPARE(PianoKeyMap::noteAt(int(px * 2), int(py * 2), 1600, 388), position);
}

void tst_PianoKeyMap::everyIntervalAnswersItsKey_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<double>("py");
    QTest::newRow("lower white") << 0 << 125.0;
    QTest::newRow("black") << 1 << 90.0;
    QTest::newRow("upper white") << 2 << 90.0;
}

// A press in the middle of each interval gives its own key; an upper white
// part is pressed in the middle of what the black keys, tested first, leave
// of it.
void tst_PianoKeyMap::everyIntervalAnswersItsKey()
{
    QFETCH(int, list);
    QFETCH(double, py);
    const QVector<PianoKeyMap::Interval>& intervals = list == 0
        ? PianoKeyMap::lowerWhiteKeys()
        : (list == 1 ? PianoKeyMap::blackKeys() : PianoKeyMap::upperWhiteKeys());
    const auto underBlack = [](double x) {
        for (const PianoKeyMap::Interval& black : PianoKeyMap::blackKeys()) {
            if (black.low <= x && x < black.high)
                return true;
        }
        return false;
    };
    for (const PianoKeyMap::Interval& interval : intervals) {
        double first = interval.high;
        double last = interval.low;
        for (double x = interval.low; x < interval.high; x += 0.25) {
            if (list == 2 && underBlack(x))
                continue;
            first = qMin(first, x);
            last = qMax(last, x);
        }
        QVERIFY2(first <= last, qPrintable(interval.position + QStringLiteral(" lies under the black keys")));
        QCOMPARE(PianoKeyMap::noteAtDesignPoint((first + last) / 2.0, py), interval.position);
    }
}

// The white keys appear once in each white list and the black keys once,
// so that every one of the 88 keys can be pressed.
void tst_PianoKeyMap::listsCoverEveryKeyOnce()
{
    QStringList whites;
    for (int key = 1; key <= PianoKeyMap::KeyCount; ++key) {
        if (!PianoKeyMap::positionName(key).endsWith(QLatin1Char('#')))
            whites << PianoKeyMap::positionName(key);
    }
    QStringList lower, upper, black;
    for (const auto& interval : PianoKeyMap::lowerWhiteKeys())
        lower << interval.position;
    for (const auto& interval : PianoKeyMap::upperWhiteKeys())
        upper << interval.position;
    for (const auto& interval : PianoKeyMap::blackKeys())
        black << interval.position;
    QCOMPARE(lower, whites);
    QCOMPARE(upper, whites);
    QCOMPARE(black.size() + whites.size(), PianoKeyMap::KeyCount);
    for (const QString& position : black)
        QVERIFY(position.endsWith(QLatin1Char('#')));
}

QTEST_GUILESS_MAIN(tst_PianoKeyMap)
#include "tst_pianokeymap.moc"
