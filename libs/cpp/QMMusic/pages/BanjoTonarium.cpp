#include "BanjoTonarium.h"

#include "BanjoBoard.h"

namespace QMMusic {

BanjoTonarium::BanjoTonarium(QWidget* parent)
    : InstrumentFinder(new BanjoBoard, FinderLayout::staffFor(QStringLiteral("Banjo")), parent)
{
}

BanjoBoard* BanjoTonarium::banjoBoard() const
{
    return static_cast<BanjoBoard*>(board());
}

} // namespace QMMusic
