#include "ViolinTonarium.h"

#include "ViolinBoard.h"

namespace QMMusic {

ViolinTonarium::ViolinTonarium(QWidget* parent)
    : InstrumentFinder(new ViolinBoard, FinderLayout::staffFor(QStringLiteral("Violin")), parent)
{
}

ViolinBoard* ViolinTonarium::violinBoard() const
{
    return static_cast<ViolinBoard*>(board());
}

} // namespace QMMusic
