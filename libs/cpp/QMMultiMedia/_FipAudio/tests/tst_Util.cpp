#include "Common/Util.h"

#include <QtTest>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

using Audio::Util;

typedef std::function<void(const float*, int*, int)> FloatToInt;
typedef std::function<void(const int*, float*, int)> IntToFloat;
// n counts samples in both; the wrappers turn it into what each call counts.
typedef std::function<void(const char*, int*, int)> RawToInt;
typedef std::function<void(const int*, char*, int)> IntToRaw;

Q_DECLARE_METATYPE(FloatToInt)
Q_DECLARE_METATYPE(IntToFloat)
Q_DECLARE_METATYPE(RawToInt)
Q_DECLARE_METATYPE(IntToRaw)

namespace {

// Runs a conversion out of place and in place (one array as source and target);
// the cell after the array must stay untouched.
template <typename From, typename To, typename Convert>
void checkBothWays(const QVector<From>& input, const QVector<To>& expected, Convert convert)
{
    QVector<To> separate(expected.size(), To(7));
    convert(input.constData(), separate.data(), input.size());
    QCOMPARE(separate, expected);

    const size_t bytes = qMax(sizeof(From) * input.size(), sizeof(To) * expected.size());
    std::vector<std::uint32_t> cells(bytes / 4 + 2, 0xdeadbeefu);
    std::memcpy(cells.data(), input.constData(), sizeof(From) * input.size());
    convert(reinterpret_cast<From*>(cells.data()), reinterpret_cast<To*>(cells.data()), input.size());
    const To* out = reinterpret_cast<To*>(cells.data());
    QCOMPARE(QVector<To>(out, out + expected.size()), expected);
    QCOMPARE(cells.back(), 0xdeadbeefu);
}

const float step16 = 1.0f / 32768.0f;
const float step24 = 1.0f / 8388608.0f;

} // namespace

class tst_Util : public QObject
{
    Q_OBJECT

private slots:
    void floatToInt_data();
    void floatToInt();
    void intToFloat_data();
    void intToFloat();
    void raw_data();
    void raw();
    void ieeeExtended_data();
    void ieeeExtended();
};

void tst_Util::floatToInt_data()
{
    QTest::addColumn<FloatToInt>("convert");
    QTest::addColumn<QVector<float>>("input");
    QTest::addColumn<QVector<int>>("expected");

    // The shorts are widened back from the last to the first, in the same array.
    const FloatToInt toShort = [](const float* s, int* d, int n) {
        short* shorts = reinterpret_cast<short*>(d);
        Util::convertFloatToShort16(s, shorts, n);
        for (int i = n - 1; i >= 0; --i)
            d[i] = shorts[i];
    };
    QTest::newRow("8 clamps and sign boundary")
        << FloatToInt(Util::convertFloatTo8)
        << QVector<float> { 1.0f, -3.0f, 0.5f / 128, -0.5f / 128, 1.0f / 128, -1.0f / 128, 0.5f }
        << QVector<int> { 127, -127, 0, 0, 1, -1, 64 };
    QTest::newRow("16 clamps and sign boundary")
        << FloatToInt(Util::convertFloatTo16)
        << QVector<float> { 1.5f, -1e9f, -1.0f, 0.9f * step16, -0.9f * step16, 1.5f * step16, -1.5f * step16, 0.5f }
        << QVector<int> { 32767, -32767, -32767, 0, 0, 1, -1, 16384 };
    QTest::newRow("short 16 clamps and sign boundary")
        << toShort << QVector<float> { 4.0f, -4.0f, 0.9f * step16, -0.9f * step16, step16, -step16, -0.5f }
        << QVector<int> { 32767, -32767, 0, 0, 1, -1, -16384 };
    QTest::newRow("24 clamps and sign boundary")
        << FloatToInt(Util::convertFloatTo24)
        << QVector<float> { 2.0f, -1.0f, 0.5f * step24, -0.5f * step24, step24, -step24, -0.25f }
        << QVector<int> { 8388607, -8388607, 0, 0, 1, -1, -2097152 };
    QTest::newRow("8U clamps and middle")
        << FloatToInt(Util::convertFloatTo8U) << QVector<float> { 1.0f, -1.0f, 5.0f, -5.0f, 0.0f, -0.5f / 128 }
        << QVector<int> { 255, 0, 255, 0, 128, 127 };
    QTest::newRow("16U clamps and middle")
        << FloatToInt(Util::convertFloatTo16U) << QVector<float> { 1.01f, -1.01f, 0.0f, -step16, step16, 0.5f }
        << QVector<int> { 65535, 0, 32768, 32767, 32769, 49152 };
    QTest::newRow("24U clamps and middle")
        << FloatToInt(Util::convertFloatTo24U) << QVector<float> { 2.0f, -2.0f, 0.0f, -step24, step24 }
        << QVector<int> { 16777215, 0, 8388608, 8388607, 8388609 };
}

void tst_Util::floatToInt()
{
    QFETCH(FloatToInt, convert);
    QFETCH(QVector<float>, input);
    QFETCH(QVector<int>, expected);

    checkBothWays(input, expected, convert);
}

