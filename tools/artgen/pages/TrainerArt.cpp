#include "TrainerArt.h"

#include "ArtWriter.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <functional>

namespace {

// The palette shared with the neck: rosewood browns, ivory binding, dark panels.
const QColor s_rosewoodLight(118, 62, 38);
const QColor s_rosewoodDark(40, 20, 14);
const QColor s_ivory(240, 232, 210);
const QColor s_ivoryShade(214, 200, 168);
const QColor s_binding(226, 212, 178);
const QColor s_amber(236, 160, 70);

enum class State
{
    Normal,
    Hover,
    Disabled
};

QLinearGradient vertical(const QRectF& r, const QColor& top, const QColor& middle, const QColor& bottom)
{
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0.0, top);
    g.setColorAt(0.45, middle);
    g.setColorAt(1.0, bottom);
    return g;
}

// A soft white sheen over the upper part of a shape.
void paintGloss(QPainter& p, const QPainterPath& shape, const QRectF& bounds, int alpha)
{
    QLinearGradient gloss(bounds.topLeft(), QPointF(bounds.left(), bounds.center().y()));
    gloss.setColorAt(0.0, QColor(255, 255, 255, alpha));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(gloss);
    p.drawPath(shape);
}

// The Start/Stop button: a rosewood ring with an ivory bezel around a dark
// glass disc; while a run is on the disc glows amber.
void paintRoundButton(QPainter& p, const QSizeF& size, bool checked)
{
    const QPointF c(size.width() / 2, size.height() / 2);
    const qreal outer = qMin(size.width(), size.height()) / 2 - 1;

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(c + QPointF(0, 1.2), outer, outer);

    QLinearGradient ring(c.x(), c.y() - outer, c.x(), c.y() + outer);
    ring.setColorAt(0.0, s_rosewoodLight.lighter(115));
    ring.setColorAt(0.5, s_rosewoodLight.darker(130));
    ring.setColorAt(1.0, s_rosewoodDark);
    p.setBrush(ring);
    p.drawEllipse(c, outer - 0.5, outer - 0.5);

    const qreal bezel = outer * 0.80;
    p.setPen(QPen(s_binding, outer * 0.05));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(c, bezel, bezel);

    const qreal inner = bezel - outer * 0.04;
    QRadialGradient disc(c.x(), c.y() + inner * 0.35, inner * 1.25);
    if (checked) {
        disc.setColorAt(0.0, s_amber);
        disc.setColorAt(0.55, QColor(170, 78, 28));
        disc.setColorAt(1.0, QColor(70, 24, 10));
    } else {
        disc.setColorAt(0.0, QColor(70, 66, 64));
        disc.setColorAt(0.6, QColor(24, 22, 22));
        disc.setColorAt(1.0, QColor(8, 8, 8));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(disc);
    p.drawEllipse(c, inner, inner);

    QPainterPath highlight;
    highlight.addEllipse(QRectF(c.x() - inner * 0.72, c.y() - inner * 0.92, inner * 1.44, inner * 0.9));
    paintGloss(p, highlight, highlight.boundingRect(), checked ? 90 : 60);
}

// An answer key, white (ivory) or black (ebony with a rosewood tint), with
// the lower corners rounded more, as on a piano.
void paintKey(QPainter& p, const QSizeF& size, bool black, State state)
{
    const QRectF r(1.0, 1.0, size.width() - 2.0, size.height() - 2.5);
    const qreal top = size.width() * 0.08;
    const qreal bottom = size.width() * 0.18;
    QPainterPath shape;
    shape.moveTo(r.left() + top, r.top());
    shape.lineTo(r.right() - top, r.top());
    shape.quadTo(r.topRight(), QPointF(r.right(), r.top() + top));
    shape.lineTo(r.right(), r.bottom() - bottom);
    shape.quadTo(r.bottomRight(), QPointF(r.right() - bottom, r.bottom()));
    shape.lineTo(r.left() + bottom, r.bottom());
    shape.quadTo(r.bottomLeft(), QPointF(r.left(), r.bottom() - bottom));
    shape.lineTo(r.left(), r.top() + top);
    shape.quadTo(r.topLeft(), QPointF(r.left() + top, r.top()));

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, state == State::Disabled ? 30 : 80));
    p.drawPath(shape.translated(0, 1.2));

    QLinearGradient fill;
    QColor rim;
    if (black) {
        switch (state) {
        case State::Hover:
            fill = vertical(r, QColor(126, 70, 44), QColor(78, 40, 26), QColor(34, 18, 12));
            rim = s_amber;
            break;
        case State::Disabled:
            fill = vertical(r, QColor(86, 82, 80), QColor(62, 60, 58), QColor(44, 42, 40));
            rim = QColor(110, 106, 100);
            break;
        default:
            fill = vertical(r, QColor(72, 48, 38), QColor(30, 20, 16), QColor(10, 7, 6));
            rim = QColor(150, 120, 90);
            break;
        }
    } else {
        switch (state) {
        case State::Hover:
            fill = vertical(r, QColor(255, 248, 226), QColor(250, 228, 180), QColor(222, 186, 128));
            rim = QColor(196, 120, 50);
            break;
        case State::Disabled:
            fill = vertical(r, QColor(206, 202, 194), QColor(190, 186, 178), QColor(164, 160, 152));
            rim = QColor(140, 134, 126);
            break;
        default:
            fill = vertical(r, s_ivory.lighter(106), s_ivory, s_ivoryShade);
            rim = QColor(92, 60, 40);
            break;
        }
    }
    p.setBrush(fill);
    p.setPen(QPen(rim, state == State::Hover ? 1.6 : 1.0));
    p.drawPath(shape);

    if (state != State::Disabled)
        paintGloss(p, shape, r, black ? 55 : 90);
}

