#pragma once

#include <QString>

namespace Audio {

// One decoded 80-bit word of linear timecode, tied to the audio position it belongs to:
// hour, minute, second and frame, the drop-frame flag and four groups of user bits.
class LTCData
{
public:
    LTCData(bool valid, long long audioFrame, char hour, char minute, char second, char frame, bool drop, char group1,
        char group2, char group3, char group4);
    // From 80 characters "0" and "1", the first of the word first; anything but exactly
    // 80 or an audio frame below 1 gives an invalid word. The drop flag counts only at
    // rates other than 24 and 25.
    LTCData(const long long& audioFrame, const QString& bits, const float& fps);
    virtual ~LTCData();

    bool isValid() const;
    long long audioFrame() const;
    char hour() const;
    char minute() const;
    char second() const;
    char frame() const;
    bool drop() const;
    // Group 1 to 4, or -1 for another index.
    int bitGroup(int index) const;
    // The time as text, or with userBits the four groups in place of the time; empty
    // for an invalid word.
    QString timecode(const float& fps, bool userBits) const;

private:
    bool m_valid = false;
    long long m_audioFrame = 0;
    char m_hour = 0;
    char m_minute = 0;
    char m_second = 0;
    char m_frame = 0;
    bool m_drop = false;
    char m_bitGroups[4] = {};
};

} // namespace Audio
