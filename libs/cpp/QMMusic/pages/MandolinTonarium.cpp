#include "MandolinTonarium.h"

#include "MandolinBoard.h"

namespace QMMusic {

MandolinTonarium::MandolinTonarium(QWidget* parent)
    : InstrumentFinder(new MandolinBoard, FinderLayout::staffFor(QStringLiteral("Mandolin")), parent)
{
}

MandolinBoard* MandolinTonarium::mandolinBoard() const
{
    return static_cast<MandolinBoard*>(board());
}

} // namespace QMMusic
