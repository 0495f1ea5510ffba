// A libFuzzer program of the audio file library; FUZZ_TARGET names the body in
// FuzzTargets.h that it runs.
#include "FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return AudioFuzz::FUZZ_TARGET(data, size);
}
