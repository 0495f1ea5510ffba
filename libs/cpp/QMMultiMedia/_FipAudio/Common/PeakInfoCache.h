#pragma once

#include "PeakInfo.h"

#include <QList>
#include <QMap>
#include <QPair>

namespace Audio {

// Peaks computed for display columns at one zoom level, at most `capacity` of them; the
// oldest goes first. A peak of another zoom level empties the cache.
class PeakInfoCache
{
public:
    explicit PeakInfoCache(const int& capacity);

    void insert(int x, int ch, const float& zoom, const PeakInfo& peak);
    // The peak of (x, ch) at this zoom, or null.
    const PeakInfo* find(int x, int ch, const float& zoom) const;
    void reset();
    int size() const;

private:
    int m_capacity = 0;
    float m_zoom = 0.0f;
    QMap<QPair<int, int>, PeakInfo> m_peaks;
    QList<QPair<int, int>> m_order;
};

} // namespace Audio
