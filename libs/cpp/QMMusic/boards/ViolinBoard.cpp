#include "ViolinBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

ViolinBoard::ViolinBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Violin"), parent)
{
    initNotes();
    createLayers();
}

void ViolinBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString ViolinBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
