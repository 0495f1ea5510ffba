#include "BassTonarium.h"

#include "BassBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Bass");
    staff.instrumentName = staff.key;
    staff.startLine = 15;
    staff.lines = 25;
    staff.translateLines = 12;
    staff.paperHeightFactor = 1.94f;
    staff.noViolin = true;
    staff.leftPicture = QStringLiteral(":/bassleft.jpg");
    staff.rightPicture = QStringLiteral(":/bassright.jpg");
    return staff;
}

} // namespace

BassTonarium::BassTonarium(QWidget* parent)
    : InstrumentFinder(new BassBoard, staff(), parent)
{
}

BassBoard* BassTonarium::bassBoard() const
{
    return static_cast<BassBoard*>(board());
}

} // namespace QMMusic
