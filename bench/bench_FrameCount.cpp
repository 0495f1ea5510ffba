// Speed of one million frame <-> timecode conversions.
#include "FrameCount.h"

#include <QtTest>

using MTools::FipTime;
using MTools::FrameCount;

class bench_FrameCount : public QObject
{
    Q_OBJECT

private slots:
    void frameToTimecode_data();
    void frameToTimecode();
    void timecodeToFrame_data();
    void timecodeToFrame();
    void frameToText();
    void textToFrame();
    void packedRoundTrip();

private:
    static const int conversions = 1000 * 1000;
};

void bench_FrameCount::frameToTimecode_data()
{
    QTest::addColumn<float>("fps");
    QTest::addColumn<bool>("pulldown");
    QTest::newRow("25") << 25.0f << false;
    QTest::newRow("29.97 drop-frame") << 29.97f << false;
    QTest::newRow("30 with pulldown") << 30.0f << true;
}

void bench_FrameCount::frameToTimecode()
{
    QFETCH(float, fps);
    QFETCH(bool, pulldown);
    long long sum = 0;
    QBENCHMARK
    {
        FrameCount count(0, fps);
        for (int i = 0; i < conversions; ++i) {
            count.setFrameCount(i * 7LL);
            int h, m, s, f;
            count.timecodeFromFrameCount(&h, &m, &s, &f, false, 0, pulldown, 2);
            sum += h + m + s + f;
        }
    }
    QVERIFY(sum > 0);
}

void bench_FrameCount::timecodeToFrame_data()
{
    frameToTimecode_data();
}

void bench_FrameCount::timecodeToFrame()
{
    QFETCH(float, fps);
    QFETCH(bool, pulldown);
    const FrameCount count(0, fps);
    FipTime sum = 0;
    QBENCHMARK
    {
        for (int i = 0; i < conversions; ++i)
            sum += count.frameCountFromTimecode(i % 24, i % 60, (i / 60) % 60, i % 24, pulldown, 3);
    }
    QVERIFY(sum > 0);
}

void bench_FrameCount::frameToText()
{
    int length = 0;
    QBENCHMARK
    {
        FrameCount count(0, 29.97f);
        for (int i = 0; i < conversions; ++i) {
            count.setFrameCount(i * 7LL);
            length += count.timecodeFromFrameCount().size();
        }
    }
    QVERIFY(length > 0);
}

void bench_FrameCount::textToFrame()
{
    const QString text = QStringLiteral("12:34:56;12");
    const FrameCount count(0, 29.97f);
    FipTime sum = 0;
    QBENCHMARK
    {
        for (int i = 0; i < conversions; ++i)
            sum += count.frameCountFromTimecode(text);
    }
    QVERIFY(sum > 0);
}

void bench_FrameCount::packedRoundTrip()
{
    FipTime sum = 0;
    QBENCHMARK
    {
        FrameCount count(0, 29.97f);
        for (int i = 0; i < conversions; ++i) {
            count.setFrameCount(i * 7LL);
            sum += FrameCount(29.97f, count.calcSmpteTimecode()).frame();
        }
    }
    QVERIFY(sum > 0);
}

QTEST_GUILESS_MAIN(bench_FrameCount)
#include "bench_FrameCount.moc"
