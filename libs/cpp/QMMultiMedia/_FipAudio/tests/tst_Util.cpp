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

// Runs a conversion out of place and in place (one array as source and target) and
// gives both results; the cell after the array must stay untouched.
template <typename From, typename To, typename Convert>
void bothWays(const QVector<From>& input, int outCount, Convert convert, QVector<To>* separate,
              QVector<To>* inPlace)
{
    const size_t bytes = qMax(sizeof(From) * input.size(), sizeof(To) * outCount);
    std::vector<std::uint32_t> cells(bytes / 4 + 2, 0xdeadbeefu);
    *separate = QVector<To>(outCount, To(7));
    convert(input.constData(), separate->data(), input.size());
    std::memcpy(cells.data(), input.constData(), sizeof(From) * input.size());
    convert(reinterpret_cast<From*>(cells.data()), reinterpret_cast<To*>(cells.data()), input.size());
    const To* out = reinterpret_cast<To*>(cells.data());
    *inPlace = QVector<To>(out, out + outCount);
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
    void integerRoundTrip_data();
    void integerRoundTrip();
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
    QTest::newRow("8 clamps and sign boundary") << FloatToInt(Util::convertFloatTo8)
        << QVector<float>{1.0f, -3.0f, 0.5f / 128, -0.5f / 128, 1.0f / 128, -1.0f / 128, 0.5f}
        << QVector<int>{127, -127, 0, 0, 1, -1, 64};
    QTest::newRow("16 clamps and sign boundary") << FloatToInt(Util::convertFloatTo16)
        << QVector<float>{1.5f, -1e9f, -1.0f, 0.9f * step16, -0.9f * step16, 1.5f * step16, -1.5f * step16, 0.5f}
        << QVector<int>{32767, -32767, -32767, 0, 0, 1, -1, 16384};
    QTest::newRow("short 16 clamps and sign boundary") << toShort
        << QVector<float>{4.0f, -4.0f, 0.9f * step16, -0.9f * step16, step16, -step16, -0.5f}
        << QVector<int>{32767, -32767, 0, 0, 1, -1, -16384};
    QTest::newRow("24 clamps and sign boundary") << FloatToInt(Util::convertFloatTo24)
        << QVector<float>{2.0f, -1.0f, 0.5f * step24, -0.5f * step24, step24, -step24, -0.25f}
        << QVector<int>{8388607, -8388607, 0, 0, 1, -1, -2097152};
    QTest::newRow("8U clamps and middle") << FloatToInt(Util::convertFloatTo8U)
        << QVector<float>{1.0f, -1.0f, 5.0f, -5.0f, 0.0f, -0.5f / 128}
        << QVector<int>{255, 0, 255, 0, 128, 127};
    QTest::newRow("16U clamps and middle") << FloatToInt(Util::convertFloatTo16U)
        << QVector<float>{1.01f, -1.01f, 0.0f, -step16, step16, 0.5f}
        << QVector<int>{65535, 0, 32768, 32767, 32769, 49152};
    QTest::newRow("24U clamps and middle") << FloatToInt(Util::convertFloatTo24U)
        << QVector<float>{2.0f, -2.0f, 0.0f, -step24, step24}
        << QVector<int>{16777215, 0, 8388608, 8388607, 8388609};
}

void tst_Util::floatToInt()
{
    QFETCH(FloatToInt, convert);
    QFETCH(QVector<float>, input);
    QFETCH(QVector<int>, expected);

    QVector<int> separate, inPlace;
    bothWays(input, expected.size(), convert, &separate, &inPlace);
    QCOMPARE(separate, expected);
    QCOMPARE(inPlace, expected);
}

void tst_Util::intToFloat_data()
{
    QTest::addColumn<IntToFloat>("convert");
    QTest::addColumn<QVector<int>>("input");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("8") << IntToFloat(Util::convert8ToFloat) << QVector<int>{127, 0x80, -128, 1, 0xff}
        << QVector<float>{127.0f / 128, -1.0f, -1.0f, 1.0f / 128, -1.0f / 128};
    QTest::newRow("16, bits above the sample ignored") << IntToFloat(Util::convert16ToFloat)
        << QVector<int>{32767, 0x8000, 1, 0xffff, 0x14000}
        << QVector<float>{32767 * step16, -1.0f, step16, -step16, 0.5f};
    QTest::newRow("24") << IntToFloat(Util::convert24ToFloat) << QVector<int>{8388607, 0x800000, 1, 0xffffff}
        << QVector<float>{8388607 * step24, -1.0f, step24, -step24};
    QTest::newRow("8U") << IntToFloat(Util::convert8UToFloat) << QVector<int>{0, 128, 255, 127}
        << QVector<float>{-1.0f, 0.0f, 127.0f / 128, -1.0f / 128};
    QTest::newRow("16U") << IntToFloat(Util::convert16UToFloat) << QVector<int>{0, 32768, 65535, 32767}
        << QVector<float>{-1.0f, 0.0f, 32767 * step16, -step16};
    QTest::newRow("24U") << IntToFloat(Util::convert24UToFloat) << QVector<int>{0, 0x800000, 0xffffff, 0x7fffff}
        << QVector<float>{-1.0f, 0.0f, 8388607 * step24, -step24};
}

