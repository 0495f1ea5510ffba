#include "BalalaikaTonarium.h"

#include "BalalaikaBoard.h"

namespace QMMusic {

BalalaikaTonarium::BalalaikaTonarium(QWidget* parent)
    : InstrumentFinder(new BalalaikaBoard, FinderLayout::staffFor(QStringLiteral("Balalaika")), parent)
{
}

BalalaikaBoard* BalalaikaTonarium::balalaikaBoard() const
{
    return static_cast<BalalaikaBoard*>(board());
}

} // namespace QMMusic
