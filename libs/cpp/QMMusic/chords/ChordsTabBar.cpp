#include "ChordsTabBar.h"

namespace QMMusic {

ChordsTabBar::ChordsTabBar(QWidget* parent)
    : QTabBar(parent)
{
}

void ChordsTabBar::mouseReleaseEvent(QMouseEvent* event)
{
    // The release selects, as a press would, so that the current tab is the
    // clicked one when tabClicked() goes out; the press itself only starts
    // a move of the tab.
    QTabBar::mousePressEvent(event);
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
