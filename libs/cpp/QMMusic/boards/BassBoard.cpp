#include "BassBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

BassBoard::BassBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Bass"), parent)
{
    initNotes();
    createLayers();
}

void BassBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString BassBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
