#pragma once

#include <QLabel>
#include <QPixmap>
#include <QRectF>

#include "ScaledPicture.h"

namespace QMWidgets {

// A label that paints its picture at the screen's full pixel density, either
// fitted and centred or filling the label from its top left corner.
class Label : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY(Label)

public:
    enum Mode
    {
        Fit = 0,
        Fill = 1
    };

    explicit Label(QWidget* parent = nullptr);

    void setMode(Mode mode);
    Mode mode() const;
    void setRetinaPixmap(const QPixmap& pixmap);
    // A picture of the resources, decoded when first painted, at the size painted.
    void setRetinaPicture(const QString& resource);

    // Where a picture of pictureSize lands in a label of labelSize (logical
    // units) at the pixel ratio, and the device pixels it is scaled to.
    static QSize scaledPictureSize(const QSize& pictureSize, const QSize& labelSize, qreal ratio, Mode mode);
    static QRectF pictureRect(const QSize& pictureSize, const QSize& labelSize, qreal ratio, Mode mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void updateScaledPixmap(qreal ratio);
    QSize pictureSize() const;

    QPixmap m_pixmap;
    ScaledPicture m_picture;
    Mode m_mode = Fit;
    QPixmap m_scaledPixmap;
    QSize m_scaledForSize;
    qreal m_scaledForRatio = 0.0;
};

} // namespace QMWidgets
