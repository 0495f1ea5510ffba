#include "SuspendRamp.h"

#include <QtTest>

using namespace QMMultiMedia;

// The fades around a suspension, on a constant signal fed in batches.
class tst_SuspendRamp : public QObject
{
    Q_OBJECT

private slots:
    void fades_data();
    void fades();
};

void tst_SuspendRamp::fades_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("rampFrames");
    QTest::addColumn<int>("batch"); // frames per push
    QTest::addColumn<int>("before"); // frames before the suspension
    QTest::addColumn<int>("after"); // frames after it

    QTest::newRow("mono, batches longer than the ramp") << 1 << 8 << 20 << 60 << 60;
    QTest::newRow("stereo, batches shorter than the ramp") << 2 << 8 << 3 << 30 << 30;
    QTest::newRow("stereo, single frames") << 2 << 5 << 1 << 12 << 12;
    QTest::newRow("suspended before a whole ramp arrived") << 1 << 8 << 2 << 4 << 20;
    QTest::newRow("no ramp") << 2 << 0 << 7 << 21 << 21;
}

void tst_SuspendRamp::fades()
{
    QFETCH(int, channels);
    QFETCH(int, rampFrames);
    QFETCH(int, batch);
    QFETCH(int, before);
    QFETCH(int, after);

    const qint16 level = 10000;
    SuspendRamp ramp(channels, rampFrames);
    QVector<qint16> out;
    const QVector<qint16> samples(batch * channels, level);
    const auto feed = [&](int frames) {
        for (int done = 0; done < frames; done += batch)
            ramp.push(samples.constData(), qMin(batch, frames - done), &out);
    };
    feed(before);
    ramp.fadeOut(&out);
    QCOMPARE(out.size(), before * channels);
    feed(after);
    ramp.flush(&out);
    QCOMPARE(out.size(), (before + after) * channels);

    // Channels move together; the level falls to silence at the suspension
    // and climbs back from it, never by more than one ramp step at a time.
    const int step = rampFrames > 0 ? level / rampFrames + 1 : level;
    for (int frame = 0; frame < before + after; ++frame) {
        for (int c = 1; c < channels; ++c)
            QCOMPARE(out.at(frame * channels + c), out.at(frame * channels));
        if (frame > 0 && frame != before && (rampFrames > 0 || frame < before))
            QVERIFY2(qAbs(out.at(frame * channels) - out.at((frame - 1) * channels)) <= step,
                qPrintable(QStringLiteral("frame %1").arg(frame)));
    }
    if (rampFrames > 0) {
        QCOMPARE(out.at((before - 1) * channels), qint16(0));
        QCOMPARE(out.at(before * channels), qint16(0));
    }
    QCOMPARE(out.at(0), before > rampFrames ? level : out.at(0));
    QCOMPARE(out.last(), after > rampFrames ? level : out.last());
}

QTEST_APPLESS_MAIN(tst_SuspendRamp)
#include "tst_SuspendRamp.moc"
