#include "LTCData.h"

#include "FrameCount.h"

namespace Audio {

LTCData::LTCData(bool valid, long long audioFrame, char hour, char minute, char second, char frame, bool drop,
    char group1, char group2, char group3, char group4)
    : m_valid(valid)
    , m_audioFrame(audioFrame)
    , m_hour(hour)
    , m_minute(minute)
    , m_second(second)
    , m_frame(frame)
    , m_drop(drop)
    , m_bitGroups { group1, group2, group3, group4 }
{
}

LTCData::LTCData(const long long& audioFrame, const QString& bits, const float& fps)
    : m_audioFrame(audioFrame)
{
    if (bits.size() != 80 || audioFrame < 1)
        return;
    m_valid = true;
    const auto bit = [&bits](int index) { return bits.at(index) == QLatin1Char('1') ? 1 : 0; };
    // A value from `count` bits from `first` on, the first bit worth 1.
    const auto field = [&bit](int first, int count) {
        int value = 0;
        for (int i = 0; i < count; ++i)
            value |= bit(first + i) << i;
        return value;
    };
    m_frame = static_cast<char>(field(0, 4) + 10 * field(8, 2));
    m_second = static_cast<char>(field(16, 4) + 10 * field(24, 3));
    m_minute = static_cast<char>(field(32, 4) + 10 * field(40, 3));
    m_hour = static_cast<char>(field(48, 4) + 10 * field(56, 2));
    m_drop = fps != 24.0f && fps != 25.0f && bit(10) == 1;
    // Each group takes four bits worth 1 to 8 and three worth 32 to 128; 16 is never set.
    for (int group = 0; group < 4; ++group) {
        const int low = 4 + 16 * group;
        const int high = 12 + 16 * group;
        m_bitGroups[group] = static_cast<char>(field(low, 4) | (field(high, 3) << 5));
    }
}

LTCData::~LTCData() = default;

bool LTCData::isValid() const
{
    return m_valid;
}

long long LTCData::audioFrame() const
{
    return m_audioFrame;
}

char LTCData::hour() const
{
    return m_hour;
}

char LTCData::minute() const
{
    return m_minute;
}

char LTCData::second() const
{
    return m_second;
}

char LTCData::frame() const
{
    return m_frame;
}

bool LTCData::drop() const
{
    return m_drop;
}

int LTCData::bitGroup(int index) const
{
    if (index < 1 || index > 4)
        return -1;
    return static_cast<unsigned char>(m_bitGroups[index - 1]);
}

QString LTCData::timecode(const float& fps, bool userBits) const
{
    if (!m_valid)
        return QString();
    if (userBits)
        return MTools::FrameCount::timecodeToString(
            m_bitGroups[0], m_bitGroups[1], m_bitGroups[2], m_bitGroups[3], m_drop, fps, false);
    return MTools::FrameCount::timecodeToString(m_hour, m_minute, m_second, m_frame, m_drop, fps, false);
}

} // namespace Audio
