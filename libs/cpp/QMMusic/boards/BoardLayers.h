#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include "ScaledPicture.h"

class QPainter;
class QRect;

namespace QMMusic {

// The pictures of a board: the neck, decoded at the size shown, and the overlay of the
// note shown. Keeps their copies scaled to the widget so that a repaint
// only draws; a new size or a new overlay file drops the copies.
class BoardLayers
{
public:
    explicit BoardLayers(const QString& backgroundFile);

    // Width of the neck picture divided by its height; 0 without a picture.
    float aspect() const;
    // The height that shows the whole neck undistorted at this width.
    int heightForWidth(int width) const;

    // The overlay picture, as loaded from its @2x file; null when missing.
    QPixmap overlay(const QString& file);

    void drawBackground(QPainter& painter, const QRect& target);
    // Draws the overlay of this file scaled to the target.
    void drawOverlay(QPainter& painter, const QRect& target, const QString& file);
    // Draws a picture made for this paint only, e.g. one place of a note.
    static void drawScaled(QPainter& painter, const QRect& target, const QPixmap& picture);

    // The pixel ratio of the screen the pictures are drawn for.
    static qreal pixelRatio();

private:
    static QPixmap scaled(const QPixmap& picture, const QSize& size);

    QMWidgets::ScaledPicture m_background;
    float m_aspect = 0.0f;
    QString m_overlayFile;
    QPixmap m_overlay;
    QPixmap m_scaledOverlay;
};

} // namespace QMMusic
