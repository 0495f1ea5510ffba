#include "Common/PeakVector.h"

#include <QtTest>

#include <stdexcept>

using Audio::PeakInfo;
using Audio::PeakVector;

Q_DECLARE_METATYPE(QVector<float>)

// The peaks in memory: growth on demand and the shifts of move().
class tst_PeakVector : public QObject
{
    Q_OBJECT

private slots:
    void move_data();
    void move();
    void growsOnDemand();
};

void tst_PeakVector::move_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<QVector<float>>("firsts");

    QTest::newRow("none") << 0 << QVector<float> { 1, 2, 3, 4, 5 };
    QTest::newRow("two from the front, shorter") << 2 << QVector<float> { 3, 4, 5 };
    QTest::newRow("one less than the length") << 4 << QVector<float> { 5 };
    QTest::newRow("two zeros in front, same length") << -2 << QVector<float> { 0, 0, 1, 2, 3 };
    QTest::newRow("the whole length zeroes") << 5 << QVector<float> { 0, 0, 0, 0, 0 };
    QTest::newRow("more than the length backwards zeroes") << -9 << QVector<float> { 0, 0, 0, 0, 0 };
}

void tst_PeakVector::move()
{
    QFETCH(int, shift);
    QFETCH(QVector<float>, firsts);

    PeakVector peaks;
    for (int x = 1; x <= 5; ++x) {
        peaks.addPeak(x, -x, 0);
        peaks.addPeak(10 * x, -10 * x, 1);
    }
    peaks.move(shift);
    QCOMPARE(peaks.numPeakFrames(), firsts.size());
    for (int x = 0; x < firsts.size(); ++x) {
        QCOMPARE(peaks.peakInfo(x, 0), PeakInfo(firsts[x], -firsts[x]));
        QCOMPARE(peaks.peakInfo(x, 1), PeakInfo(10 * firsts[x], -10 * firsts[x]));
    }
}

void tst_PeakVector::growsOnDemand()
{
    PeakVector peaks;
    QVERIFY(peaks.isEmpty());
    peaks.addPeak(0.5f, -0.5f, 3);
    QCOMPARE(peaks.peakChannels(), 4);
    QCOMPARE(peaks.numPeakFrames(), 1);
    peaks.insertPeaks(0.25f, -0.25f, 5, 2, 3);
    QCOMPARE(peaks.peakChannels(), 6);
    QCOMPARE(peaks.numPeakFrames(), 5);
    QCOMPARE(peaks.peakInfoVector(5).front(), PeakInfo());
    QCOMPARE(peaks.peakInfoVector(5).back(), PeakInfo(0.25f, -0.25f));
    peaks.peakInfo(9, 1) = PeakInfo(1, 1);
    QCOMPARE(peaks.numPeakFrames(), 10);
    const PeakVector& fixed = peaks;
    QVERIFY_EXCEPTION_THROWN(fixed.peakInfo(10, 1), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(fixed.peakInfo(0, 6), std::out_of_range);
    peaks.clear();
    QVERIFY(peaks.isEmpty());
    QCOMPARE(peaks.peakChannels(), 0);
}

QTEST_GUILESS_MAIN(tst_PeakVector)
#include "tst_PeakVector.moc"
