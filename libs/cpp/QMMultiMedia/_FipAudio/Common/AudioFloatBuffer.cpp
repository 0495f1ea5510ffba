#include "AudioFloatBuffer.h"

#include <QtGlobal>

#include <algorithm>
#include <cstring>

namespace Audio {

namespace {

int sizeFor(int frameSize, int frames)
{
    return frameSize < 1 || frames < 1 ? 0 : frameSize * frames;
}

int floatTo32(float x)
{
    const float scaled = std::max(-32767.0f, std::min(32767.0f, x * 32768.0f));
    return static_cast<int>(static_cast<unsigned int>(static_cast<int>(scaled)) << 16);
}

} // namespace

AudioFloatBuffer::AudioFloatBuffer(int frameSize, int frames)
    : m_frameSize(frameSize)
    , m_frames(frames)
    , m_size(sizeFor(frameSize, frames))
    , m_data(m_size > 0 ? new float[m_size]() : nullptr)
{
}

AudioFloatBuffer::AudioFloatBuffer(const AudioFloatBuffer& other)
    : m_frameSize(other.m_frameSize)
    , m_frames(other.m_frames)
    , m_size(other.m_size)
    , m_data(m_size > 0 ? new float[m_size] : nullptr)
{
    std::copy(other.m_data, other.m_data + m_size, m_data);
}

AudioFloatBuffer& AudioFloatBuffer::operator=(const AudioFloatBuffer& other)
{
    if (this != &other) {
        float* data = other.m_size > 0 ? new float[other.m_size] : nullptr;
        std::copy(other.m_data, other.m_data + other.m_size, data);
        delete[] m_data;
        m_data = data;
        m_frameSize = other.m_frameSize;
        m_frames = other.m_frames;
        m_size = other.m_size;
    }
    return *this;
}

AudioFloatBuffer::~AudioFloatBuffer()
{
    delete[] m_data;
}

int AudioFloatBuffer::frameSize() const
{
    return m_frameSize;
}

int AudioFloatBuffer::frames() const
{
    return m_frames;
}

int AudioFloatBuffer::size() const
{
    return m_size;
}

float* AudioFloatBuffer::data() const
{
    return m_data;
}

void AudioFloatBuffer::resize(int frames)
{
    if (frames == m_frames)
        return;
    const int size = sizeFor(m_frameSize, frames);
    float* data = size > 0 ? new float[size] : nullptr;
    const int kept = std::min(size, m_size);
    std::copy(m_data, m_data + kept, data);
    std::fill(data + kept, data + size, 0.0f);
    delete[] m_data;
    m_data = data;
    m_frames = frames;
    m_size = size;
}

void AudioFloatBuffer::copy(MTools::Handle<AudioFloatBuffer> src, unsigned srcFrame, unsigned dstFrame, unsigned frames)
{
    const AudioFloatBuffer& source = *src;
    Q_ASSERT(!(srcFrame + frames > static_cast<unsigned>(std::max(source.m_frames, 0))));
    Q_ASSERT(!(dstFrame + frames > static_cast<unsigned>(std::max(m_frames, 0))));
    if (!m_data || !source.m_data || srcFrame >= static_cast<unsigned>(source.m_frames)
        || dstFrame >= static_cast<unsigned>(m_frames))
        return;
    frames = std::min(
        { frames, static_cast<unsigned>(source.m_frames) - srcFrame, static_cast<unsigned>(m_frames) - dstFrame });

    if (source.m_frameSize == m_frameSize) {
        // memmove, because source and target may be this buffer.
        std::memmove(m_data + static_cast<size_t>(dstFrame) * m_frameSize,
            source.m_data + static_cast<size_t>(srcFrame) * m_frameSize, sizeof(float) * frames * m_frameSize);
        return;
    }
    const int common = std::min(source.m_frameSize, m_frameSize);
    for (unsigned i = 0; i < frames; ++i) {
        const float* in = source.m_data + static_cast<size_t>(srcFrame + i) * source.m_frameSize;
        float* out = m_data + static_cast<size_t>(dstFrame + i) * m_frameSize;
        std::copy(in, in + common, out);
        std::fill(out + common, out + m_frameSize, 0.0f);
    }
}

void AudioFloatBuffer::reverse()
{
    if (m_frames < 2 || !m_data)
        return;
    for (int front = 0, back = m_frames - 1; front < back; ++front, --back)
        std::swap_ranges(m_data + front * m_frameSize, m_data + (front + 1) * m_frameSize, m_data + back * m_frameSize);
}

void AudioFloatBuffer::move(int frames)
{
    if (frames == 0 || !m_data)
        return;
    const long long shift = frames;
    if (shift > 0 && shift < m_frames) {
        const int moved = static_cast<int>(shift) * m_frameSize;
        std::memmove(m_data, m_data + moved, sizeof(float) * (m_size - moved));
        std::fill(m_data + m_size - moved, m_data + m_size, 0.0f);
    } else if (shift < 0 && -shift < m_frames) {
        const int moved = static_cast<int>(-shift) * m_frameSize;
        std::memmove(m_data + moved, m_data, sizeof(float) * (m_size - moved));
        std::fill(m_data, m_data + moved, 0.0f);
    } else {
        clear();
    }
}

void AudioFloatBuffer::clear()
{
    std::fill(m_data, m_data + m_size, 0.0f);
}

void AudioFloatBuffer::convertFloatTo32(const float* src, int* dst, int frames, int srcChannels, int dstChannels)
{
    Q_ASSERT(srcChannels > 0 && dstChannels > 0);
    if (srcChannels < 1 || dstChannels < 1 || frames < 1)
        return;
    if (srcChannels == dstChannels) {
        for (int i = frames * srcChannels - 1; i >= 0; --i)
            dst[i] = floatTo32(src[i]);
        return;
    }
    // Growing frames are filled from the end and shrinking ones from the start, so that
    // one array may hold both source and target.
    if (dstChannels > srcChannels) {
        for (int f = frames - 1; f >= 0; --f)
            for (int c = dstChannels - 1; c >= 0; --c)
                dst[f * dstChannels + c] = c < srcChannels ? floatTo32(src[f * srcChannels + c]) : 0;
    } else {
        for (int f = 0; f < frames; ++f)
            for (int c = 0; c < dstChannels; ++c)
                dst[f * dstChannels + c] = floatTo32(src[f * srcChannels + c]);
    }
}

MTools::Handle<AudioFloatBuffer> AudioFloatBuffer::convert32ToFloat(
    const int* src, int frames, int srcChannels, int dstChannels)
{
    Q_ASSERT(srcChannels > 0 && dstChannels > 0);
    MTools::Handle<AudioFloatBuffer> result(new AudioFloatBuffer(dstChannels, frames));
    float* out = result->data();
    if (!out || srcChannels < 1)
        return result;
    const int common = std::min(srcChannels, dstChannels);
    for (int f = 0; f < frames; ++f)
        for (int c = 0; c < common; ++c)
            out[f * dstChannels + c] = static_cast<float>(src[f * srcChannels + c] >> 16) * (1.0f / 32768.0f);
    return result;
}

} // namespace Audio
