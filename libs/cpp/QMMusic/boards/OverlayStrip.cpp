#include "OverlayStrip.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTime>

namespace QMMusic {

namespace {

bool isMark(QRgb pixel)
{
    return qBlue(pixel) > 50 || qRed(pixel) > 50;
}

} // namespace

int OverlayStrip::findMarkColumn(const QImage& source, int startColumn)
{
    const QImage image = source.convertToFormat(QImage::Format_ARGB32);
    const int width = image.width();
    if (width <= 0)
        return -1;
    startColumn = qBound(0, startColumn, width - 1);

    int found = -1;
    for (int row = 0; row < image.height(); ++row) {
        const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        for (int column = startColumn; column >= 0; --column) {
            if (isMark(line[column])) {
                found = column;
                break;
            }
        }
    }
    if (found > 0 || image.height() == 0)
        return found;

    for (int row = 0; row < image.height(); ++row) {
        const QRgb* line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        for (int column = startColumn; column < width; ++column) {
            if (isMark(line[column])) {
                found = column;
                break;
            }
        }
    }
    return found;
}

QPixmap OverlayStrip::keepStrip(const QPixmap& overlay, int startColumn, qreal ratio)
{
    if (overlay.isNull())
        return overlay;
    QImage image = overlay.toImage().convertToFormat(QImage::Format_ARGB32);
    // Pictures named "@2x" load with a pixel ratio of 2; the strip is
    // measured and erased in pixels.
    image.setDevicePixelRatio(1.0);
    const int found = findMarkColumn(image, startColumn);

    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 0));
    const int left = int(found - 40 * ratio);
    if (left > 0)
        painter.drawRect(QRect(0, 0, left, image.height()));
    const int right = int(found + 40 * ratio);
    painter.drawRect(QRect(right, 0, image.width(), image.height()));
    painter.end();

    QPixmap copy = QPixmap::fromImage(image);
    copy.setDevicePixelRatio(1.0 / ratio);
    return copy;
}

QPixmap OverlayStrip::keepRandomStrip(const QPixmap& overlay, qreal ratio)
{
    if (overlay.isNull() || overlay.width() <= 0)
        return overlay;
    QRandomGenerator generator(quint32(QTime::currentTime().msec()));
    const int start = int(generator.generate() % quint32(overlay.width()));
    return keepStrip(overlay, start, ratio);
}

} // namespace QMMusic
