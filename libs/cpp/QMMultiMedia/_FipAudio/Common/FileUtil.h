#pragma once

#include <cstddef>
#include <cstdio>

namespace Audio {

// Reading and writing 8, 16, 32 and 64-bit values on a C stream. The values lie in the
// file in little-endian order; swap = true reverses the bytes (big-endian, as in AIFF).
// A short read gives 0; writes return what fwrite returned (0 means failure).
class FileUtil
{
public:
    static unsigned short swapS(unsigned short value);
    static unsigned int swapL(unsigned int value);
    static unsigned long long swapLL(unsigned long long value);

    static unsigned char readB(FILE* file);
    static unsigned short readS(FILE* file, bool swap);
    static unsigned int readL(FILE* file, bool swap);
    static unsigned long long readLL(FILE* file, bool swap);

    static size_t writeB(unsigned char value, FILE* file);
    static size_t writeS(unsigned short value, FILE* file, bool swap);
    static size_t writeL(unsigned int value, FILE* file, bool swap);
    static size_t writeLL(unsigned long long value, FILE* file, bool swap);
};

} // namespace Audio
