#pragma once

#include "BaseOutput.h"

#include "Common/EBUEnvelope.h"
#include "Common/EBUInfo.h"
#include "Common/FileInfo.h"
#include "Common/PeakVector.h"

#include "Handle.h"

#include <QString>

#include <cstdio>
#include <vector>

namespace Audio {

// What every audio file writer keeps: the broadcast info, the peak envelope built from
// the samples as they pass, the file description with its sizes and offsets, and the
// stream.
class FileOutput : public BaseOutput
{
public:
    FileOutput(const Settings& settings, const QString& comment, MTools::Handle<EBUInfo> info);
    ~FileOutput() override;

    FileInfo fileInfo() const;
    FILE* filePointer() const;
    MTools::Handle<EBUEnvelope> ebuEnvelope() const;
    const PeakVector& peakVector() const;
    // Takes the samples' extremes into the peaks, a peak per channel and block of 256 frames.
    void addToPeaks(const float* samples, int count);
    // Closes the open block of every channel as a peak, counting one more frame.
    void addLastPeak();

protected:
    // The extremes of the open block of one channel.
    struct PeakCalculationHelper
    {
        float maximum = 0.0f;
        float minimum = 0.0f;
        int blockSamples = 0;
        int frame = 0;
    };

    MTools::Handle<EBUInfo> m_ebuInfo;
    MTools::Handle<EBUEnvelope> m_envelope;
    PeakVector m_peakVector;
    FileInfo m_fileInfo;
    FILE* m_file = nullptr;
    int m_peakBlockSize = 256;
    float m_peakOfPeaks = 0.0f;
    std::vector<PeakCalculationHelper> m_peakHelpers;
    int m_nextChannel = 0;
    std::vector<int> m_intScratch;
    std::vector<char> m_rawScratch;

private:
    void addSampleToPeaks(float x);
};

} // namespace Audio
