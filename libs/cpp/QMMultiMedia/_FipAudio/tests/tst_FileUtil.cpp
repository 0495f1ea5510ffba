#include "Common/FileUtil.h"

#include <QtTest>

#include <cstdio>

using Audio::FileUtil;

namespace {

// A temporary stream that closes itself.
struct TempFile
{
    TempFile()
        : file(std::tmpfile())
    {
    }
    ~TempFile()
    {
        if (file)
            std::fclose(file);
    }
    QByteArray bytes() const
    {
        std::fflush(file);
        const long end = std::ftell(file);
        std::rewind(file);
        QByteArray data(static_cast<int>(end), '\0');
        const size_t got = std::fread(data.data(), 1, data.size(), file);
        data.resize(static_cast<int>(got));
        std::rewind(file);
        return data;
    }
    FILE* file;
};

} // namespace

class tst_FileUtil : public QObject
{
    Q_OBJECT

private slots:
    void swap_data();
    void swap();
    void writeThenRead_data();
    void writeThenRead();
    void shortReadGivesZero_data();
    void shortReadGivesZero();
    void writeToReadOnlyStreamFails();
};

void tst_FileUtil::swap_data()
{
    QTest::addColumn<qulonglong>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<qulonglong>("swapped");

    QTest::newRow("16") << 0x1234ULL << 2 << 0x3412ULL;
    QTest::newRow("16 high bit") << 0x80ffULL << 2 << 0xff80ULL;
    QTest::newRow("32") << 0x12345678ULL << 4 << 0x78563412ULL;
    QTest::newRow("32 high bits") << 0xff000080ULL << 4 << 0x800000ffULL;
    QTest::newRow("64") << 0x0102030405060708ULL << 8 << 0x0807060504030201ULL;
    QTest::newRow("64 high bits") << 0xff00000000000080ULL << 8 << 0x80000000000000ffULL;
}

void tst_FileUtil::swap()
{
    QFETCH(qulonglong, value);
    QFETCH(int, width);
    QFETCH(qulonglong, swapped);

    if (width == 2) {
        QCOMPARE(FileUtil::swapS(static_cast<unsigned short>(value)), static_cast<unsigned short>(swapped));
        QCOMPARE(FileUtil::swapS(static_cast<unsigned short>(swapped)), static_cast<unsigned short>(value));
    } else if (width == 4) {
        QCOMPARE(FileUtil::swapL(static_cast<unsigned int>(value)), static_cast<unsigned int>(swapped));
        QCOMPARE(FileUtil::swapL(static_cast<unsigned int>(swapped)), static_cast<unsigned int>(value));
    } else {
        QCOMPARE(FileUtil::swapLL(value), static_cast<unsigned long long>(swapped));
        QCOMPARE(FileUtil::swapLL(swapped), static_cast<unsigned long long>(value));
    }
}

void tst_FileUtil::writeThenRead_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("swap");
    QTest::addColumn<qulonglong>("value");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("byte") << 1 << false << 0xa5ULL << QByteArray("\xa5", 1);
    QTest::newRow("16 little endian") << 2 << false << 0x1234ULL << QByteArray("\x34\x12", 2);
    QTest::newRow("16 big endian") << 2 << true << 0x1234ULL << QByteArray("\x12\x34", 2);
    QTest::newRow("32 little endian") << 4 << false << 0x12345678ULL << QByteArray("\x78\x56\x34\x12", 4);
    QTest::newRow("32 big endian") << 4 << true << 0x12345678ULL << QByteArray("\x12\x34\x56\x78", 4);
    QTest::newRow("32 'RIFF' size") << 4 << false << 0xfffffff8ULL << QByteArray("\xf8\xff\xff\xff", 4);
    QTest::newRow("64 little endian") << 8 << false << 0x0102030405060708ULL
                                      << QByteArray("\x08\x07\x06\x05\x04\x03\x02\x01", 8);
    QTest::newRow("64 big endian") << 8 << true << 0x0102030405060708ULL
                                   << QByteArray("\x01\x02\x03\x04\x05\x06\x07\x08", 8);
}

void tst_FileUtil::writeThenRead()
{
    QFETCH(int, width);
    QFETCH(bool, swap);
    QFETCH(qulonglong, value);
    QFETCH(QByteArray, bytes);

    TempFile temp;
    QVERIFY(temp.file);
    size_t written = 0;
    switch (width) {
    case 1: written = FileUtil::writeB(static_cast<unsigned char>(value), temp.file); break;
    case 2: written = FileUtil::writeS(static_cast<unsigned short>(value), temp.file, swap); break;
    case 4: written = FileUtil::writeL(static_cast<unsigned int>(value), temp.file, swap); break;
    default: written = FileUtil::writeLL(value, temp.file, swap); break;
    }
    QVERIFY(written > 0);
    QCOMPARE(temp.bytes(), bytes);

    qulonglong read = 0;
    switch (width) {
    case 1: read = FileUtil::readB(temp.file); break;
    case 2: read = FileUtil::readS(temp.file, swap); break;
    case 4: read = FileUtil::readL(temp.file, swap); break;
    default: read = FileUtil::readLL(temp.file, swap); break;
    }
    QCOMPARE(read, value);
}

void tst_FileUtil::shortReadGivesZero_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("available");

    QTest::newRow("byte from empty file") << 1 << 0;
    QTest::newRow("16 from one byte") << 2 << 1;
    QTest::newRow("32 from three bytes") << 4 << 3;
    QTest::newRow("64 from seven bytes") << 8 << 7;
}

void tst_FileUtil::shortReadGivesZero()
{
    QFETCH(int, width);
    QFETCH(int, available);

    TempFile temp;
    QVERIFY(temp.file);
    for (int i = 0; i < available; ++i)
        FileUtil::writeB(0x7f, temp.file);
    std::rewind(temp.file);
    qulonglong read = 1;
    switch (width) {
    case 1: read = FileUtil::readB(temp.file); break;
    case 2: read = FileUtil::readS(temp.file, true); break;
    case 4: read = FileUtil::readL(temp.file, false); break;
    default: read = FileUtil::readLL(temp.file, true); break;
    }
    QCOMPARE(read, 0ULL);
}

void tst_FileUtil::writeToReadOnlyStreamFails()
{
    QTemporaryFile backing;
    QVERIFY(backing.open());
    FILE* file = std::fopen(QFile::encodeName(backing.fileName()).constData(), "rb");
    QVERIFY(file);
    QCOMPARE(FileUtil::writeB(1, file), size_t(0));
    QCOMPARE(FileUtil::writeS(1, file, false), size_t(0));
    QCOMPARE(FileUtil::writeL(1, file, true), size_t(0));
    QCOMPARE(FileUtil::writeLL(1, file, false), size_t(0));
    std::fclose(file);
}

QTEST_GUILESS_MAIN(tst_FileUtil)
#include "tst_FileUtil.moc"
