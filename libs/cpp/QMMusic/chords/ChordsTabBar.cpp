#include "ChordsTabBar.h"

#include <QMouseEvent>

namespace QMMusic {

ChordsTabBar::ChordsTabBar(QWidget* parent)
    : QTabBar(parent)
{
}

void ChordsTabBar::mouseReleaseEvent(QMouseEvent* event)
{
    // The chord is chosen when the button comes up. The press handler
    // selects on a release only where the style says so (macOS), so the tab
    // under the pointer is made current here for every style.
    QTabBar::mousePressEvent(event);
    const int index = tabAt(event->pos());
    if (index >= 0)
        setCurrentIndex(index);
    emit tabClicked();
}

void ChordsTabBar::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    emit countChanged(count());
}

void ChordsTabBar::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    emit countChanged(count());
}

} // namespace QMMusic
