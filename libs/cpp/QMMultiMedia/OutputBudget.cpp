#include "OutputBudget.h"

namespace QMMultiMedia {

OutputBudget::OutputBudget(int places)
    : m_places(qMax(1, places))
{
}

OutputBudget& OutputBudget::shared()
{
    static OutputBudget budget(SharedPlaces);
    return budget;
}

MemoryAudioPlayer* OutputBudget::admit(MemoryAudioPlayer* player)
{
    MemoryAudioPlayer* oldest = m_holders.size() >= m_places ? m_holders.takeFirst() : nullptr;
    m_holders.append(player);
    return oldest;
}

void OutputBudget::release(MemoryAudioPlayer* player)
{
    m_holders.removeOne(player);
}

int OutputBudget::used() const
{
    return m_holders.size();
}

} // namespace QMMultiMedia
