#include "BassTonarium.h"

#include "BassBoard.h"

namespace QMMusic {

BassTonarium::BassTonarium(QWidget* parent)
    : InstrumentFinder(new BassBoard, FinderLayout::staffFor(QStringLiteral("Bass")), parent)
{
}

BassBoard* BassTonarium::bassBoard() const
{
    return static_cast<BassBoard*>(board());
}

} // namespace QMMusic
