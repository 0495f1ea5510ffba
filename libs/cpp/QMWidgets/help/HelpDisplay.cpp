#include "HelpDisplay.h"

#include <QPainter>

namespace QMWidgets {

HelpDisplay::HelpDisplay(QWidget* parent)
    : QFrame(parent)
{
}

void HelpDisplay::setSlide(const QString& path)
{
    if (m_slide == path)
        return;
    m_slide = path;
    m_cacheValid = false;
    update();
}

QString HelpDisplay::slide() const
{
    return m_slide;
}

QRect HelpDisplay::targetRect(const QSize& frameSize, const QSize& scaledPictureSize)
{
    const int halfWidth = scaledPictureSize.width() / 2;
    const int halfHeight = scaledPictureSize.height() / 2;
    const int x = qMax(frameSize.width() - halfWidth, halfWidth - frameSize.width()) / 2;
    const int y = qMax(frameSize.height() - halfHeight, halfHeight - frameSize.height()) / 2;
    return QRect(x, y, halfWidth, halfHeight);
}

void HelpDisplay::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    m_cacheValid = false;
}

void HelpDisplay::updateCachedPixmap()
{
    // Scaled to twice the frame so that the slide stays sharp on a
    // high-density screen; an unreadable file gives a null pixmap.
    const QPixmap picture(m_slide);
    m_cachedPixmap
        = picture.isNull() ? QPixmap() : picture.scaled(size() * 2, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    m_cacheValid = true;
}

void HelpDisplay::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (m_slide.isEmpty())
        return;
    if (!m_cacheValid)
        updateCachedPixmap();

    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRect(rect());
    if (!m_cachedPixmap.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(targetRect(size(), m_cachedPixmap.size()), m_cachedPixmap);
    }
}

} // namespace QMWidgets
