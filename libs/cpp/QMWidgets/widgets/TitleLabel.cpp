#include "TitleLabel.h"

#include <QMouseEvent>

namespace QMWidgets {

TitleLabel::TitleLabel(QWidget* parent)
    : QLabel(parent)
{
}

void TitleLabel::setDecoration(QWidget* decoration, const QPoint& offset)
{
    delete m_decoration;
    m_decoration = decoration;
    m_decorationOffset = offset;
    if (!m_decoration)
        return;
    m_decoration->setParent(this, Qt::ToolTip);
    placeDecoration();
    m_decoration->setVisible(isVisible());
}

QWidget* TitleLabel::decoration() const
{
    return m_decoration;
}

void TitleLabel::placeDecoration()
{
    if (m_decoration)
        m_decoration->move(mapToGlobal(m_decorationOffset));
}

void TitleLabel::mousePressEvent(QMouseEvent* event)
{
    m_pressPos = event->localPos().toPoint();
    QLabel::mousePressEvent(event);
}

void TitleLabel::mouseMoveEvent(QMouseEvent* event)
{
    window()->move(event->globalPos() - m_pressPos);
    placeDecoration();
    QLabel::mouseMoveEvent(event);
}

void TitleLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (m_decoration) {
        placeDecoration();
        m_decoration->show();
    }
}

void TitleLabel::hideEvent(QHideEvent* event)
{
    if (m_decoration)
        m_decoration->hide();
    QLabel::hideEvent(event);
}

void TitleLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    // A repaint follows every move or resize of the window, which is when the
    // floating decoration has to catch up.
    placeDecoration();
}

} // namespace QMWidgets
