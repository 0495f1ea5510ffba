#include "UkuleleBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

UkuleleBoard::UkuleleBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Ukulele"), parent)
{
    initNotes();
    createLayers();
}

void UkuleleBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString UkuleleBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
