#pragma once

#include <QSize>

namespace QMWidgets {

// The size a main window opens at: the stored size, but never below the
// window's minimum and never beyond the screen it opens on, so that a stored
// size of millions of pixels cannot ask for gigabytes of window.
class WindowGeometry
{
public:
    static QSize fittedSize(const QSize& stored, const QSize& minimum, const QSize& available);
};

} // namespace QMWidgets
