#include "UkuleleTonarium.h"

#include "UkuleleBoard.h"

namespace QMMusic {

UkuleleTonarium::UkuleleTonarium(QWidget* parent)
    : InstrumentFinder(new UkuleleBoard, FinderLayout::staffFor(QStringLiteral("Ukulele")), parent)
{
}

UkuleleBoard* UkuleleTonarium::ukuleleBoard() const
{
    return static_cast<UkuleleBoard*>(board());
}

} // namespace QMMusic
