#pragma once

#include <cstring>

namespace Audio {

// The header of a chunk of a RIFF or AIFF file: a four-byte id and the size of the body.
class Chunk
{
public:
    bool is(const char* id4) const { return std::memcmp(id, id4, 4) == 0; }

    char id[4] = {};
    unsigned int size = 0;
};

} // namespace Audio
