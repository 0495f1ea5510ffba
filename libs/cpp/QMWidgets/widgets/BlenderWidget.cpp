#include "BlenderWidget.h"

#include <QMouseEvent>

namespace QMWidgets {

BlenderWidget::BlenderWidget(QWidget* parent)
    : QLabel(parent)
{
}

// Accepting the event keeps it from reaching the widgets underneath.
void BlenderWidget::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void BlenderWidget::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void BlenderWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}

} // namespace QMWidgets
