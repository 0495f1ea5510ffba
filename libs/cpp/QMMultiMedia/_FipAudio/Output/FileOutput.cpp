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

void FileOutput::addToPeaks(const float* samples, int count)
{
    const int channels = static_cast<int>(m_peakHelpers.size());
    if (channels == 0)
        return;
    for (int i = 0; i < count; ++i) {
        const float x = samples[i];
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
        m_nextChannel = ch + 1 == channels ? 0 : ch + 1;
    }
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
