#include "FocusRing.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QPainter>
#include <QWidget>

namespace QMWidgets {

namespace {

constexpr int kMargin = 3;

// The drawn ring: transparent but for its outline, and never in the way of the mouse.
class RingWidget : public QWidget
{
public:
    explicit RingWidget(QWidget* parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(232, 150, 72), 2.0));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 6, 6);
    }
};

} // namespace

FocusRing::FocusRing(QObject* parent)
    : QObject(parent)
{
    if (QCoreApplication* application = QCoreApplication::instance())
        application->installEventFilter(this);
}

FocusRing::~FocusRing()
{
    delete m_ring;
}

QWidget* FocusRing::target() const
{
    return m_ring && m_ring->isVisible() ? m_target.data() : nullptr;
}

QWidget* FocusRing::ring() const
{
    return m_ring;
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched->isWidgetType()) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
                showAround(static_cast<QWidget*>(watched));
            else
                hide();
        }
        break;
    case QEvent::FocusOut:
        if (watched == m_target)
            hide();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == m_target)
            place();
        break;
    case QEvent::Hide:
        if (watched == m_target)
            hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::showAround(QWidget* widget)
{
    QWidget* window = widget->window();
    if (widget == window) {
        hide();
        return;
    }
    if (!m_ring || m_ring->parentWidget() != window) {
        delete m_ring;
        m_ring = new RingWidget(window);
    }
    m_target = widget;
    place();
    m_ring->show();
    m_ring->raise();
}

void FocusRing::hide()
{
    m_target = nullptr;
    if (m_ring)
        m_ring->hide();
}

void FocusRing::place()
{
    if (!m_ring || !m_target)
        return;
    const QPoint topLeft = m_target->mapTo(m_ring->parentWidget(), QPoint(0, 0));
    m_ring->setGeometry(QRect(topLeft, m_target->size()).adjusted(-kMargin, -kMargin, kMargin, kMargin));
}

} // namespace QMWidgets
