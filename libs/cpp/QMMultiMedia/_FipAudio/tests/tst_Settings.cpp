#include "Common/FileInfo.h"
#include "Common/Settings.h"

#include <QtTest>

using Audio::FileInfo;
using Audio::Settings;

Q_DECLARE_METATYPE(Audio::Settings)

class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void equality_data();
    void equality();
    void formatName_data();
    void formatName();
    void dumpWritesEveryValue();
    void fileInfoAssignmentLeavesUrl();
};

void tst_Settings::equality_data()
{
    QTest::addColumn<Settings>("other");
    QTest::addColumn<bool>("equal");

    QTest::newRow("same") << Settings(44100, 2, Settings::LittleEndianSigned16, 16) << true;
    QTest::newRow("rate differs") << Settings(48000, 2, Settings::LittleEndianSigned16, 16) << false;
    QTest::newRow("channels differ") << Settings(44100, 1, Settings::LittleEndianSigned16, 16) << false;
    QTest::newRow("format differs") << Settings(44100, 2, Settings::BigEndianSigned16, 16) << false;
    QTest::newRow("bits differ") << Settings(44100, 2, Settings::LittleEndianSigned16, 24) << false;
}

void tst_Settings::equality()
{
    QFETCH(Settings, other);
    QFETCH(bool, equal);

    const Settings reference(44100, 2, Settings::LittleEndianSigned16, 16);
    QCOMPARE(reference == other, equal);
    QCOMPARE(reference != other, !equal);

    Settings assigned;
    assigned = other;
    QVERIFY(assigned == other);
    Settings built;
    built.setSampleRate(44100);
    built.setChannels(2);
    built.setFmt(Settings::LittleEndianSigned16);
    built.setBitsPerSample(16);
    QVERIFY(built == reference);
}

void tst_Settings::formatName_data()
{
    QTest::addColumn<int>("fmt");
    QTest::addColumn<QString>("name");

    QTest::newRow("0") << 0 << "Query";
    QTest::newRow("1") << 1 << "Mu-Law";
    QTest::newRow("2") << 2 << "A-Law";
    QTest::newRow("4") << 4 << "Ima ADPCM";
    QTest::newRow("8") << 8 << "Unsigned 8";
    QTest::newRow("16") << 16 << "Little endian signed 16";
    QTest::newRow("32") << 32 << "Big endian signed 16";
    QTest::newRow("64") << 64 << "Signed 8";
    QTest::newRow("128") << 128 << "Little endian unsigned 16";
    QTest::newRow("256") << 256 << "Big endian unsigned 16";
    QTest::newRow("512") << 512 << "MPEG";
    QTest::newRow("1024") << 1024 << "AC3";
    QTest::newRow("2048") << 2048 << "Signed 24 Normal";
    QTest::newRow("4096") << 4096 << "Signed 24 Swapped";
    QTest::newRow("two bits") << 3 << "Unknown";
    QTest::newRow("8192") << 8192 << "Unknown";
    QTest::newRow("negative") << -1 << "Unknown";
}

void tst_Settings::formatName()
{
    QFETCH(int, fmt);
    QFETCH(QString, name);

    QCOMPARE(Settings::formatName(static_cast<short>(fmt)), name);
}

void tst_Settings::dumpWritesEveryValue()
{
    const Settings settings(48000, 2, Settings::Signed24Normal, 24);
    QTest::ignoreMessage(QtDebugMsg, "---- Settings Info Begin -----");
    QTest::ignoreMessage(QtDebugMsg, "Channels = 2");
    QTest::ignoreMessage(QtDebugMsg, "Bits Per Sample = 24");
    QTest::ignoreMessage(QtDebugMsg, "Sample Rate = 48000");
    QTest::ignoreMessage(QtDebugMsg, "Format = 2048 (Signed 24 Normal)");
    QTest::ignoreMessage(QtDebugMsg, "---- Settings Info End-----");
    settings.dump();
}

void tst_Settings::fileInfoAssignmentLeavesUrl()
{
    FileInfo source;
    source.setUrl(QUrl::fromLocalFile(QStringLiteral("/tmp/a.wav")));
    source.setComment(QStringLiteral("take 3"));
    source.setDataOffset(36);
    source.setNumSamples(1000);
    source.setFileSize(2036);
    source.setDataSize(2000);
    source.setSizeOffset(40);
    source.setCompression(1);

    FileInfo target;
    target.setUrl(QUrl::fromLocalFile(QStringLiteral("/tmp/b.wav")));
    target = source;
    QCOMPARE(target.url(), QUrl::fromLocalFile(QStringLiteral("/tmp/b.wav")));
    QCOMPARE(target.comment(), QStringLiteral("take 3"));
    QCOMPARE(target.dataOffset(), 36u);
    QCOMPARE(target.numSamples(), 1000u);
    QCOMPARE(target.fileSize(), 2036u);
    QCOMPARE(target.dataSize(), 2000u);
    QCOMPARE(target.sizeOffset(), 40u);
    QCOMPARE(target.compression(), 1u);

    const FileInfo copied(source);
    QCOMPARE(copied.url(), source.url());
    QCOMPARE(copied.dataSize(), 2000u);
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_Settings.moc"
