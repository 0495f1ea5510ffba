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
typedef std::function<void(const char*, int*, int)> RawToInt;
// n is given as the number of samples; the wrapper turns it into what the call counts.
typedef std::function<void(const int*, char*, int)> IntToRaw;

Q_DECLARE_METATYPE(FloatToInt)
Q_DECLARE_METATYPE(IntToFloat)
Q_DECLARE_METATYPE(RawToInt)
Q_DECLARE_METATYPE(IntToRaw)

namespace {

// Four-byte cells that both a float* and an int* may look at, for the in-place runs.
struct Shared
{
    explicit Shared(size_t cells)
        : words(cells + 1, 0xdeadbeefu)
    {
    }
    template <typename T>
    T* as()
    {
        return reinterpret_cast<T*>(words.data());
    }
    std::vector<std::uint32_t> words;
};

const float oneStep16 = 1.0f / 32768.0f;
const float oneStep24 = 1.0f / 8388608.0f;

} // namespace

class tst_Util : public QObject
{
    Q_OBJECT

private slots:
    void floatToInt_data();
    void floatToInt();
    void floatToShort16_data();
    void floatToShort16();
    void intToFloat_data();
    void intToFloat();
    void rawToInt_data();
    void rawToInt();
    void intToRaw_data();
    void intToRaw();
    void integerRoundTrip_data();
    void integerRoundTrip();
    void rawRoundTripInPlace_data();
    void rawRoundTripInPlace();
    void longShortRunInPlace();
    void ieeeExtended_data();
    void ieeeExtended();
};

void tst_Util::floatToInt_data()
{
    QTest::addColumn<FloatToInt>("convert");
    QTest::addColumn<QVector<float>>("input");
    QTest::addColumn<QVector<int>>("expected");

    const FloatToInt to8 = Util::convertFloatTo8;
    const FloatToInt to16 = Util::convertFloatTo16;
    const FloatToInt to24 = Util::convertFloatTo24;
    const FloatToInt to8U = Util::convertFloatTo8U;
    const FloatToInt to16U = Util::convertFloatTo16U;
    const FloatToInt to24U = Util::convertFloatTo24U;

    QTest::newRow("8 clamps") << to8 << QVector<float>{1.0f, -1.0f, 3.0f, -3.0f}
                              << QVector<int>{127, -127, 127, -127};
    QTest::newRow("8 sign boundary") << to8 << QVector<float>{0.0f, -0.0f, 0.5f / 128, -0.5f / 128,
                                                             1.0f / 128, -1.0f / 128}
                                     << QVector<int>{0, 0, 0, 0, 1, -1};
    QTest::newRow("8 middle") << to8 << QVector<float>{0.5f, -0.5f, 126.9f / 128}
                              << QVector<int>{64, -64, 126};

    QTest::newRow("16 clamps") << to16 << QVector<float>{1.0f, -1.0f, 1.5f, -1e9f}
                               << QVector<int>{32767, -32767, 32767, -32767};
    QTest::newRow("16 just inside") << to16 << QVector<float>{32767 * oneStep16, -32767 * oneStep16}
                                    << QVector<int>{32767, -32767};
    QTest::newRow("16 sign boundary cuts towards zero")
        << to16 << QVector<float>{0.0f, 0.9f * oneStep16, -0.9f * oneStep16, 1.5f * oneStep16,
                                  -1.5f * oneStep16}
        << QVector<int>{0, 0, 0, 1, -1};
    QTest::newRow("16 halves") << to16 << QVector<float>{0.5f, -0.5f} << QVector<int>{16384, -16384};

    QTest::newRow("24 clamps") << to24 << QVector<float>{1.0f, -1.0f, 2.0f, -2.0f}
                               << QVector<int>{8388607, -8388607, 8388607, -8388607};
    QTest::newRow("24 sign boundary") << to24 << QVector<float>{0.0f, 0.5f * oneStep24,
                                                               -0.5f * oneStep24, oneStep24,
                                                               -oneStep24}
                                      << QVector<int>{0, 0, 0, 1, -1};
    QTest::newRow("24 halves") << to24 << QVector<float>{0.5f, -0.25f}
                               << QVector<int>{4194304, -2097152};

    QTest::newRow("8U clamps") << to8U << QVector<float>{1.0f, -1.0f, 5.0f, -5.0f}
                               << QVector<int>{255, 0, 255, 0};
    QTest::newRow("8U middle") << to8U << QVector<float>{0.0f, -0.5f / 128, 0.5f / 128}
                               << QVector<int>{128, 127, 128};
    QTest::newRow("16U clamps") << to16U << QVector<float>{1.0f, -1.0f, 1.01f, -1.01f}
                                << QVector<int>{65535, 0, 65535, 0};
    QTest::newRow("16U middle") << to16U << QVector<float>{0.0f, -oneStep16, oneStep16, 0.5f}
                                << QVector<int>{32768, 32767, 32769, 49152};
    QTest::newRow("24U clamps") << to24U << QVector<float>{1.0f, -1.0f, 2.0f, -2.0f}
                                << QVector<int>{16777215, 0, 16777215, 0};
    QTest::newRow("24U middle") << to24U << QVector<float>{0.0f, -oneStep24, oneStep24}
                                << QVector<int>{8388608, 8388607, 8388609};
}

