#include "PianoKeyMap.h"

#include <QImage>
#include <QtTest>

using QMMusic::PianoKeyMap;

namespace {

const double kSx = 2048.0 / 800.0;
const double kSy = 497.0 / 194.0;

QPoint pixelAt(double px, double py)
{
    return QPoint(int(px * kSx), int(py * kSy));
}

int brightness(QRgb pixel)
{
    return (qRed(pixel) + qGreen(pixel) + qBlue(pixel)) / 3;
}

bool underBlackKey(double px)
{
    for (const PianoKeyMap::Interval& black : PianoKeyMap::blackKeys()) {
        if (black.low <= px && px < black.high)
            return true;
    }
    return false;
}

} // namespace

// The generated keyboard and the intervals of the hit test describe the
// same keys: ivory where a white key answers, ebony where a black one does,
// and each key's overlay lights that key and no other.
class tst_PianoArt : public QObject
{
    Q_OBJECT

private slots:
    void keysLieOnTheirIntervals_data();
    void keysLieOnTheirIntervals();
    void overlayLightsItsKeyOnly_data();
    void overlayLightsItsKeyOnly();
};

void tst_PianoArt::keysLieOnTheirIntervals_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<double>("py");
    QTest::addColumn<bool>("light");
    QTest::newRow("lower parts of the white keys") << 0 << 125.0 << true;
    QTest::newRow("black keys") << 1 << 90.0 << false;
    QTest::newRow("upper parts of the white keys") << 2 << 90.0 << true;
}

void tst_PianoArt::keysLieOnTheirIntervals()
{
    QFETCH(int, list);
    QFETCH(double, py);
    QFETCH(bool, light);
    const QImage keyboard(QStringLiteral(":/Piano_0@2x.jpg"));
    QCOMPARE(keyboard.size(), QSize(2048, 497));
    const QVector<PianoKeyMap::Interval>& intervals = list == 0
        ? PianoKeyMap::lowerWhiteKeys()
        : (list == 1 ? PianoKeyMap::blackKeys() : PianoKeyMap::upperWhiteKeys());
    for (const PianoKeyMap::Interval& interval : intervals) {
        // A few points across the interval, away from its edges and, for an
        // upper white part, from the black keys drawn over it.
        for (double t : { 0.3, 0.5, 0.7 }) {
            const double px = interval.low + t * (interval.high - interval.low);
            if (list == 2 && (underBlackKey(px) || underBlackKey(px - 0.6) || underBlackKey(px + 0.6)))
                continue;
            const int value = brightness(keyboard.pixel(pixelAt(px, py)));
            QVERIFY2(light ? value > 170 : value < 90,
                qPrintable(QStringLiteral("%1 at %2: brightness %3").arg(interval.position).arg(px).arg(value)));
        }
    }
    // Above the keys the case, below them its front: neither is a key.
    QVERIFY(brightness(keyboard.pixel(pixelAt(400, 60))) < 90);
    QVERIFY(brightness(keyboard.pixel(pixelAt(400, 150))) < 90);
}

void tst_PianoArt::overlayLightsItsKeyOnly_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("A0") << 1;
    QTest::newRow("A0#") << 2;
    QTest::newRow("middle C") << 40;
    QTest::newRow("C4#") << 41;
    QTest::newRow("B4, overlapping C5") << 51;
    QTest::newRow("C8") << 88;
}

void tst_PianoArt::overlayLightsItsKeyOnly()
{
    QFETCH(int, key);
    const QImage overlay(QStringLiteral(":/Piano_%1.png").arg(key));
    QCOMPARE(overlay.size(), QSize(2048, 497));
    // Every point of the keyboard: lit exactly where a press answers this key.
    int lit = 0;
    for (double py : { 80.0, 100.0, 120.0, 130.0 }) {
        for (double px = 20.5; px < 790.0; px += 1.0) {
            const QString answer = PianoKeyMap::noteAtDesignPoint(px, py);
            const bool mine = answer == PianoKeyMap::positionName(key);
            const bool shown = qAlpha(overlay.pixel(pixelAt(px, py))) > 60;
            // The key's outline may spill a pixel beyond its face.
            const bool nearEdge = PianoKeyMap::noteAtDesignPoint(px - 0.8, py) != answer
                || PianoKeyMap::noteAtDesignPoint(px + 0.8, py) != answer;
            if (!nearEdge)
                QVERIFY2(shown == mine, qPrintable(QStringLiteral("(%1, %2) answers %3").arg(px).arg(py).arg(answer)));
            lit += mine && shown ? 1 : 0;
        }
    }
    QVERIFY(lit > 0);
}

QTEST_GUILESS_MAIN(tst_PianoArt)
#include "tst_pianoart.moc"