void tst_Util::intToFloat()
{
    QFETCH(IntToFloat, convert);
    QFETCH(QVector<int>, input);
    QFETCH(QVector<float>, expected);

    QVector<float> separate, inPlace;
    bothWays(input, expected.size(), convert, &separate, &inPlace);
    QCOMPARE(separate, expected);
    QCOMPARE(inPlace, expected);
}

void tst_Util::raw_data()
{
    QTest::addColumn<IntToRaw>("toRaw");
    QTest::addColumn<RawToInt>("fromRaw");
    QTest::addColumn<QVector<int>>("samples");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("8U") << IntToRaw(Util::convert8UToRaw) << RawToInt(Util::convertRawTo8U)
        << QVector<int>{0, 127, 128, 255, 1} << QByteArray("\x00\x7f\x80\xff\x01", 5);
    QTest::newRow("16U little endian")
        << IntToRaw([](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, true); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, true); })
        << QVector<int>{0x1234, 0x80ff, 0} << QByteArray("\x34\x12\xff\x80\x00\x00", 6);
    QTest::newRow("16U big endian")
        << IntToRaw([](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, false); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, false); })
        << QVector<int>{0x1234, 0x80ff, 0xffff} << QByteArray("\x12\x34\x80\xff\xff\xff", 6);
    QTest::newRow("24U low byte first")
        << IntToRaw([](const int* s, char* d, int n) { Util::convert24UToRaw(s, d, 3 * n); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, false); })
        << QVector<int>{0x123456, 0x80ffff, 1} << QByteArray("\x56\x34\x12\xff\xff\x80\x01\x00\x00", 9);
    QTest::newRow("24U swapped reads high byte first") << IntToRaw()
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, true); })
        << QVector<int>{0x123456, 0x80ffff, 1} << QByteArray("\x12\x34\x56\x80\xff\xff\x00\x00\x01", 9);
}

// Packs and unpacks the table's samples both ways, then thousands of samples in one array.
void tst_Util::raw()
{
    QFETCH(IntToRaw, toRaw);
    QFETCH(RawToInt, fromRaw);
    QFETCH(QVector<int>, samples);
    QFETCH(QByteArray, bytes);

    const QVector<char> chars(bytes.begin(), bytes.end());
    QVector<int> separate, inPlace;
    bothWays(chars, samples.size(), [&](const char* s, int* d, int) { fromRaw(s, d, samples.size()); },
             &separate, &inPlace);
    QCOMPARE(separate, samples);
    QCOMPARE(inPlace, samples);
    if (!toRaw)
        return;
    QVector<char> packed, packedInPlace;
    bothWays(samples, bytes.size(), toRaw, &packed, &packedInPlace);
    QCOMPARE(packed, chars);
    QCOMPARE(packedInPlace, chars);

    const int n = 5003;
    const unsigned int mask = (1u << (8 * (bytes.size() / samples.size()))) - 1;
    QVector<int> many(n);
    for (int i = 0; i < n; ++i)
        many[i] = static_cast<int>((static_cast<unsigned int>(i) * 2654435761u) & mask);
    QVector<int> back = many;
    int* cells = back.data();
    toRaw(cells, reinterpret_cast<char*>(cells), n);
    fromRaw(reinterpret_cast<char*>(cells), cells, n);
    QCOMPARE(back, many);
}

void tst_Util::integerRoundTrip_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("stride");

    QTest::newRow("8 bit, every value") << 8 << 1;
    QTest::newRow("16 bit, every value") << 16 << 1;
    QTest::newRow("24 bit, every 7th value") << 24 << 7;
}

// Every signed sample survives int -> float -> int in one array, except the most
// negative, which comes back one step up because of the symmetric clamp.
void tst_Util::integerRoundTrip()
{
    QFETCH(int, bits);
    QFETCH(int, stride);

    const int top = (1 << (bits - 1)) - 1;
    QVector<int> samples;
    for (int v = -top - 1; v <= top; v += stride)
        samples.append(v);
    samples.append(top);
    QVector<int> back = samples;
    float* floats = reinterpret_cast<float*>(back.data());
    if (bits == 8)
        Util::convert8ToFloat(back.constData(), floats, back.size()), Util::convertFloatTo8(floats, back.data(), back.size());
    else if (bits == 16)
        Util::convert16ToFloat(back.constData(), floats, back.size()), Util::convertFloatTo16(floats, back.data(), back.size());
    else
        Util::convert24ToFloat(back.constData(), floats, back.size()), Util::convertFloatTo24(floats, back.data(), back.size());
    samples.first() = -top;
    QCOMPARE(back, samples);
}

void tst_Util::ieeeExtended_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<double>("expected");

    QTest::newRow("44100") << QByteArray("\x40\x0e\xac\x44\x00\x00\x00\x00\x00\x00", 10) << 44100.0;
    QTest::newRow("8000") << QByteArray("\x40\x0b\xfa\x00\x00\x00\x00\x00\x00\x00", 10) << 8000.0;
    QTest::newRow("low half counts") << QByteArray("\x3f\xff\x80\x00\x00\x00\x80\x00\x00\x00", 10)
                                     << 1.0 + std::ldexp(1.0, -32);
    QTest::newRow("negative") << QByteArray("\xc0\x0e\xac\x44\x00\x00\x00\x00\x00\x00", 10) << -44100.0;
    QTest::newRow("zero") << QByteArray(10, '\0') << 0.0;
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
