#pragma once

#include <QList>

namespace QMMultiMedia {

class MemoryAudioPlayer;

// Bounds the sound-server streams that are open at once. The server allows a
// client about 256 and mixes some 32 cleanly on a small machine; past the
// first it stops answering, past the second it stutters. A player takes a
// place before it opens its stream and gives it back when it closes it; when
// all places are taken, the player that took its place first must give way.
class OutputBudget
{
public:
    explicit OutputBudget(int places);

    // The budget that every player of the process shares.
    static OutputBudget& shared();
    static constexpr int SharedPlaces = 20;

    // Takes a place for `player`, which must not hold one. Returns the player
    // that must end to make room, or null when a place was free.
    MemoryAudioPlayer* admit(MemoryAudioPlayer* player);
    void release(MemoryAudioPlayer* player);
    int used() const;

private:
    QList<MemoryAudioPlayer*> m_holders; // oldest first
    int m_places = 0;
};

} // namespace QMMultiMedia
