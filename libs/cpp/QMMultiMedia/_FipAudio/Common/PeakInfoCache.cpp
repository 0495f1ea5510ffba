#include "PeakInfoCache.h"

namespace Audio {

PeakInfoCache::PeakInfoCache(const int& capacity)
    : m_capacity(capacity)
{
}

void PeakInfoCache::insert(int x, int ch, const float& zoom, const PeakInfo& peak)
{
    if (zoom != m_zoom) {
        reset();
        m_zoom = zoom;
    }
    const QPair<int, int> key(x, ch);
    if (m_order.size() >= m_capacity && !m_order.isEmpty())
        m_peaks.remove(m_order.takeFirst());
    if (!m_peaks.contains(key))
        m_order.append(key);
    m_peaks.insert(key, peak);
}

const PeakInfo* PeakInfoCache::find(int x, int ch, const float& zoom) const
{
    if (zoom != m_zoom)
        return nullptr;
    const auto found = m_peaks.constFind(QPair<int, int>(x, ch));
    return found == m_peaks.constEnd() ? nullptr : &found.value();
}

void PeakInfoCache::reset()
{
    m_peaks.clear();
    m_order.clear();
}

int PeakInfoCache::size() const
{
    return m_peaks.size();
}

} // namespace Audio
