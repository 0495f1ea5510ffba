#pragma once

#include <cstddef>
#include <cstdint>

// The bodies of the audio file library's fuzzing targets, shared by the libFuzzer
// programs and by the test that replays the inputs once found to fail. Each writes
// the input to a file, loads it with one loader and reads everything the loader
// offers; a result out of its bounds ends the program.
namespace AudioFuzz {

int waveInput(const uint8_t* data, size_t size);
int aiffInput(const uint8_t* data, size_t size);
int generalFileInput(const uint8_t* data, size_t size);
int ebuInfo(const uint8_t* data, size_t size);
int envelopeFile(const uint8_t* data, size_t size);
int ltcFile(const uint8_t* data, size_t size);

} // namespace AudioFuzz
