#include "BanjoBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

BanjoBoard::BanjoBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Banjo"), parent)
{
    initNotes();
    createLayers();
}

void BanjoBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString BanjoBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
