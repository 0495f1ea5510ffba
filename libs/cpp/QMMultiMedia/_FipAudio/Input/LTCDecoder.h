#pragma once

#include "LTCData.h"

#include <QString>

#include <vector>

namespace Audio {

class FileInput;

// Looks for linear timecode on the channels of an input, turns the biphase-mark signal
// of a track into a string of bits and keeps decoded words with their audio positions,
// which it stores in and loads from "LTCC" side files.
//
// Calibration measures the shortest pulse of ten frames' worth of audio: the half
// cell of a "1". Slicing then reads each interval between level changes: about a cell
// is a "0", about half a cell a "1", whose middle change is passed over. Words are cut
// from the bits where endIsSync() finds the sync word behind them.
class LTCDecoder
{
public:
    // Runs the detection on the input's channels; a null input is allowed for loading.
    explicit LTCDecoder(FileInput* input);
    virtual ~LTCDecoder();

    // Slices the whole of a track into bits.
    void process(const int& track);
    bool detectLTC(float* samples);
    void calibrate(float* samples);
    void initIgnoreValue(const float* samples);
    // Through the dead band: below the ignore value the held level, else +1 or -1.
    void normalizeFrame(float& sample);
    void normalizeFrame(float* samples, int count);
    // Whether the bits end in the sync word of an LTC word. This version answers no.
    bool endIsSync() const;

    int getLTCTrack() const;
    bool isLTCDataAvailable() const;
    // The word whose span ends at or after the frame; the invalid word outside the words.
    const LTCData& getLTC(const int& audioFrame) const;
    // The audio frame of the word with this time, or -1.
    int getAudioFrame(int h, int m, int s, int f) const;
    // The highest frame number among the first 60 words plus one; 0 without words.
    float ltcFps();

    bool save(const char* path);
    bool load(const char* path);
    void dump() const;

    int samplesPerBit() const;
    float ignoreValue() const;
    QString bits() const;
    const std::vector<LTCData>& words() const;

private:
    // The file's frame rate, or the production's when the file has none.
    float fps() const;
    // One sample of the track through the slicing rule; process counts ignored samples.
    void slice(float x, bool counting);

    int m_samplesPerBit = 0;
    float m_currentLevel = 0.0f;
    QString m_bits;
    float m_lastLevel = 0.0f;
    FileInput* m_input = nullptr;
    std::vector<LTCData> m_words;
    LTCData m_invalidWord { -1, QString(), 30.0f };
    float m_ignoreValue = 0.1f;
    float m_highestFrame = 0.0f;
    int m_detectionLength = 0;
    int m_ltcTrack = -1;
    // Samples since the last change, and whether the middle change of a "1" is awaited.
    int m_count = 0;
    bool m_inHalfCell = false;
    long long m_audioFrame = 0;
};

} // namespace Audio
