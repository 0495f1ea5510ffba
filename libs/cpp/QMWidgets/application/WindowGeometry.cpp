#include "WindowGeometry.h"

#include <QtGlobal>

namespace QMWidgets {

QSize WindowGeometry::fittedSize(const QSize& stored, const QSize& minimum, const QSize& available)
{
    // A screen smaller than the minimum still gets the minimum: the window
    // cannot be made smaller than that anyway.
    const QSize maximum = available.expandedTo(minimum);
    return QSize(qBound(minimum.width(), stored.width(), maximum.width()),
        qBound(minimum.height(), stored.height(), maximum.height()));
}

} // namespace QMWidgets
