#pragma once

#include <QString>

#include <climits>

namespace MTools {

// A frame number on a film or video time line.
typedef long long FipTime;

// One point on a film or video time line: a frame number at a frame rate, convertible
// to and from hours, minutes, seconds and frames, with drop-frame counting at the NTSC
// rates (29.97, 23.98), the packed SMPTE form and 2:3 pulldown between 24-frame film
// and 30-frame video. Wrong states never throw: they are logged and answer neutrally.
class FrameCount
{
public:
    // The frame value that stands for "unknown".
    static constexpr FipTime unknownFrame = LLONG_MIN;
    // Rates from this size on (and rates that are not a number) count as no rate.
    static constexpr float maximumRate = 1000000.0f;

    FrameCount();
    FrameCount(long long frame, float fps);
    // Phases of the pulldown run from 1 to 4; *odd (if given) receives the half-frame bit.
    FrameCount(int h, int m, int s, int f, float fps, bool pulldown = false, int phase = 1, int* odd = nullptr);
    FrameCount(float fps, unsigned int smpte, bool pulldown = false, int phase = 1, int* odd = nullptr);
    FrameCount(const FrameCount& other);
    FrameCount& operator=(const FrameCount& other);

    FipTime frameCountFromTimecode(
        int h, int m, int s, int f, bool pulldown = false, int phase = 1, int* odd = nullptr) const;
    // Text "hh:mm:ss:ff" (any separators); any other length answers unknownFrame.
    FipTime frameCountFromTimecode(const QString& text, bool pulldown = false, int phase = 1) const;

    // wrap keeps a frame of exactly one day as 24:00:00:00; offset is added to the
    // video frame after pulldown.
    void timecodeFromFrameCount(
        int* h, int* m, int* s, int* f, bool wrap = false, int offset = 0, bool pulldown = false, int phase = 1) const;
    // The same as text; ";" separators on the drop-frame rates. Empty at rate 0.
    QString timecodeFromFrameCount(bool wrap = false, bool pulldown = false, int phase = 1) const;

    static QString timecodeToString(int h, int m, int s, int f, bool drop, float fps, bool film);
    QString timecodeToString(int h, int m, int s, int f, bool drop) const;

    void setSmpteTimecode(unsigned int smpte, float fps, bool pulldown = false, int phase = 1, int* odd = nullptr);
    unsigned int smpteTimecode();
    unsigned int calcSmpteTimecode();

    FipTime frame() const;
    float fps() const;
    bool isKnown() const;
    void setFrameCount(long long frame);
    void unsetFrameCount();
    void updateFps(float fps);
    FipTime convertFrame(float fps);
    void print() const;

    // The drop-frame rates 29.97 and 23.98.
    static bool isDropFrameRate(float fps);
    // 30 and 24 for the drop-frame rates, else the absolute rate cut to an integer.
    static int nominalFrames(float fps);

    bool operator==(const FrameCount& other) const;
    bool operator<(const FrameCount& other) const;
    bool operator>(const FrameCount& other) const;

private:
    FipTime m_frame = unknownFrame;
    bool m_frameCountKnown = true;
    float m_fps = 30.0f;
    unsigned int m_smpteTimecode = 0;
    bool m_smpteKnown = false;
};

} // namespace MTools
