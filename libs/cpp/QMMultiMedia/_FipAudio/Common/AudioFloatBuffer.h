#pragma once

#include "Handle.h"

namespace Audio {

// Interleaved float samples, frameSize channels per frame, owned. A frame size or a
// number of frames below 1 gives an empty buffer (size 0, no array).
class AudioFloatBuffer
{
public:
    AudioFloatBuffer(int frameSize, int frames);
    AudioFloatBuffer(const AudioFloatBuffer& other);
    AudioFloatBuffer& operator=(const AudioFloatBuffer& other);
    virtual ~AudioFloatBuffer();

    int frameSize() const;
    int frames() const;
    int size() const;
    float* data() const;

    // Keeps what fits of the old contents and zeroes the new frames.
    void resize(int frames);
    // Copies frames from src; channels that only this buffer has are zeroed, channels
    // that only src has are skipped. An empty src throws MTools::Error("Null handle").
    void copy(MTools::Handle<AudioFloatBuffer> src, unsigned srcFrame, unsigned dstFrame, unsigned frames);
    // Swaps frames end for end, channel order inside a frame unchanged.
    void reverse();
    // Shifts by n frames towards the start (n > 0) or the end (n < 0), zeroing what
    // is freed; a shift of the whole length or more clears the buffer.
    void move(int frames);
    void clear();

    // Floats to 16-bit values in the top half of 32-bit words, fitting the channel count.
    static void convertFloatTo32(const float* src, int* dst, int frames, int srcChannels, int dstChannels);
    // The reverse of convertFloatTo32, into a new buffer of dstChannels channels.
    static MTools::Handle<AudioFloatBuffer> convert32ToFloat(
        const int* src, int frames, int srcChannels, int dstChannels);

private:
    int m_frameSize = 0;
    int m_frames = 0;
    int m_size = 0;
    float* m_data = nullptr;
};

} // namespace Audio
