#include "BoardLayers.h"

#include "App.h"

#include <QPainter>

namespace QMMusic {

BoardLayers::BoardLayers(const QString& backgroundFile)
    : m_background(backgroundFile)
{
    if (!m_background.isNull())
        m_aspect = float(m_background.size().width()) / float(m_background.size().height());
}

float BoardLayers::aspect() const
{
    return m_aspect;
}

int BoardLayers::heightForWidth(int width) const
{
    if (m_aspect <= 0.0f)
        return -1;
    return int(width / m_aspect);
}

qreal BoardLayers::pixelRatio()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    const qreal ratio = app ? app->devicePixelRatio() : 1.0;
    return ratio > 0.0 ? ratio : 1.0;
}

QPixmap BoardLayers::scaled(const QPixmap& picture, const QSize& size)
{
    if (picture.isNull())
        return picture;
    const qreal ratio = pixelRatio();
    return picture.scaled(
        int(size.width() * ratio), int(size.height() * ratio), Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QPixmap BoardLayers::overlay(const QString& file)
{
    if (file != m_overlayFile) {
        m_overlayFile = file;
        m_overlay = file.isEmpty() ? QPixmap() : QPixmap(file);
        m_scaledOverlay = QPixmap();
    }
    return m_overlay;
}

void BoardLayers::drawBackground(QPainter& painter, const QRect& target)
{
    if (m_background.isNull())
        return;
    const QPixmap scaled = m_background.at(target.size() * pixelRatio());
    painter.drawPixmap(target, scaled, scaled.rect());
}

void BoardLayers::drawOverlay(QPainter& painter, const QRect& target, const QString& file)
{
    const QPixmap& picture = overlay(file);
    if (picture.isNull())
        return;
    const qreal ratio = pixelRatio();
    const QSize wanted
        = picture.size().scaled(int(target.width() * ratio), int(target.height() * ratio), Qt::KeepAspectRatio);
    if (m_scaledOverlay.size() != wanted)
        m_scaledOverlay = scaled(picture, target.size());
    painter.drawPixmap(target, m_scaledOverlay, m_scaledOverlay.rect());
}

void BoardLayers::drawScaled(QPainter& painter, const QRect& target, const QPixmap& picture)
{
    if (picture.isNull())
        return;
    const QPixmap copy = scaled(picture, target.size());
    painter.drawPixmap(target, copy, copy.rect());
}

} // namespace QMMusic
