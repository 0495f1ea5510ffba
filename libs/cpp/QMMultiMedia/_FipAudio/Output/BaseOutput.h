#pragma once

#include "Common/AudioFloatBuffer.h"
#include "Common/AudioIO.h"
#include "Common/RawBuffer.h"

#include "Handle.h"

namespace Audio {

// Base of every audio writer: raw bytes or float samples go in, the subclass puts them out.
class BaseOutput : public AudioIO
{
public:
    explicit BaseOutput(const Settings& settings = Settings());

    // Both return what was written: bytes, or samples over all channels.
    virtual int write(char* data, int bytes) = 0;
    virtual int write(float* samples, int count) = 0;
    // The first `frames` frames of the buffer.
    virtual int write(MTools::Handle<AudioFloatBuffer> buffer, int frames);
    // The first `bytes` bytes of the buffer.
    virtual int write(MTools::Handle<RawBuffer> buffer, int bytes);
    virtual void setFragmentSize(int fragmentSize);
    virtual int fragmentSize() const;
    // A quick check that the output works; the base has nothing to check and says no.
    virtual bool test();

private:
    int m_fragmentSize = 0;
};

} // namespace Audio
