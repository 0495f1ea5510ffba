#pragma once

#include <QImage>
#include <QList>
#include <QRectF>

// Lays out one introduction slide: the caption on a dark band above, the
// rendered program below, with brass rings around what the caption speaks of.
class SlideComposer
{
public:
    static constexpr int Width = 800;
    static constexpr int Height = 600;

    // The largest rectangle of the content's aspect centred in the area.
    static QRectF fitRect(const QSizeF& content, const QRectF& area);

    // rings are given in the content's logical coordinates (the image's
    // size divided by its device pixel ratio).
    static QImage compose(const QImage& content, const QList<QRectF>& rings, const QString& title, const QString& text);
};
