#include "BanjoTonarium.h"

#include "BanjoBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Banjo");
    staff.instrumentName = staff.key;
    staff.startLine = 8;
    staff.lines = 19;
    staff.translateLines = 5;
    staff.paperHeightFactor = 1.42f;
    staff.noBass = true;
    staff.leftPicture = QStringLiteral(":/banjoleft.jpg");
    staff.rightPicture = QStringLiteral(":/banjoright.jpg");
    return staff;
}

} // namespace

BanjoTonarium::BanjoTonarium(QWidget* parent)
    : InstrumentFinder(new BanjoBoard, staff(), parent)
{
}

BanjoBoard* BanjoTonarium::banjoBoard() const
{
    return static_cast<BanjoBoard*>(board());
}

} // namespace QMMusic
