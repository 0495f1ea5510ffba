#pragma once

#include "PeakInfo.h"

#include <vector>

namespace Audio {

// The peaks of a file in memory, one list per channel. Channel numbers lie from 0 to
// 31 (asserted); the lists grow on demand.
class PeakVector
{
public:
    static constexpr int maximumChannels = 32;

    PeakVector() = default;
    explicit PeakVector(int channels);
    PeakVector(int frames, int channels);

    void addPeak(const float& first, const float& second, int ch);
    // n copies of the peak at pos, the channel and the list grown as needed.
    void insertPeaks(float first, float second, int ch, int pos, int n);
    // Grows the channels and the list to reach (x, ch).
    PeakInfo& peakInfo(int x, int ch);
    // Throws std::out_of_range outside the peaks.
    const PeakInfo& peakInfo(int x, int ch) const;
    std::vector<PeakInfo>& peakInfoVector(int ch);
    // The length of the longest channel.
    int numPeakFrames() const;
    int peakChannels() const;
    bool isEmpty() const;
    void clear();
    // n > 0 drops the first n peaks of every channel; n < 0 puts |n| zero peaks in
    // front and drops as many at the end. A shift of a channel's length or more zeroes
    // all of it.
    void move(int n);
    void dump() const;

    // Minimum and maximum of each of up to 32 channels over `frames` interleaved frames,
    // both from 0, so that a channel of only positive samples has 0 as its minimum.
    static void blockExtremes(const float* samples, int frames, int channelCount, float* minimum, float* maximum);

private:
    void growChannels(int ch);

    std::vector<std::vector<PeakInfo>> m_peaks;
};

} // namespace Audio