void tst_Util::floatToInt()
{
    QFETCH(FloatToInt, convert);
    QFETCH(QVector<float>, input);
    QFETCH(QVector<int>, expected);

    QVector<int> separate(input.size(), 12345);
    convert(input.constData(), separate.data(), input.size());
    QCOMPARE(separate, expected);

    Shared shared(input.size());
    std::memcpy(shared.as<float>(), input.constData(), sizeof(float) * input.size());
    convert(shared.as<float>(), shared.as<int>(), input.size());
    QCOMPARE(QVector<int>(shared.as<int>(), shared.as<int>() + input.size()), expected);
    QCOMPARE(shared.words[input.size()], 0xdeadbeefu);
}

void tst_Util::floatToShort16_data()
{
    QTest::addColumn<QVector<float>>("input");
    QTest::addColumn<QVector<short>>("expected");

    QTest::newRow("clamps") << QVector<float>{1.0f, -1.0f, 4.0f, -4.0f}
                            << QVector<short>{32767, -32767, 32767, -32767};
    QTest::newRow("sign boundary") << QVector<float>{0.0f, 0.9f * oneStep16, -0.9f * oneStep16,
                                                     oneStep16, -oneStep16}
                                   << QVector<short>{0, 0, 0, 1, -1};
    QTest::newRow("long run") << QVector<float>{0.5f, -0.5f, 0.25f, -0.25f, 0.125f, -0.125f, 1.0f,
                                                -1.0f, 0.0f}
                              << QVector<short>{16384, -16384, 8192, -8192, 4096, -4096, 32767,
                                                -32767, 0};
}

void tst_Util::floatToShort16()
{
    QFETCH(QVector<float>, input);
    QFETCH(QVector<short>, expected);

    QVector<short> separate(input.size(), 777);
    Util::convertFloatToShort16(input.constData(), separate.data(), input.size());
    QCOMPARE(separate, expected);

    // The shorts take half the room of the floats: in place, the tail stays as it was.
    Shared shared(input.size());
    std::memcpy(shared.as<float>(), input.constData(), sizeof(float) * input.size());
    Util::convertFloatToShort16(shared.as<float>(), shared.as<short>(), input.size());
    QCOMPARE(QVector<short>(shared.as<short>(), shared.as<short>() + input.size()), expected);
}

