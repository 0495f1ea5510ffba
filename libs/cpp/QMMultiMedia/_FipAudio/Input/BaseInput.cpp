#include "BaseInput.h"

namespace Audio {

BaseInput::BaseInput(const Settings& settings)
    : AudioIO(settings)
{
}

short BaseInput::fmt() const
{
    return settings().fmt();
}

unsigned int BaseInput::sampleRate() const
{
    return settings().sampleRate();
}

short BaseInput::channels() const
{
    return settings().channels();
}

short BaseInput::bitsPerSample() const
{
    return settings().bitsPerSample();
}

} // namespace Audio
