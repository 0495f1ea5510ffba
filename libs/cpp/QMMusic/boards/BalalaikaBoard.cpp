#include "BalalaikaBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

BalalaikaBoard::BalalaikaBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Balalaika"), parent)
{
    initNotes();
    createLayers();
}

void BalalaikaBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString BalalaikaBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