void tst_Util::intToFloat_data()
{
    QTest::addColumn<IntToFloat>("convert");
    QTest::addColumn<QVector<int>>("input");
    QTest::addColumn<QVector<float>>("expected");

    const IntToFloat from8 = Util::convert8ToFloat;
    const IntToFloat from16 = Util::convert16ToFloat;
    const IntToFloat from24 = Util::convert24ToFloat;
    const IntToFloat from8U = Util::convert8UToFloat;
    const IntToFloat from16U = Util::convert16UToFloat;
    const IntToFloat from24U = Util::convert24UToFloat;

    QTest::newRow("8 extremes") << from8 << QVector<int>{127, 0x80, -128, 0}
                                << QVector<float>{127.0f / 128, -1.0f, -1.0f, 0.0f};
    QTest::newRow("8 sign boundary") << from8 << QVector<int>{1, 0xff, -1}
                                     << QVector<float>{1.0f / 128, -1.0f / 128, -1.0f / 128};
    QTest::newRow("16 extremes") << from16 << QVector<int>{32767, 0x8000, -32768, 0}
                                 << QVector<float>{32767 * oneStep16, -1.0f, -1.0f, 0.0f};
    QTest::newRow("16 sign boundary") << from16 << QVector<int>{1, 0xffff, -1}
                                      << QVector<float>{oneStep16, -oneStep16, -oneStep16};
    QTest::newRow("16 bits above the sample are ignored") << from16 << QVector<int>{0x14000}
                                                          << QVector<float>{0.5f};
    QTest::newRow("24 extremes") << from24 << QVector<int>{8388607, 0x800000, -8388608}
                                 << QVector<float>{8388607 * oneStep24, -1.0f, -1.0f};
    QTest::newRow("24 sign boundary") << from24 << QVector<int>{1, 0xffffff, 0}
                                      << QVector<float>{oneStep24, -oneStep24, 0.0f};
    QTest::newRow("8U") << from8U << QVector<int>{0, 128, 255, 127}
                        << QVector<float>{-1.0f, 0.0f, 127.0f / 128, -1.0f / 128};
    QTest::newRow("16U") << from16U << QVector<int>{0, 32768, 65535, 32767}
                         << QVector<float>{-1.0f, 0.0f, 32767 * oneStep16, -oneStep16};
    QTest::newRow("24U") << from24U << QVector<int>{0, 0x800000, 0xffffff, 0x7fffff}
                         << QVector<float>{-1.0f, 0.0f, 8388607 * oneStep24, -oneStep24};
}

void tst_Util::intToFloat()
{
    QFETCH(IntToFloat, convert);
    QFETCH(QVector<int>, input);
    QFETCH(QVector<float>, expected);

    QVector<float> separate(input.size(), 9.0f);
    convert(input.constData(), separate.data(), input.size());
    QCOMPARE(separate, expected);

    Shared shared(input.size());
    std::memcpy(shared.as<int>(), input.constData(), sizeof(int) * input.size());
    convert(shared.as<int>(), shared.as<float>(), input.size());
    QCOMPARE(QVector<float>(shared.as<float>(), shared.as<float>() + input.size()), expected);
}

void tst_Util::rawToInt_data()
{
    QTest::addColumn<RawToInt>("convert");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("expected");

    const RawToInt from8U = Util::convertRawTo8U;
    const RawToInt from16Little = [](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, true); };
    const RawToInt from16Big = [](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, false); };
    const RawToInt from24 = [](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, false); };
    const RawToInt from24Swapped = [](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, true); };

    QTest::newRow("8U") << from8U << QByteArray("\x00\x7f\x80\xff\x01", 5)
                        << QVector<int>{0, 127, 128, 255, 1};
    QTest::newRow("16U little endian") << from16Little << QByteArray("\x34\x12\xff\x80\x00\x00", 6)
                                       << QVector<int>{0x1234, 0x80ff, 0};
    QTest::newRow("16U big endian") << from16Big << QByteArray("\x12\x34\x80\xff\xff\xff", 6)
                                    << QVector<int>{0x1234, 0x80ff, 0xffff};
    QTest::newRow("24U low byte first") << from24 << QByteArray("\x56\x34\x12\xff\xff\x80\x01\x00\x00", 9)
                                        << QVector<int>{0x123456, 0x80ffff, 1};
    QTest::newRow("24U swapped") << from24Swapped << QByteArray("\x12\x34\x56\x80\xff\xff\x00\x00\x01", 9)
                                 << QVector<int>{0x123456, 0x80ffff, 1};
}

void tst_Util::rawToInt()
{
    QFETCH(RawToInt, convert);
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<int>, expected);

    QVector<int> separate(expected.size(), -5);
    convert(bytes.constData(), separate.data(), expected.size());
    QCOMPARE(separate, expected);

    Shared shared(expected.size());
    std::memcpy(shared.as<char>(), bytes.constData(), bytes.size());
    convert(shared.as<char>(), shared.as<int>(), expected.size());
    QCOMPARE(QVector<int>(shared.as<int>(), shared.as<int>() + expected.size()), expected);
}

