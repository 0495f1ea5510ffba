#include "Label.h"

#include "App.h"

#include <QPainter>

namespace QMWidgets {

Label::Label(QWidget* parent)
    : QLabel(parent)
{
}

void Label::setMode(Mode mode)
{
    if (m_mode == mode)
        return;
    m_mode = mode;
    m_scaledPixmap = QPixmap();
    update();
}

Label::Mode Label::mode() const
{
    return m_mode;
}

void Label::setRetinaPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    m_picture = ScaledPicture();
    m_scaledPixmap = QPixmap();
    update();
}

void Label::setRetinaPicture(const QString& resource)
{
    m_pixmap = QPixmap();
    m_picture = ScaledPicture(resource);
    m_scaledPixmap = QPixmap();
    update();
}

QSize Label::pictureSize() const
{
    return m_picture.isNull() ? m_pixmap.size() : m_picture.size();
}

QSize Label::scaledPictureSize(const QSize& pictureSize, const QSize& labelSize, qreal ratio, Mode mode)
{
    const QSize target(qRound(labelSize.width() * ratio), qRound(labelSize.height() * ratio));
    return pictureSize.scaled(target, mode == Fit ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding);
}

QRectF Label::pictureRect(const QSize& pictureSize, const QSize& labelSize, qreal ratio, Mode mode)
{
    const QSize pixels = scaledPictureSize(pictureSize, labelSize, ratio, mode);
    const qreal width = pixels.width() / ratio;
    const qreal height = pixels.height() / ratio;
    if (mode != Fit)
        return QRectF(0.0, 0.0, width, height);
    return QRectF((labelSize.width() - width) * 0.5, (labelSize.height() - height) * 0.5, width, height);
}

void Label::updateScaledPixmap(qreal ratio)
{
    m_scaledForSize = size();
    m_scaledForRatio = ratio;
    const QSize pixels = scaledPictureSize(pictureSize(), size(), ratio, m_mode);
    if (pixels.isEmpty())
        m_scaledPixmap = QPixmap();
    else if (!m_picture.isNull())
        m_scaledPixmap = m_picture.at(pixels);
    else
        m_scaledPixmap = m_pixmap.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void Label::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (pictureSize().isEmpty())
        return;

    const App* app = App::theApp();
    const qreal ratio = app ? app->devicePixelRatio() : devicePixelRatioF();
    if (m_scaledPixmap.isNull() || m_scaledForSize != size() || !qFuzzyCompare(m_scaledForRatio, ratio))
        updateScaledPixmap(ratio);
    if (m_scaledPixmap.isNull())
        return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(
        pictureRect(pictureSize(), size(), ratio, m_mode), m_scaledPixmap, QRectF(m_scaledPixmap.rect()));
}

} // namespace QMWidgets
