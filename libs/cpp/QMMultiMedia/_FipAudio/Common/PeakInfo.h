#pragma once

namespace Audio {

// One peak of a stretch of audio: two values. The writer keeps the minimum first and
// the maximum second; peaks read back from a file hold their sizes, the first
// positive and the second negative.
class PeakInfo
{
public:
    PeakInfo() = default;
    PeakInfo(float first, float second)
        : m_first(first)
        , m_second(second)
    {
    }

    float first() const { return m_first; }
    float second() const { return m_second; }
    void setFirst(float value) { m_first = value; }
    void setSecond(float value) { m_second = value; }

    bool operator==(const PeakInfo& other) const { return m_first == other.m_first && m_second == other.m_second; }

private:
    float m_first = 0.0f;
    float m_second = 0.0f;
};

} // namespace Audio
