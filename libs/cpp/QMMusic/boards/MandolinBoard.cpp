#include "MandolinBoard.h"

#include "FingerboardMap.h"

namespace QMMusic {

MandolinBoard::MandolinBoard(QWidget* parent)
    : BoardBase(QStringLiteral("Mandolin"), parent)
{
    initNotes();
    createLayers();
}

void MandolinBoard::initNotes()
{
    appendNotes(FingerboardMap::forKey(instrumentKey()));
}

QString MandolinBoard::positionToNote(int x, int y) const
{
    return noteOn(FingerboardMap::forKey(instrumentKey()), x, y);
}

} // namespace QMMusic
