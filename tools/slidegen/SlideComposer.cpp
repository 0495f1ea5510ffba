#include "SlideComposer.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

namespace {
const QColor kIvory(243, 233, 210);
const QColor kIvoryDim(214, 204, 182);
const QColor kRosewood(122, 58, 34);
const QColor kBrass(214, 168, 82);
const int kBandHeight = 150;

// The largest font up to the given size whose text fits the box; some
// languages need more room than others.
QFont fittedFont(const QString& family, bool bold, int pixelSize, const QString& text, const QRectF& box, int flags)
{
    QFont font(family);
    font.setBold(bold);
    for (; pixelSize > 10; --pixelSize) {
        font.setPixelSize(pixelSize);
        const QRectF needed = QFontMetricsF(font).boundingRect(box, flags, text);
        if (needed.width() <= box.width() && needed.height() <= box.height())
            break;
    }
    return font;
}
} // namespace

QRectF SlideComposer::fitRect(const QSizeF& content, const QRectF& area)
{
    if (content.isEmpty())
        return QRectF(area.center(), QSizeF(0, 0));
    const QSizeF fitted = content.scaled(area.size(), Qt::KeepAspectRatio);
    return QRectF(area.left() + (area.width() - fitted.width()) / 2, area.top() + (area.height() - fitted.height()) / 2,
        fitted.width(), fitted.height());
}

QImage SlideComposer::compose(
    const QImage& content, const QList<QRectF>& rings, const QString& title, const QString& text)
{
    QImage slide(Width, Height, QImage::Format_RGB32);
    QPainter p(&slide);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    QLinearGradient ground(0, Height, 0, 0);
    ground.setColorAt(0.0, QColor(50, 50, 50));
    ground.setColorAt(0.6, QColor(12, 12, 12));
    ground.setColorAt(1.0, QColor(40, 40, 40));
    p.fillRect(slide.rect(), ground);

    // Caption band, closed by the rosewood strip of the menu bar.
    p.fillRect(QRect(0, kBandHeight - 5, Width, 4), kRosewood);
    p.fillRect(QRect(0, kBandHeight - 1, Width, 1), kBrass.darker(130));

    const QRectF titleBox(28, 12, Width - 56, 50);
    p.setFont(fittedFont(QStringLiteral("DejaVu Serif"), true, 36, title, titleBox, Qt::AlignLeft | Qt::AlignVCenter));
    p.setPen(kIvory);
    p.drawText(titleBox, Qt::AlignLeft | Qt::AlignVCenter, title);

    const QRectF textBox(28, 66, Width - 56, kBandHeight - 74);
    const int textFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    p.setFont(fittedFont(QStringLiteral("DejaVu Sans"), false, 22, text, textBox, textFlags));
    p.setPen(kIvoryDim);
    p.drawText(textBox, textFlags, text);

    // The program, framed, with a soft shadow.
    const qreal ratio = content.devicePixelRatio();
    const QSizeF logical(content.width() / ratio, content.height() / ratio);
    const QRectF target = fitRect(logical, QRectF(20, kBandHeight + 12, Width - 40, Height - kBandHeight - 24));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 110));
    p.drawRoundedRect(target.translated(4, 5), 4, 4);
    p.drawImage(target, content);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(kBrass, 2));
    p.drawRect(target.adjusted(-1, -1, 1, 1));

    const qreal scale = logical.width() > 0 ? target.width() / logical.width() : 1.0;
    for (const QRectF& ring : rings) {
        const QRectF r(target.left() + ring.left() * scale, target.top() + ring.top() * scale, ring.width() * scale,
            ring.height() * scale);
        const QRectF around = r.adjusted(-7, -7, 7, 7);
        p.setPen(QPen(QColor(0, 0, 0, 150), 7));
        p.drawEllipse(around);
        p.setPen(QPen(kBrass.lighter(115), 3.5));
        p.drawEllipse(around);
    }
    p.end();
    return slide;
}
