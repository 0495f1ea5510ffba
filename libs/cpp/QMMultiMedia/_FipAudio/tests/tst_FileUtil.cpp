#include "Common/FileUtil.h"

#include <QtTest>

#include <cstdio>

using Audio::FileUtil;

class tst_FileUtil : public QObject
{
    Q_OBJECT

private slots:
    void writeThenRead_data();
    void writeThenRead();
};

void tst_FileUtil::writeThenRead_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("swap");
    QTest::addColumn<qulonglong>("value");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("byte") << 1 << false << 0xa5ULL << QByteArray("\xa5", 1);
    QTest::newRow("16 little endian") << 2 << false << 0x80ffULL << QByteArray("\xff\x80", 2);
    QTest::newRow("16 big endian") << 2 << true << 0x80ffULL << QByteArray("\x80\xff", 2);
    QTest::newRow("32 little endian") << 4 << false << 0xff345680ULL << QByteArray("\x80\x56\x34\xff", 4);
    QTest::newRow("32 big endian") << 4 << true << 0xff345680ULL << QByteArray("\xff\x34\x56\x80", 4);
    QTest::newRow("64 little endian") << 8 << false << 0xff02030405060780ULL
                                      << QByteArray("\x80\x07\x06\x05\x04\x03\x02\xff", 8);
    QTest::newRow("64 big endian") << 8 << true << 0xff02030405060780ULL
                                   << QByteArray("\xff\x02\x03\x04\x05\x06\x07\x80", 8);
}

// The bytes in the file, the value read back, and a read one byte short gives 0.
void tst_FileUtil::writeThenRead()
{
    QFETCH(int, width);
    QFETCH(bool, swap);
    QFETCH(qulonglong, value);
    QFETCH(QByteArray, bytes);

    auto read = [&](FILE* file) -> qulonglong {
        std::rewind(file);
        return width == 1 ? FileUtil::readB(file)
            : width == 2  ? FileUtil::readS(file, swap)
            : width == 4  ? FileUtil::readL(file, swap)
                          : FileUtil::readLL(file, swap);
    };
    FILE* file = std::tmpfile();
    QVERIFY(file);
    const size_t written = width == 1 ? FileUtil::writeB(static_cast<unsigned char>(value), file)
        : width == 2                  ? FileUtil::writeS(static_cast<unsigned short>(value), file, swap)
        : width == 4                  ? FileUtil::writeL(static_cast<unsigned int>(value), file, swap)
                                      : FileUtil::writeLL(value, file, swap);
    QVERIFY(written > 0);
    std::rewind(file);
    QByteArray inFile(width + 1, '?');
    inFile.resize(int(std::fread(inFile.data(), 1, inFile.size(), file)));
    QCOMPARE(inFile, bytes);
    QCOMPARE(read(file), value);
    std::fclose(file);

    file = std::tmpfile();
    std::fwrite(bytes.constData(), 1, width - 1, file);
    QCOMPARE(read(file), 0ULL);
    std::fclose(file);
}

QTEST_GUILESS_MAIN(tst_FileUtil)
#include "tst_FileUtil.moc"
