#include "CenterFilter.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace QMWidgets {

CenterFilter::CenterFilter(QObject* parent)
    : QObject(parent)
{
}

QPoint CenterFilter::centredPosition(const QSize& parentSize, const QSize& size)
{
    return QPoint(parentSize.width() / 2 - size.width() / 2, parentSize.height() / 2 - size.height() / 2);
}

bool CenterFilter::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show || !object->isWidgetType())
        return false;

    auto* widget = static_cast<QWidget*>(object);
    QSize parentSize;
    if (const QWidget* parent = widget->parentWidget()) {
        parentSize = parent->size();
    } else if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        parentSize = screen->virtualSize();
    } else {
        return false;
    }
    const QPoint position = centredPosition(parentSize, widget->size());
    if (widget->pos() != position)
        widget->move(position);
    return false;
}

} // namespace QMWidgets
