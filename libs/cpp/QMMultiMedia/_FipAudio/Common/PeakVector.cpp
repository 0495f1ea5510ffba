#include "PeakVector.h"

#include <QDebug>
#include <QtGlobal>

#include <algorithm>
#include <cstdlib>

namespace Audio {

PeakVector::PeakVector(int channels)
{
    Q_ASSERT(channels >= 0 && channels <= maximumChannels);
    m_peaks.resize(static_cast<size_t>(std::max(0, channels)));
}

PeakVector::PeakVector(int frames, int channels)
{
    Q_ASSERT(channels >= 0 && channels <= maximumChannels);
    Q_ASSERT(frames >= 0);
    m_peaks.assign(
        static_cast<size_t>(std::max(0, channels)), std::vector<PeakInfo>(static_cast<size_t>(std::max(0, frames))));
}

void PeakVector::growChannels(int ch)
{
    Q_ASSERT(ch >= 0);
    Q_ASSERT(ch < 32);
    if (static_cast<size_t>(ch) >= m_peaks.size())
        m_peaks.resize(static_cast<size_t>(ch) + 1);
}

void PeakVector::addPeak(const float& first, const float& second, int ch)
{
    growChannels(ch);
    m_peaks[static_cast<size_t>(ch)].emplace_back(first, second);
}

void PeakVector::insertPeaks(float first, float second, int ch, int pos, int n)
{
    Q_ASSERT(pos >= 0);
    growChannels(ch);
    std::vector<PeakInfo>& peaks = m_peaks[static_cast<size_t>(ch)];
    if (static_cast<size_t>(pos) > peaks.size())
        peaks.resize(static_cast<size_t>(pos));
    peaks.insert(peaks.begin() + pos, static_cast<size_t>(std::max(0, n)), PeakInfo(first, second));
}

PeakInfo& PeakVector::peakInfo(int x, int ch)
{
    Q_ASSERT(x >= 0);
    growChannels(ch);
    std::vector<PeakInfo>& peaks = m_peaks[static_cast<size_t>(ch)];
    if (static_cast<size_t>(x) >= peaks.size())
        peaks.resize(static_cast<size_t>(x) + 1);
    return peaks[static_cast<size_t>(x)];
}

const PeakInfo& PeakVector::peakInfo(int x, int ch) const
{
    Q_ASSERT(x >= 0);
    Q_ASSERT(ch >= 0);
    Q_ASSERT(ch < 32);
    return m_peaks.at(static_cast<size_t>(ch)).at(static_cast<size_t>(x));
}

std::vector<PeakInfo>& PeakVector::peakInfoVector(int ch)
{
    growChannels(ch);
    return m_peaks[static_cast<size_t>(ch)];
}

int PeakVector::numPeakFrames() const
{
    size_t longest = 0;
    for (const std::vector<PeakInfo>& peaks : m_peaks)
        longest = std::max(longest, peaks.size());
    return static_cast<int>(longest);
}

int PeakVector::peakChannels() const
{
    return static_cast<int>(m_peaks.size());
}

bool PeakVector::isEmpty() const
{
    return numPeakFrames() == 0;
}

void PeakVector::clear()
{
    m_peaks.clear();
}

void PeakVector::move(int n)
{
    if (n == 0)
        return;
    for (std::vector<PeakInfo>& peaks : m_peaks) {
        const size_t shift = static_cast<size_t>(std::abs(n));
        if (shift >= peaks.size()) {
            std::fill(peaks.begin(), peaks.end(), PeakInfo());
        } else if (n > 0) {
            peaks.erase(peaks.begin(), peaks.begin() + n);
        } else {
            peaks.insert(peaks.begin(), shift, PeakInfo());
            peaks.resize(peaks.size() - shift);
        }
    }
}

void PeakVector::blockExtremes(const float* samples, int frames, int channelCount, float* minimum, float* maximum)
{
    // Eight frames side by side in running extremes, which the compiler turns into
    // vector instructions; the lanes of each channel are joined at the end.
    constexpr int lanesFrames = 8;
    float low[lanesFrames * maximumChannels];
    float high[lanesFrames * maximumChannels];
    const int width = lanesFrames * channelCount;
    std::fill(low, low + width, 0.0f);
    std::fill(high, high + width, 0.0f);
    int f = 0;
    for (; f + lanesFrames <= frames; f += lanesFrames) {
        const float* x = samples + static_cast<size_t>(f) * static_cast<size_t>(channelCount);
        for (int i = 0; i < width; ++i) {
            low[i] = x[i] < low[i] ? x[i] : low[i];
            high[i] = x[i] > high[i] ? x[i] : high[i];
        }
    }
    for (int ch = 0; ch < channelCount; ++ch) {
        float lowest = 0.0f;
        float highest = 0.0f;
        for (int lane = 0; lane < lanesFrames; ++lane) {
            lowest = std::min(lowest, low[lane * channelCount + ch]);
            highest = std::max(highest, high[lane * channelCount + ch]);
        }
        for (int rest = f; rest < frames; ++rest) {
            lowest = std::min(lowest,
                samples[static_cast<size_t>(rest) * static_cast<size_t>(channelCount) + static_cast<size_t>(ch)]);
            highest = std::max(highest,
                samples[static_cast<size_t>(rest) * static_cast<size_t>(channelCount) + static_cast<size_t>(ch)]);
        }
        minimum[ch] = lowest;
        maximum[ch] = highest;
    }
}

void PeakVector::dump() const
{
    for (size_t ch = 0; ch < m_peaks.size(); ++ch)
        for (size_t x = 0; x < m_peaks[ch].size(); ++x)
            qDebug() << "Channel" << ch << "peak" << x << ":" << m_peaks[ch][x].first() << m_peaks[ch][x].second();
}

} // namespace Audio
