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
    void mixing_data();
    void mixing();
    void milliseconds_data();
    void milliseconds();
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

// The read-back through both layers, and unmuting stores the read-back value again.
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
    QCOMPARE(player.isMuted(), readBack < 1);
    player.setMuted(true);
    QCOMPARE(player.volume(), 0.0);
    player.setMuted(false);
    internal.setVolume(readBack); // unmuting stores the read-back value again
    QCOMPARE(player.volume(), double(internal.volume()));
}

void tst_PlaybackArithmetic::mixing_data()
{
    QTest::addColumn<float>("pan");
    QTest::addColumn<float>("volume");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QVector<float>>("source");
    QTest::addColumn<QVector<int>>("expected"); // interleaved left, right

    const QVector<float> mono { 0.5f, -0.25f };
    const QVector<float> stereo { 0.5f, -0.5f, 0.25f, 1.0f };
    QTest::newRow("mono centred on both sides")
        << 0.0f << 1.0f << 1 << mono << QVector<int> { 16384, 16384, -8192, -8192 };
    QTest::newRow("mono full left silences the right")
        << -1.0f << 1.0f << 1 << mono << QVector<int> { 16384, 0, -8192, 0 };
    QTest::newRow("mono half right halves the left")
        << 0.5f << 1.0f << 1 << mono << QVector<int> { 8192, 16384, -4096, -8192 };
    QTest::newRow("beyond the left end acts as full left")
        << -3.0f << 1.0f << 1 << mono << QVector<int> { 16384, 0, -8192, 0 };
    QTest::newRow("stereo full left silences the right")
        << -1.0f << 1.0f << 2 << stereo << QVector<int> { 16384, 0, 8192, 0 };
    QTest::newRow("four channels use the first two")
        << 0.0f << 1.0f << 4 << QVector<float> { 0.5f, 0.25f, 1.0f, 1.0f } << QVector<int> { 16384, 8192 };
    QTest::newRow("over full scale clips")
        << 0.0f << 1.0f << 2 << QVector<float> { 1.7f, -1.7f } << QVector<int> { 32767, -32768 };
    QTest::newRow("volume one percent") << 0.0f << 0.01f << 1 << QVector<float> { 1.0f } << QVector<int> { 328, 328 };
    QTest::newRow("volume zero is silent") << 0.0f << 0.0f << 1 << QVector<float> { 0.9f } << QVector<int> { 0, 0 };
}

void tst_PlaybackArithmetic::mixing()
{
    QFETCH(float, pan);
    QFETCH(float, volume);
    QFETCH(int, channels);
    QFETCH(QVector<float>, source);
    QFETCH(QVector<int>, expected);

    const qint64 frames = source.size() / channels;
    QVector<qint16> target(int(frames * 2), qint16(12345));
    PlaybackArithmetic::mixToStereo16(source.constData(), channels, frames, volume, pan, target.data());
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY2(qAbs(target.at(i) - expected.at(i)) <= 1,
            qPrintable(QStringLiteral("sample %1: %2 instead of %3").arg(i).arg(target.at(i)).arg(expected.at(i))));
}

void tst_PlaybackArithmetic::milliseconds_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<qint64>("position");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<qint64>("frames");

    QTest::newRow("position rounds, duration truncates") << 1.8006 << qint64(1801) << qint64(1800) << qint64(79406);
    QTest::newRow("guitar sample") << 79380.0 / 44100.0 << qint64(1800) << qint64(1800) << qint64(79380);
    QTest::newRow("negative is the start") << -1.0 << qint64(-1000) << qint64(-1000) << qint64(0);
}

void tst_PlaybackArithmetic::milliseconds()
{
    QFETCH(double, seconds);
    QFETCH(qint64, position);
    QFETCH(qint64, duration);
    QFETCH(qint64, frames);

    QCOMPARE(PlaybackArithmetic::positionMilliseconds(seconds), position);
    QCOMPARE(PlaybackArithmetic::durationMilliseconds(seconds), duration);
    QCOMPARE(PlaybackArithmetic::secondsToFrames(seconds, 44100), frames);
    QCOMPARE(PlaybackArithmetic::secondsToFrames(seconds, 0), qint64(0));
}

QTEST_GUILESS_MAIN(tst_PlaybackArithmetic)
#include "tst_PlaybackArithmetic.moc"
