#pragma once

namespace Audio {

// Sample conversions between raw file bytes, one int per sample and floats from -1 to 1.
// Conversions that widen run from the last element to the first and those that narrow
// from the first to the last, so that one array may serve as both source and target.
class Util
{
public:
    // Raw bytes to one unsigned int per sample; n counts samples.
    static void convertRawTo8U(const char* src, int* dst, int n);
    static void convertRawTo16U(const char* src, int* dst, int n, bool littleEndian);
    // swapped false: low byte first; true: high byte first.
    static void convertRawTo24U(const char* src, int* dst, int n, bool swapped);

    // Ints to raw bytes. convert8UToRaw counts samples, the other two count bytes.
    static void convert8UToRaw(const int* src, char* dst, int n);
    static void convert16UToRaw(const int* src, char* dst, int n, bool littleEndian);
    // Always low byte first.
    static void convert24UToRaw(const int* src, char* dst, int n);

    // The sample's top bit is its sign; the result is value / 2^(bits - 1).
    static void convert8ToFloat(const int* src, float* dst, int n);
    static void convert16ToFloat(const int* src, float* dst, int n);
    static void convert24ToFloat(const int* src, float* dst, int n);

    // Unsigned samples: 0 gives -1.0 and the middle value 0.
    static void convert8UToFloat(const int* src, float* dst, int n);
    static void convert16UToFloat(const int* src, float* dst, int n);
    static void convert24UToFloat(const int* src, float* dst, int n);

    // Scaled by 2^(bits - 1), clamped symmetrically (the most negative value is never
    // produced) and cut towards zero.
    static void convertFloatTo8(const float* src, int* dst, int n);
    static void convertFloatTo16(const float* src, int* dst, int n);
    static void convertFloatTo24(const float* src, int* dst, int n);
    static void convertFloatToShort16(const float* src, short* dst, int n);

    // (x + 1) scaled by 2^(bits - 1), clamped to 0 .. 2^bits - 1, cut towards zero.
    static void convertFloatTo8U(const float* src, int* dst, int n);
    static void convertFloatTo16U(const float* src, int* dst, int n);
    static void convertFloatTo24U(const float* src, int* dst, int n);

    // The 80-bit big-endian extended float of AIFF headers (sample rates).
    static double convertFromIeeeExtended(char* tenBytes);
};

} // namespace Audio
