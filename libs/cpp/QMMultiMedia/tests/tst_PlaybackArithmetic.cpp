#include "NativeAudioPlayer.h"
#include "NativeAudioPlayerInternal.h"
#include "PlaybackArithmetic.h"

#include <QtTest>

using namespace QMMultiMedia;

class tst_PlaybackArithmetic : public QObject
{
    Q_OBJECT

private slots:
    void volumeReadBack_data();
    void volumeReadBack();
    void mutedRoundTrip_data();
    void mutedRoundTrip();
    void balanceMixing_data();
    void balanceMixing();
    void mixingClipsAndScales_data();
    void mixingClipsAndScales();
    void milliseconds_data();
    void milliseconds();
    void frames_data();
    void frames();
};

void tst_PlaybackArithmetic::volumeReadBack_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("readBack");

    QTest::newRow("1 reads 0") << 1 << 0;
    QTest::newRow("6 reads 5") << 6 << 5;
    QTest::newRow("29 reads 28") << 29 << 28;
    QTest::newRow("51 reads 50") << 51 << 50;
    QTest::newRow("96 reads 95") << 96 << 95;
    QTest::newRow("0 unchanged") << 0 << 0;
    QTest::newRow("5 unchanged") << 5 << 5;
    QTest::newRow("7 unchanged") << 7 << 7;
    QTest::newRow("10 unchanged") << 10 << 10;
    QTest::newRow("50 unchanged") << 50 << 50;
    QTest::newRow("100 unchanged") << 100 << 100;
    QTest::newRow("150 acts as 100") << 150 << 100;
    QTest::newRow("negative passes as it is") << -20 << -20;
}

void tst_PlaybackArithmetic::volumeReadBack()
{
    QFETCH(int, set);
    QFETCH(int, readBack);

    NativeAudioPlayerInternal internal;
    internal.setVolume(set);
    QCOMPARE(internal.volume(), readBack);

    NativeAudioPlayer player;
    player.setVolume(set + (set < 0 ? -0.9 : 0.9)); // the fraction is dropped before the store
    QCOMPARE(player.volume(), double(readBack));
}

void tst_PlaybackArithmetic::mutedRoundTrip_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("afterUnmute");
    QTest::addColumn<bool>("mutedBefore");

    QTest::newRow("50 survives") << 50 << 50 << false;
    QTest::newRow("29 loses one percent") << 29 << 28 << false;
    QTest::newRow("1 counts as muted") << 1 << 0 << true;
    QTest::newRow("0 is muted") << 0 << 0 << true;
}

void tst_PlaybackArithmetic::mutedRoundTrip()
{
    QFETCH(int, set);
    QFETCH(int, afterUnmute);
    QFETCH(bool, mutedBefore);

    NativeAudioPlayer player;
    QCOMPARE(player.volume(), 50.0);
    player.setVolume(set);
    QCOMPARE(player.isMuted(), mutedBefore);
    player.setMuted(true);
    QVERIFY(player.isMuted());
    QCOMPARE(player.volume(), 0.0);
    player.setMuted(false);
    QCOMPARE(player.volume(), double(afterUnmute));
}

void tst_PlaybackArithmetic::balanceMixing_data()
{
    QTest::addColumn<float>("pan");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QVector<float>>("source");
    QTest::addColumn<QVector<int>>("expected"); // interleaved left, right

    const QVector<float> mono { 0.5f, -0.25f };
    const QVector<float> stereo { 0.5f, -0.5f, 0.25f, 1.0f };

    QTest::newRow("mono centred on both sides") << 0.0f << 1 << mono << QVector<int> { 16384, 16384, -8192, -8192 };
    QTest::newRow("mono full left silences the right") << -1.0f << 1 << mono << QVector<int> { 16384, 0, -8192, 0 };
    QTest::newRow("mono full right silences the left") << 1.0f << 1 << mono << QVector<int> { 0, 16384, 0, -8192 };
    QTest::newRow("mono half right halves the left") << 0.5f << 1 << mono << QVector<int> { 8192, 16384, -4096, -8192 };
    QTest::newRow("mono beyond the left end acts as full left") << -3.0f << 1 << mono << QVector<int> { 16384, 0, -8192, 0 };
    QTest::newRow("stereo keeps its sides") << 0.0f << 2 << stereo << QVector<int> { 16384, -16384, 8192, 32767 };
    QTest::newRow("stereo full left silences the right") << -1.0f << 2 << stereo << QVector<int> { 16384, 0, 8192, 0 };
    QTest::newRow("four channels use the first two") << 0.0f << 4 << QVector<float> { 0.5f, 0.25f, 1.0f, 1.0f }
                                                     << QVector<int> { 16384, 8192 };
}

