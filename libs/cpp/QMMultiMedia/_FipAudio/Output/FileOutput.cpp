#include "FileOutput.h"

#include <algorithm>
#include <cmath>

namespace Audio {

FileOutput::FileOutput(const Settings& settings, const QString& comment, MTools::Handle<EBUInfo> info)
    : BaseOutput(settings)
    , m_ebuInfo(info)
    , m_envelope(new EBUEnvelope)
    , m_peakHelpers(
          static_cast<size_t>(std::max<short>(0, std::min<short>(settings.channels(), PeakVector::maximumChannels))))
{
    m_envelope->setBlockSize(m_peakBlockSize);
    m_fileInfo.setComment(comment);
}

FileOutput::~FileOutput() = default;

FileInfo FileOutput::fileInfo() const
{
    return m_fileInfo;
}

FILE* FileOutput::filePointer() const
{
    return m_file;
}

MTools::Handle<EBUEnvelope> FileOutput::ebuEnvelope() const
{
    return m_envelope;
}

const PeakVector& FileOutput::peakVector() const
{
    return m_peakVector;
}

void FileOutput::addSampleToPeaks(float x)
{
    const int ch = m_nextChannel;
    PeakCalculationHelper& helper = m_peakHelpers[static_cast<size_t>(ch)];
    helper.maximum = std::max(helper.maximum, x);
    helper.minimum = std::min(helper.minimum, x);
    if (std::fabs(x) > m_peakOfPeaks) {
        m_peakOfPeaks = std::fabs(x);
        m_envelope->setPosPeakOfPeaks(helper.frame);
    }
    ++helper.frame;
    if (++helper.blockSamples == m_peakBlockSize) {
        m_peakVector.addPeak(helper.minimum, helper.maximum, ch);
        helper.minimum = 0.0f;
        helper.maximum = 0.0f;
        helper.blockSamples = 0;
    }
    m_nextChannel = ch + 1 == static_cast<int>(m_peakHelpers.size()) ? 0 : ch + 1;
}

void FileOutput::addToPeaks(const float* samples, int count)
{
    const int channels = static_cast<int>(m_peakHelpers.size());
    if (channels == 0)
        return;
    int i = 0;
    while (i < count && m_nextChannel != 0)
        addSampleToPeaks(samples[i++]);
    // Whole frames go channel by channel, a run up to the end of the open block at a
    // time; the result is the same as sample by sample, at the speed of a plain loop.
    const int frames = (count - i) / channels;
    const float* base = samples + i;
    for (int f = 0; f < frames;) {
        const int run = std::min(frames - f, m_peakBlockSize - m_peakHelpers[0].blockSamples);
        // The loudest sample of the run, the first of them in the order of the stream.
        float loudest = 0.0f;
        int loudestFrame = 0;
        const float* run0 = base + static_cast<size_t>(f) * static_cast<size_t>(channels);
        float low[PeakVector::maximumChannels];
        float high[PeakVector::maximumChannels];
        PeakVector::blockExtremes(run0, run, channels, low, high);
        for (int ch = 0; ch < channels; ++ch) {
            PeakCalculationHelper& helper = m_peakHelpers[static_cast<size_t>(ch)];
            helper.minimum = std::min(helper.minimum, low[ch]);
            helper.maximum = std::max(helper.maximum, high[ch]);
            const float size = std::max(-low[ch], high[ch]);
            if (size > m_peakOfPeaks && size >= loudest) {
                for (int k = 0; k < run; ++k) {
                    const float value = std::fabs(
                        run0[static_cast<size_t>(k) * static_cast<size_t>(channels) + static_cast<size_t>(ch)]);
                    if (value > loudest || (value == loudest && f + k < loudestFrame)) {
                        loudest = value;
                        loudestFrame = f + k;
                    }
                }
            }
        }
        if (loudest > m_peakOfPeaks) {
            m_peakOfPeaks = loudest;
            m_envelope->setPosPeakOfPeaks(m_peakHelpers[0].frame + (loudestFrame - f));
        }
        for (int ch = 0; ch < channels; ++ch) {
            PeakCalculationHelper& helper = m_peakHelpers[static_cast<size_t>(ch)];
            helper.frame += run;
            helper.blockSamples += run;
            if (helper.blockSamples == m_peakBlockSize) {
                m_peakVector.addPeak(helper.minimum, helper.maximum, ch);
                helper.minimum = 0.0f;
                helper.maximum = 0.0f;
                helper.blockSamples = 0;
            }
        }
        f += run;
    }
    for (i += frames * channels; i < count; ++i)
        addSampleToPeaks(samples[i]);
}

void FileOutput::addLastPeak()
{
    for (size_t ch = 0; ch < m_peakHelpers.size(); ++ch) {
        PeakCalculationHelper& helper = m_peakHelpers[ch];
        ++helper.frame;
        ++helper.blockSamples;
        m_peakVector.addPeak(helper.minimum, helper.maximum, static_cast<int>(ch));
        helper.minimum = 0.0f;
        helper.maximum = 0.0f;
        helper.blockSamples = 0;
    }
}

} // namespace Audio