void tst_Util::intToRaw_data()
{
    QTest::addColumn<IntToRaw>("convert");
    QTest::addColumn<QVector<int>>("input");
    QTest::addColumn<QByteArray>("expected");

    const IntToRaw to8U = Util::convert8UToRaw;
    // convert16UToRaw and convert24UToRaw count bytes.
    const IntToRaw to16Little = [](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, true); };
    const IntToRaw to16Big = [](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, false); };
    const IntToRaw to24 = [](const int* s, char* d, int n) { Util::convert24UToRaw(s, d, 3 * n); };

    QTest::newRow("8U") << to8U << QVector<int>{0, 127, 128, 255, 1}
                        << QByteArray("\x00\x7f\x80\xff\x01", 5);
    QTest::newRow("16U little endian") << to16Little << QVector<int>{0x1234, 0x80ff, 0}
                                       << QByteArray("\x34\x12\xff\x80\x00\x00", 6);
    QTest::newRow("16U big endian") << to16Big << QVector<int>{0x1234, 0x80ff, 0xffff}
                                    << QByteArray("\x12\x34\x80\xff\xff\xff", 6);
    QTest::newRow("24U low byte first") << to24 << QVector<int>{0x123456, 0x80ffff, 1, 0xabcdef}
                                        << QByteArray("\x56\x34\x12\xff\xff\x80\x01\x00\x00\xef\xcd\xab", 12);
}

void tst_Util::intToRaw()
{
    QFETCH(IntToRaw, convert);
    QFETCH(QVector<int>, input);
    QFETCH(QByteArray, expected);

    QByteArray separate(expected.size(), '?');
    convert(input.constData(), separate.data(), input.size());
    QCOMPARE(separate, expected);

    Shared shared(input.size());
    std::memcpy(shared.as<int>(), input.constData(), sizeof(int) * input.size());
    convert(shared.as<int>(), shared.as<char>(), input.size());
    QCOMPARE(QByteArray(shared.as<char>(), expected.size()), expected);
}

void tst_Util::integerRoundTrip_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("stride");

    QTest::newRow("8 bit, every value") << 8 << 1;
    QTest::newRow("16 bit, every value") << 16 << 1;
    QTest::newRow("24 bit, every 7th value") << 24 << 7;
}

// Every signed sample survives int -> float -> int, except the most negative one,
// which comes back one step up because of the symmetric clamp.
void tst_Util::integerRoundTrip()
{
    QFETCH(int, bits);
    QFETCH(int, stride);

    const int top = (1 << (bits - 1)) - 1;
    QVector<int> samples;
    for (int v = -top - 1; v <= top; v += stride)
        samples.append(v);
    samples.append(top);

    typedef void (*ToFloat)(const int*, float*, int);
    typedef void (*ToInt)(const float*, int*, int);
    const ToFloat toFloat = bits == 8 ? Util::convert8ToFloat
        : bits == 16 ? Util::convert16ToFloat : Util::convert24ToFloat;
    const ToInt toInt = bits == 8 ? Util::convertFloatTo8
        : bits == 16 ? Util::convertFloatTo16 : Util::convertFloatTo24;

    QVector<float> floats(samples.size());
    QVector<int> back(samples.size());
    toFloat(samples.constData(), floats.data(), samples.size());
    toInt(floats.constData(), back.data(), samples.size());

    // The same trip in one array, long enough for any vectorised loop.
    Shared shared(samples.size());
    std::memcpy(shared.as<int>(), samples.constData(), sizeof(int) * samples.size());
    toFloat(shared.as<int>(), shared.as<float>(), samples.size());
    QCOMPARE(QVector<float>(shared.as<float>(), shared.as<float>() + samples.size()), floats);
    toInt(shared.as<float>(), shared.as<int>(), samples.size());
    QCOMPARE(QVector<int>(shared.as<int>(), shared.as<int>() + samples.size()), back);

    for (int i = 0; i < samples.size(); ++i) {
        const int expected = samples[i] == -top - 1 ? -top : samples[i];
        if (back[i] != expected)
            QFAIL(qPrintable(QStringLiteral("%1 came back as %2").arg(samples[i]).arg(back[i])));
    }
}

