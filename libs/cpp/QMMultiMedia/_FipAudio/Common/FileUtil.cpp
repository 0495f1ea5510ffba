#include "FileUtil.h"

namespace Audio {

namespace {

// Reads `bytes` bytes and assembles them low byte first, whatever the host's order.
unsigned long long readLittleEndian(FILE* file, int bytes)
{
    unsigned char buffer[8] = {};
    if (std::fread(buffer, 1, static_cast<size_t>(bytes), file) != static_cast<size_t>(bytes))
        return 0;
    unsigned long long value = 0;
    for (int i = bytes - 1; i >= 0; --i)
        value = (value << 8) | buffer[i];
    return value;
}

size_t writeLittleEndian(unsigned long long value, FILE* file, int bytes)
{
    unsigned char buffer[8];
    for (int i = 0; i < bytes; ++i)
        buffer[i] = static_cast<unsigned char>(value >> (8 * i));
    return std::fwrite(buffer, static_cast<size_t>(bytes), 1, file);
}

} // namespace

unsigned short FileUtil::swapS(unsigned short value)
{
    return static_cast<unsigned short>((value >> 8) | (value << 8));
}

unsigned int FileUtil::swapL(unsigned int value)
{
    return (value >> 24) | ((value >> 8) & 0xff00u) | ((value << 8) & 0xff0000u) | (value << 24);
}

unsigned long long FileUtil::swapLL(unsigned long long value)
{
    return (static_cast<unsigned long long>(swapL(static_cast<unsigned int>(value))) << 32)
        | swapL(static_cast<unsigned int>(value >> 32));
}

unsigned char FileUtil::readB(FILE* file)
{
    return static_cast<unsigned char>(readLittleEndian(file, 1));
}

unsigned short FileUtil::readS(FILE* file, bool swap)
{
    const auto value = static_cast<unsigned short>(readLittleEndian(file, 2));
    return swap ? swapS(value) : value;
}

unsigned int FileUtil::readL(FILE* file, bool swap)
{
    const auto value = static_cast<unsigned int>(readLittleEndian(file, 4));
    return swap ? swapL(value) : value;
}

unsigned long long FileUtil::readLL(FILE* file, bool swap)
{
    const unsigned long long value = readLittleEndian(file, 8);
    return swap ? swapLL(value) : value;
}

size_t FileUtil::writeB(unsigned char value, FILE* file)
{
    return writeLittleEndian(value, file, 1);
}

size_t FileUtil::writeS(unsigned short value, FILE* file, bool swap)
{
    return writeLittleEndian(swap ? swapS(value) : value, file, 2);
}

size_t FileUtil::writeL(unsigned int value, FILE* file, bool swap)
{
    return writeLittleEndian(swap ? swapL(value) : value, file, 4);
}

size_t FileUtil::writeLL(unsigned long long value, FILE* file, bool swap)
{
    return writeLittleEndian(swap ? swapLL(value) : value, file, 8);
}

} // namespace Audio
