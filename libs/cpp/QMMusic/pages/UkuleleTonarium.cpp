#include "UkuleleTonarium.h"

#include "UkuleleBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Ukulele");
    staff.instrumentName = staff.key;
    staff.startLine = 8;
    staff.lines = 16;
    staff.translateLines = 6;
    staff.paperHeightFactor = 1.6f;
    staff.noBass = true;
    staff.leftPicture = QStringLiteral(":/ukuleft.jpg");
    staff.rightPicture = QStringLiteral(":/ukuright.jpg");
    return staff;
}

} // namespace

UkuleleTonarium::UkuleleTonarium(QWidget* parent)
    : InstrumentFinder(new UkuleleBoard, staff(), parent)
{
}

UkuleleBoard* UkuleleTonarium::ukuleleBoard() const
{
    return static_cast<UkuleleBoard*>(board());
}

} // namespace QMMusic
