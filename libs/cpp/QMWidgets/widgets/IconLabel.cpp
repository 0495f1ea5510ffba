#include "IconLabel.h"

namespace QMWidgets {

IconLabel::IconLabel(QWidget* parent)
    : Label(parent)
{
    setMode(Fit);
}

void IconLabel::setIcon(const QPixmap& pixmap)
{
    setRetinaPixmap(pixmap);
}

} // namespace QMWidgets
