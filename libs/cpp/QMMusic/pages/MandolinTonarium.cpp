#include "MandolinTonarium.h"

#include "MandolinBoard.h"

namespace QMMusic {

namespace {

FinderLayout::Staff staff()
{
    FinderLayout::Staff staff;
    staff.key = QStringLiteral("Mandolin");
    staff.instrumentName = staff.key;
    staff.startLine = 6;
    staff.lines = 17;
    staff.translateLines = 5;
    staff.paperHeightFactor = 1.42f;
    staff.noBass = true;
    staff.leftPicture = QStringLiteral(":/mandolinleft.jpg");
    staff.rightPicture = QStringLiteral(":/mandolinright.jpg");
    return staff;
}

} // namespace

MandolinTonarium::MandolinTonarium(QWidget* parent)
    : InstrumentFinder(new MandolinBoard, staff(), parent)
{
}

MandolinBoard* MandolinTonarium::mandolinBoard() const
{
    return static_cast<MandolinBoard*>(board());
}

} // namespace QMMusic
