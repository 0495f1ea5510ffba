#include "ViolinTonarium.h"

#include "ViolinBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Violin");
    staff.instrumentName = staff.key;
    staff.startLine = 8;
    staff.lines = 17;
    staff.translateLines = 6;
    staff.paperHeightFactor = 1.55f;
    staff.noBass = true;
    staff.leftPicture = QStringLiteral(":/violinleft.jpg");
    staff.rightPicture = QStringLiteral(":/violinright.jpg");
    return staff;
}

} // namespace

ViolinTonarium::ViolinTonarium(QWidget* parent)
    : InstrumentFinder(new ViolinBoard, staff(), parent)
{
}

ViolinBoard* ViolinTonarium::violinBoard() const
{
    return static_cast<ViolinBoard*>(board());
}

} // namespace QMMusic