void tst_Util::rawRoundTripInPlace_data()
{
    QTest::addColumn<int>("bytesPerSample");
    QTest::addColumn<IntToRaw>("toRaw");
    QTest::addColumn<RawToInt>("fromRaw");

    QTest::newRow("8U") << 1 << IntToRaw(Util::convert8UToRaw) << RawToInt(Util::convertRawTo8U);
    QTest::newRow("16U little endian") << 2
        << IntToRaw([](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, true); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, true); });
    QTest::newRow("16U big endian") << 2
        << IntToRaw([](const int* s, char* d, int n) { Util::convert16UToRaw(s, d, 2 * n, false); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo16U(s, d, n, false); });
    QTest::newRow("24U") << 3
        << IntToRaw([](const int* s, char* d, int n) { Util::convert24UToRaw(s, d, 3 * n); })
        << RawToInt([](const char* s, int* d, int n) { Util::convertRawTo24U(s, d, n, false); });
}

// Thousands of samples packed to bytes and unpacked again, both in one array.
void tst_Util::rawRoundTripInPlace()
{
    QFETCH(int, bytesPerSample);
    QFETCH(IntToRaw, toRaw);
    QFETCH(RawToInt, fromRaw);

    const int n = 5003;
    const unsigned int mask = (1u << (8 * bytesPerSample)) - 1;
    QVector<int> samples(n);
    for (int i = 0; i < n; ++i)
        samples[i] = static_cast<int>((static_cast<unsigned int>(i) * 2654435761u) & mask);

    Shared shared(n);
    std::memcpy(shared.as<int>(), samples.constData(), sizeof(int) * n);
    toRaw(shared.as<int>(), shared.as<char>(), n);
    fromRaw(shared.as<char>(), shared.as<int>(), n);
    QCOMPARE(QVector<int>(shared.as<int>(), shared.as<int>() + n), samples);
}

void tst_Util::longShortRunInPlace()
{
    const int n = 4099;
    QVector<float> input(n);
    for (int i = 0; i < n; ++i)
        input[i] = -1.2f + 2.4f * static_cast<float>(i) / n;
    QVector<short> expected(n);
    Util::convertFloatToShort16(input.constData(), expected.data(), n);
    QCOMPARE(expected.first(), short(-32767));
    QCOMPARE(expected.last(), short(32767));

    Shared shared(n);
    std::memcpy(shared.as<float>(), input.constData(), sizeof(float) * n);
    Util::convertFloatToShort16(shared.as<float>(), shared.as<short>(), n);
    QCOMPARE(QVector<short>(shared.as<short>(), shared.as<short>() + n), expected);
}

void tst_Util::ieeeExtended_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<double>("expected");

    QTest::newRow("44100") << QByteArray("\x40\x0e\xac\x44\x00\x00\x00\x00\x00\x00", 10) << 44100.0;
    QTest::newRow("48000") << QByteArray("\x40\x0e\xbb\x80\x00\x00\x00\x00\x00\x00", 10) << 48000.0;
    QTest::newRow("8000") << QByteArray("\x40\x0b\xfa\x00\x00\x00\x00\x00\x00\x00", 10) << 8000.0;
    QTest::newRow("one") << QByteArray("\x3f\xff\x80\x00\x00\x00\x00\x00\x00\x00", 10) << 1.0;
    QTest::newRow("low half counts") << QByteArray("\x3f\xff\x80\x00\x00\x00\x80\x00\x00\x00", 10)
                                     << 1.0 + std::ldexp(1.0, -32);
    QTest::newRow("negative") << QByteArray("\xc0\x0e\xac\x44\x00\x00\x00\x00\x00\x00", 10) << -44100.0;
    QTest::newRow("zero") << QByteArray(10, '\0') << 0.0;
    QTest::newRow("infinity") << QByteArray("\x7f\xff\x00\x00\x00\x00\x00\x00\x00\x00", 10)
                              << std::numeric_limits<double>::infinity();
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
