#include "Util.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Audio {

namespace {

const float twoToMinus31 = 1.0f / 2147483648.0f;

// Moves a sample to the top of a 32-bit word (so its top bit becomes the sign) and
// scales the word to -1 .. 1.
inline float topAligned(int value, int shift)
{
    const auto word = static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << shift);
    return static_cast<float>(word) * twoToMinus31;
}

// Scales, clamps (also catching NaN at the upper bound) and cuts towards zero.
inline int scaled(float x, float scale, float lower, float upper)
{
    return static_cast<int>(std::max(lower, std::min(upper, x * scale)));
}

inline int scaledUnsigned(float x, float scale, float upper)
{
    return static_cast<int>(std::max(0.0f, std::min(upper, (x + 1.0f) * scale)));
}

inline unsigned char byteOf(const char* p)
{
    return static_cast<unsigned char>(*p);
}

template <typename Convert> inline void toFloatBackwards(const int* src, float* dst, int n, Convert convert)
{
    for (int i = n - 1; i >= 0; --i)
        dst[i] = convert(src[i]);
}

template <typename Convert> inline void toIntBackwards(const float* src, int* dst, int n, Convert convert)
{
    for (int i = n - 1; i >= 0; --i)
        dst[i] = convert(src[i]);
}

} // namespace

void Util::convertRawTo8U(const char* src, int* dst, int n)
{
    for (int i = n - 1; i >= 0; --i)
        dst[i] = byteOf(src + i);
}

void Util::convertRawTo16U(const char* src, int* dst, int n, bool littleEndian)
{
    const int low = littleEndian ? 0 : 1;
    const int high = 1 - low;
    for (int i = n - 1; i >= 0; --i) {
        const char* p = src + 2 * i;
        dst[i] = byteOf(p + low) | (byteOf(p + high) << 8);
    }
}

void Util::convertRawTo24U(const char* src, int* dst, int n, bool swapped)
{
    const int low = swapped ? 2 : 0;
    const int high = 2 - low;
    for (int i = n - 1; i >= 0; --i) {
        const char* p = src + 3 * i;
        dst[i] = byteOf(p + low) | (byteOf(p + 1) << 8) | (byteOf(p + high) << 16);
    }
}

void Util::convert8UToRaw(const int* src, char* dst, int n)
{
    for (int i = 0; i < n; ++i)
        dst[i] = static_cast<char>(src[i] & 0xff);
}

void Util::convert16UToRaw(const int* src, char* dst, int n, bool littleEndian)
{
    const int low = littleEndian ? 0 : 1;
    const int high = 1 - low;
    for (int i = 0; i < n / 2; ++i) {
        const int value = src[i];
        dst[2 * i + low] = static_cast<char>(value & 0xff);
        dst[2 * i + high] = static_cast<char>((value >> 8) & 0xff);
    }
}

void Util::convert24UToRaw(const int* src, char* dst, int n)
{
    // Four samples packed into three 32-bit words at a time, low byte first; the
    // rest byte by byte.
    const int samples = n / 3;
    int i = 0;
    for (; i + 4 <= samples; i += 4) {
        const auto a = static_cast<std::uint32_t>(src[i]) & 0xffffffu;
        const auto b = static_cast<std::uint32_t>(src[i + 1]) & 0xffffffu;
        const auto c = static_cast<std::uint32_t>(src[i + 2]) & 0xffffffu;
        const auto d = static_cast<std::uint32_t>(src[i + 3]) & 0xffffffu;
        qToLittleEndian<quint32>(a | (b << 24), dst + 3 * i);
        qToLittleEndian<quint32>((b >> 8) | (c << 16), dst + 3 * i + 4);
        qToLittleEndian<quint32>((c >> 16) | (d << 8), dst + 3 * i + 8);
    }
    for (; i < samples; ++i) {
        const int value = src[i];
        dst[3 * i] = static_cast<char>(value & 0xff);
        dst[3 * i + 1] = static_cast<char>((value >> 8) & 0xff);
        dst[3 * i + 2] = static_cast<char>((value >> 16) & 0xff);
    }
}

void Util::convert8ToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v, 24); });
}

void Util::convert16ToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v, 16); });
}

void Util::convert24ToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v, 8); });
}

void Util::convert8UToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v ^ 0x80, 24); });
}

void Util::convert16UToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v ^ 0x8000, 16); });
}

void Util::convert24UToFloat(const int* src, float* dst, int n)
{
    toFloatBackwards(src, dst, n, [](int v) { return topAligned(v ^ 0x800000, 8); });
}

void Util::convertFloatTo8(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaled(x, 128.0f, -127.0f, 127.0f); });
}

void Util::convertFloatTo16(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaled(x, 32768.0f, -32767.0f, 32767.0f); });
}

void Util::convertFloatTo24(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaled(x, 8388608.0f, -8388607.0f, 8388607.0f); });
}

void Util::convertFloatToShort16(const float* src, short* dst, int n)
{
    for (int i = 0; i < n; ++i)
        dst[i] = static_cast<short>(scaled(src[i], 32768.0f, -32767.0f, 32767.0f));
}

void Util::convertFloatTo8U(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaledUnsigned(x, 128.0f, 255.0f); });
}

void Util::convertFloatTo16U(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaledUnsigned(x, 32768.0f, 65535.0f); });
}

void Util::convertFloatTo24U(const float* src, int* dst, int n)
{
    toIntBackwards(src, dst, n, [](float x) { return scaledUnsigned(x, 8388608.0f, 16777215.0f); });
}

double Util::convertFromIeeeExtended(char* tenBytes)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(tenBytes);
    const int exponent = ((bytes[0] & 0x7f) << 8) | bytes[1];
    const auto half = [bytes](int first) {
        return (static_cast<std::uint32_t>(bytes[first]) << 24) | (static_cast<std::uint32_t>(bytes[first + 1]) << 16)
            | (static_cast<std::uint32_t>(bytes[first + 2]) << 8) | static_cast<std::uint32_t>(bytes[first + 3]);
    };
    const std::uint32_t hi = half(2);
    const std::uint32_t lo = half(6);

    double value = 0.0;
    if (exponent == 0 && hi == 0 && lo == 0)
        value = 0.0;
    else if (exponent == 0x7fff)
        value = HUGE_VAL;
    else
        value = std::ldexp(static_cast<double>(hi), exponent - 16414)
            + std::ldexp(static_cast<double>(lo), exponent - 16446);
    return (bytes[0] & 0x80) ? -value : value;
}

} // namespace Audio