void tst_Util::intToFloat_data()
{
    QTest::addColumn<IntToFloat>("convert");
    QTest::addColumn<QVector<int>>("input");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("8") << IntToFloat(Util::convert8ToFloat) << QVector<int> { 127, 0x80, -128, 1, 0xff }
                       << QVector<float> { 127.0f / 128, -1.0f, -1.0f, 1.0f / 128, -1.0f / 128 };
    QTest::newRow("16, bits above the sample ignored")
        << IntToFloat(Util::convert16ToFloat) << QVector<int> { 32767, 0x8000, 1, 0xffff, 0x14000 }
        << QVector<float> { 32767 * step16, -1.0f, step16, -step16, 0.5f };
    QTest::newRow("24") << IntToFloat(Util::convert24ToFloat) << QVector<int> { 8388607, 0x800000, 1, 0xffffff }
                        << QVector<float> { 8388607 * step24, -1.0f, step24, -step24 };
    QTest::newRow("8U") << IntToFloat(Util::convert8UToFloat) << QVector<int> { 0, 128, 255, 127 }
                        << QVector<float> { -1.0f, 0.0f, 127.0f / 128, -1.0f / 128 };
    QTest::newRow("16U") << IntToFloat(Util::convert16UToFloat) << QVector<int> { 0, 32768, 65535, 32767 }
                         << QVector<float> { -1.0f, 0.0f, 32767 * step16, -step16 };
    QTest::newRow("24U") << IntToFloat(Util::convert24UToFloat) << QVector<int> { 0, 0x800000, 0xffffff, 0x7fffff }
                         << QVector<float> { -1.0f, 0.0f, 8388607 * step24, -step24 };
}

void tst_Util::intToFloat()
{
    QFETCH(IntToFloat, convert);
    QFETCH(QVector<int>, input);
    QFETCH(QVector<float>, expected);

    checkBothWays(input, expected, convert);
}

void tst_Util::raw_data()
{
    QTest::addColumn<IntToRaw>("toRaw");
    QTest::addColumn<RawToInt>("fromRaw");
    QTest::addColumn<QVector<int>>("samples");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("8U") << IntToRaw(Util::convert8UToRaw) << RawToInt(Util::convertRawTo8U)
                        << QVector<int> { 0, 127, 128, 255, 1 } << QByteArray("\x00\x7f\x80\xff\x01", 5);
    QTest::newRow("16U little endian") << IntToRaw([](const int* s, char* d, int n) {
        Util::convert16UToRaw(s, d, 2 * n, true);
    }) << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, true); })
                                       << QVector<int> { 0x1234, 0x80ff, 0 }
                                       << QByteArray("\x34\x12\xff\x80\x00\x00", 6);
    QTest::newRow("16U big endian") << IntToRaw([](const int* s, char* d, int n) {
        Util::convert16UToRaw(s, d, 2 * n, false);
    }) << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, false); })
                                    << QVector<int> { 0x1234, 0x80ff, 0xffff }
                                    << QByteArray("\x12\x34\x80\xff\xff\xff", 6);
    QTest::newRow("24U low byte first") << IntToRaw([](const int* s, char* d, int n) {
        Util::convert24UToRaw(s, d, 3 * n);
    }) << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, false); })
                                        << QVector<int> { 0x123456, 0x80ffff, 1 }
                                        << QByteArray("\x56\x34\x12\xff\xff\x80\x01\x00\x00", 9);
    QTest::newRow("24U swapped reads high byte first")
        << IntToRaw() << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, true); })
        << QVector<int> { 0x123456, 0x80ffff, 1 } << QByteArray("\x12\x34\x56\x80\xff\xff\x00\x00\x01", 9);
}

// Unpacks and packs the table's samples, out of place and in place.
void tst_Util::raw()
{
    QFETCH(IntToRaw, toRaw);
    QFETCH(RawToInt, fromRaw);
    QFETCH(QVector<int>, samples);
    QFETCH(QByteArray, bytes);

    const QVector<char> chars(bytes.begin(), bytes.end());
    checkBothWays(chars, samples, [&](const char* s, int* d, int) { fromRaw(s, d, samples.size()); });
    if (toRaw)
        checkBothWays(samples, chars, toRaw);
}

void tst_Util::ieeeExtended_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<double>("expected");

    QTest::newRow("44100") << QByteArray("\x40\x0e\xac\x44\x00\x00\x00\x00\x00\x00", 10) << 44100.0;
    QTest::newRow("low half counts") << QByteArray("\x3f\xff\x80\x00\x00\x00\x80\x00\x00\x00", 10)
                                     << 1.0 + std::ldexp(1.0, -32);
    QTest::newRow("negative infinity") << QByteArray("\xff\xff\x80\x00\x00\x00\x00\x00\x00\x00", 10)
                                       << -std::numeric_limits<double>::infinity();
}

void tst_Util::ieeeExtended()
{
    QFETCH(QByteArray, bytes);
    QFETCH(double, expected);

    QCOMPARE(Util::convertFromIeeeExtended(bytes.data()), expected);
}

QTEST_GUILESS_MAIN(tst_Util)
#include "tst_Util.moc"
