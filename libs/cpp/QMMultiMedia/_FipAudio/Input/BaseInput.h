#pragma once

#include "Common/AudioIO.h"

namespace Audio {

// Base of every audio reader: the stream description through convenient getters.
class BaseInput : public AudioIO
{
public:
    explicit BaseInput(const Settings& settings = Settings());

    // The sample format of the stream (Settings::Format).
    virtual short fmt() const;

    unsigned int sampleRate() const;
    short channels() const;
    short bitsPerSample() const;
};

} // namespace Audio
