#include "DecodedSoundCache.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

class tst_DecodedSoundCache : public QObject
{
    Q_OBJECT

private slots:
    void decode_data();
    void decode();
};

void tst_DecodedSoundCache::decode_data()
{
    // Steps: "a" plays tone a, "a+" rewrites it longer, "a-" removes it, "a!" fills it with text.
    QTest::addColumn<QStringList>("steps");
    // Per step: frames heard (0: silent) and whether the samples came from the cache.
    QTest::addColumn<QList<int>>("frames");
    QTest::addColumn<QList<bool>>("cached");
    QTest::addColumn<int>("finalCount");

    QTest::newRow("the same file twice is decoded once")
        << QStringList { "a", "a" } << QList<int> { 441, 441 } << QList<bool> { false, true } << 1;
    QTest::newRow("a changed file is heard as it is now")
        << QStringList { "a", "a+", "a", "a" } << QList<int> { 441, 0, 882, 882 }
        << QList<bool> { false, false, false, true } << 1;
    QTest::newRow("a removed file is silent and leaves the cache")
        << QStringList { "a", "a-", "a" } << QList<int> { 441, 0, 0 } << QList<bool> { false, false, false } << 0;
    QTest::newRow("a broken file is not kept")
        << QStringList { "a!", "a", "a" } << QList<int> { 0, 0, 0 } << QList<bool> { false, false, false } << 0;
    QTest::newRow("beyond two sounds the least recently used goes")
        << QStringList { "a", "b", "a", "c", "a", "b" } << QList<int> { 441, 441, 441, 441, 441, 441 }
        << QList<bool> { false, false, true, false, true, false } << 2;
}

void tst_DecodedSoundCache::decode()
{
    QFETCH(QStringList, steps);
    QFETCH(QList<int>, frames);
    QFETCH(QList<bool>, cached);
    QFETCH(int, finalCount);

    QTemporaryDir dir;
    DecodedSoundCache cache(2, 1000000);
    // Holding the last sound of each file keeps its samples alive, so that
    // shared samples are told apart from a new decoding by their address.
    QHash<QString, DecodedSound> last;
    for (const QString& name : { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c") })
        QVERIFY(TestSounds::writeSineWave(dir.filePath(name + QStringLiteral(".wav")), 0.01));

    for (int i = 0; i < steps.size(); ++i) {
        const QString path = dir.filePath(steps.at(i).left(1) + QStringLiteral(".wav"));
        const QString change = steps.at(i).mid(1);
        if (change == QLatin1String("+")) {
            // A new length and a modification time that differs from before.
            QVERIFY(TestSounds::writeSineWave(path, 0.02));
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(5), QFileDevice::FileModificationTime));
            continue;
        }
        if (change == QLatin1String("-")) {
            QVERIFY(QFile::remove(path));
            continue;
        }
        if (change == QLatin1String("!")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a sound") > 0);
            file.close();
        }
        DecodedSound sound;
        QCOMPARE(cache.decode(path, &sound), frames.at(i) > 0);
        QCOMPARE(sound.frames(), qint64(frames.at(i)));
        if (frames.at(i) > 0) {
            QCOMPARE(sound.samples.constData() == last.value(path).samples.constData(), cached.at(i));
            last.insert(path, sound);
        }
    }
    QCOMPARE(cache.count(), finalCount);
}

QTEST_GUILESS_MAIN(tst_DecodedSoundCache)
#include "tst_DecodedSoundCache.moc"
