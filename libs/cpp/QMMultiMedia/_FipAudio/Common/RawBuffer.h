#pragma once

#include "Buffer.h"

namespace Audio {

// Bytes of audio as they lie in a file.
typedef Buffer<char> RawBuffer;

} // namespace Audio