void tst_PlaybackArithmetic::balanceMixing()
{
    QFETCH(float, pan);
    QFETCH(int, channels);
    QFETCH(QVector<float>, source);
    QFETCH(QVector<int>, expected);

    const qint64 frames = source.size() / channels;
    QVector<qint16> target(int(frames * 2), qint16(12345));
    PlaybackArithmetic::mixToStereo16(source.constData(), channels, frames, 1.0f, pan, target.data());
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY2(qAbs(target.at(i) - expected.at(i)) <= 1,
                 qPrintable(QStringLiteral("sample %1: %2 instead of %3").arg(i).arg(target.at(i)).arg(expected.at(i))));
}

void tst_PlaybackArithmetic::mixingClipsAndScales_data()
{
    QTest::addColumn<float>("sample");
    QTest::addColumn<float>("volume");
    QTest::addColumn<int>("expected");

    QTest::newRow("full scale") << 1.0f << 1.0f << 32767;
    QTest::newRow("over full scale clips") << 1.7f << 1.0f << 32767;
    QTest::newRow("negative over full scale clips") << -1.7f << 1.0f << -32768;
    QTest::newRow("half volume") << 1.0f << 0.5f << 16384;
    QTest::newRow("volume one percent") << 1.0f << 0.01f << 328;
    QTest::newRow("volume zero is silent") << 0.9f << 0.0f << 0;
}

void tst_PlaybackArithmetic::mixingClipsAndScales()
{
    QFETCH(float, sample);
    QFETCH(float, volume);
    QFETCH(int, expected);

    qint16 target[2] = { 1, 1 };
    PlaybackArithmetic::mixToStereo16(&sample, 1, 1, volume, 0.0f, target);
    QVERIFY(qAbs(target[0] - expected) <= 1);
    QVERIFY(qAbs(target[1] - expected) <= 1);
}

void tst_PlaybackArithmetic::milliseconds_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<qint64>("position");
    QTest::addColumn<qint64>("duration");

    QTest::newRow("zero") << 0.0 << qint64(0) << qint64(0);
    QTest::newRow("position rounds, duration truncates") << 1.8006 << qint64(1801) << qint64(1800);
    QTest::newRow("just below a millisecond") << 0.0009 << qint64(1) << qint64(0);
    QTest::newRow("guitar sample") << 79380.0 / 44100.0 << qint64(1800) << qint64(1800);
}

void tst_PlaybackArithmetic::milliseconds()
{
    QFETCH(double, seconds);
    QFETCH(qint64, position);
    QFETCH(qint64, duration);

    QCOMPARE(PlaybackArithmetic::positionMilliseconds(seconds), position);
    QCOMPARE(PlaybackArithmetic::durationMilliseconds(seconds), duration);
}

void tst_PlaybackArithmetic::frames_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("rate");
    QTest::addColumn<qint64>("frames");

    QTest::newRow("1.8 s at 44.1 kHz") << 1.8 << 44100 << qint64(79380);
    QTest::newRow("half a second at 48 kHz") << 0.5 << 48000 << qint64(24000);
    QTest::newRow("negative is the start") << -1.0 << 44100 << qint64(0);
    QTest::newRow("no rate gives nothing") << 1.0 << 0 << qint64(0);
}

void tst_PlaybackArithmetic::frames()
{
    QFETCH(double, seconds);
    QFETCH(int, rate);
    QFETCH(qint64, frames);

    QCOMPARE(PlaybackArithmetic::secondsToFrames(seconds, rate), frames);
    if (rate > 0 && seconds >= 0.0)
        QCOMPARE(PlaybackArithmetic::framesToSeconds(frames, rate), seconds);
}

QTEST_GUILESS_MAIN(tst_PlaybackArithmetic)
#include "tst_PlaybackArithmetic.moc"
