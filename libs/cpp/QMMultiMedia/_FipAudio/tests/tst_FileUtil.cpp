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
    void writeToReadOnlyStreamFails();

private:
    static size_t write(int width, qulonglong value, FILE* file, bool swap)
    {
        switch (width) {
        case 1: return FileUtil::writeB(static_cast<unsigned char>(value), file);
        case 2: return FileUtil::writeS(static_cast<unsigned short>(value), file, swap);
        case 4: return FileUtil::writeL(static_cast<unsigned int>(value), file, swap);
        default: return FileUtil::writeLL(value, file, swap);
        }
    }
    static qulonglong read(int width, FILE* file, bool swap)
    {
        switch (width) {
        case 1: return FileUtil::readB(file);
        case 2: return FileUtil::readS(file, swap);
        case 4: return FileUtil::readL(file, swap);
        default: return FileUtil::readLL(file, swap);
        }
    }
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

    FILE* file = std::tmpfile();
    QVERIFY(file);
    QVERIFY(write(width, value, file, swap) > 0);
    std::rewind(file);
    QByteArray written(width + 1, '?');
    written.resize(int(std::fread(written.data(), 1, written.size(), file)));
    QCOMPARE(written, bytes);
    std::rewind(file);
    QCOMPARE(read(width, file, swap), value);

    std::fclose(file);
    file = std::tmpfile();
    std::fwrite(bytes.constData(), 1, width - 1, file);
    std::rewind(file);
    QCOMPARE(read(width, file, swap), 0ULL);
    std::fclose(file);
}

void tst_FileUtil::writeToReadOnlyStreamFails()
{
    QTemporaryFile backing;
    QVERIFY(backing.open());
    FILE* file = std::fopen(QFile::encodeName(backing.fileName()).constData(), "rb");
    QVERIFY(file);
    for (int width : { 1, 2, 4, 8 })
        QCOMPARE(write(width, 1, file, width == 4), size_t(0));
    std::fclose(file);
}

QTEST_GUILESS_MAIN(tst_FileUtil)
#include "tst_FileUtil.moc"