// One half of the Find Note / Training switch: rounded on its outer side,
// straight where the halves meet. The chosen half turns warm rosewood.
void paintDualHalf(QPainter& p, const QSizeF& size, bool left, bool checked)
{
    const QRectF r(1.0, 1.0, size.width() - 2.0, size.height() - 2.5);
    const qreal radius = r.height() / 2;
    QPainterPath shape;
    if (left) {
        shape.moveTo(r.right(), r.top());
        shape.lineTo(r.left() + radius, r.top());
        shape.arcTo(QRectF(r.left(), r.top(), 2 * radius, r.height()), 90, 180);
        shape.lineTo(r.right(), r.bottom());
    } else {
        shape.moveTo(r.left(), r.top());
        shape.lineTo(r.right() - radius, r.top());
        shape.arcTo(QRectF(r.right() - 2 * radius, r.top(), 2 * radius, r.height()), 90, -180);
        shape.lineTo(r.left(), r.bottom());
    }
    shape.closeSubpath();

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 80));
    p.drawPath(shape.translated(0, 1.2));

    if (checked)
        p.setBrush(vertical(r, QColor(176, 98, 52), s_rosewoodLight, s_rosewoodDark));
    else
        p.setBrush(vertical(r, QColor(72, 72, 74), QColor(22, 22, 24), QColor(48, 48, 50)));
    p.setPen(QPen(checked ? s_binding : QColor(130, 130, 130), 1.0));
    p.drawPath(shape);
    paintGloss(p, shape, r, checked ? 70 : 45);

    // The seam between the halves: a dark groove with a light edge.
    const qreal seam = left ? r.right() - 0.5 : r.left() + 0.5;
    p.setPen(QPen(QColor(0, 0, 0, 150), 1.0));
    p.drawLine(QPointF(seam, r.top() + 1), QPointF(seam, r.bottom() - 1));
}

} // namespace

void TrainerArt::generate(ArtWriter& writer)
{
    const QSize round(64, 64);
    writer.addPicturePair(
        QStringLiteral("RoundButton"), round, [](QPainter& p, const QSizeF& s) { paintRoundButton(p, s, false); });
    writer.addPicturePair(QStringLiteral("RoundButton_checked"), round,
        [](QPainter& p, const QSizeF& s) { paintRoundButton(p, s, true); });

    const QSize key(44, 44);
    const struct
    {
        const char* suffix;
        State state;
    } keyStates[] = { { "", State::Normal }, { "_hover", State::Hover }, { "_disabled", State::Disabled } };
    for (const auto& keyState : keyStates) {
        const State state = keyState.state;
        writer.addPicturePair(QStringLiteral("Key") + QLatin1String(keyState.suffix), key,
            [state](QPainter& p, const QSizeF& s) { paintKey(p, s, false, state); });
        writer.addPicturePair(QStringLiteral("Keyd") + QLatin1String(keyState.suffix), key,
            [state](QPainter& p, const QSizeF& s) { paintKey(p, s, true, state); });
    }

    const QSize dual(96, 32);
    for (bool checked : { false, true }) {
        const QString suffix = checked ? QStringLiteral("_checked") : QString();
        writer.addPicturePair(QStringLiteral("DualButtonLeft") + suffix, dual,
            [checked](QPainter& p, const QSizeF& s) { paintDualHalf(p, s, true, checked); });
        writer.addPicturePair(QStringLiteral("DualButtonRight") + suffix, dual,
            [checked](QPainter& p, const QSizeF& s) { paintDualHalf(p, s, false, checked); });
    }
}
