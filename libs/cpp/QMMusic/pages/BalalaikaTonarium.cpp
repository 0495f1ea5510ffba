#include "BalalaikaTonarium.h"

#include "BalalaikaBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Balalaika");
    staff.instrumentName = staff.key;
    staff.startLine = 7;
    staff.lines = 15;
    staff.translateLines = 6;
    staff.paperHeightFactor = 1.53f;
    staff.noBass = true;
    staff.leftPicture = QStringLiteral(":/balalaikaleft.jpg");
    staff.rightPicture = QStringLiteral(":/balalaikaright.jpg");
    return staff;
}

} // namespace

BalalaikaTonarium::BalalaikaTonarium(QWidget* parent)
    : InstrumentFinder(new BalalaikaBoard, staff(), parent)
{
}

BalalaikaBoard* BalalaikaTonarium::balalaikaBoard() const
{
    return static_cast<BalalaikaBoard*>(board());
}

} // namespace QMMusic
