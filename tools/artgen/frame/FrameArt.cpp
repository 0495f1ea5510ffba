#include "FrameArt.h"

#include "ArtWriter.h"

#include <QFont>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <functional>

namespace {

// One palette for the whole frame: dark panels, rosewood and ivory.
const QColor kIvory(243, 233, 210);
const QColor kIvoryDim(200, 188, 160);
const QColor kRosewood(122, 58, 34);
const QColor kRosewoodDark(62, 28, 16);
const QColor kBrass(214, 168, 82);

QFont font(qreal pixelSize, bool bold, bool serif = false)
{
    QFont f(serif ? QStringLiteral("DejaVu Serif") : QStringLiteral("DejaVu Sans"));
    f.setPixelSize(qMax(1, qRound(pixelSize)));
    f.setBold(bold);
    return f;
}

QPen strokePen(const QColor& colour, qreal width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// The dark panel of the style sheet's gradients, from bottom to top.
void fillDarkPanel(QPainter& p, const QRectF& r, qreal radius, bool warm)
{
    QLinearGradient g(r.bottomLeft(), r.topLeft());
    g.setColorAt(0.0, warm ? QColor(96, 52, 34) : QColor(50, 50, 50));
    g.setColorAt(0.6, warm ? QColor(40, 20, 12) : QColor(10, 10, 10));
    g.setColorAt(0.9, warm ? QColor(110, 62, 40) : QColor(50, 50, 50));
    g.setColorAt(1.0, warm ? QColor(150, 92, 62) : QColor(70, 70, 70));
    p.setBrush(g);
    p.setPen(QPen(warm ? kBrass : QColor(110, 110, 110), 1.0));
    p.drawRoundedRect(r, radius, radius);
}

// --- symbols, drawn into a square box in ivory (or a given colour) ---

QPainterPath starPath(const QPointF& c, qreal outer, qreal inner)
{
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const qreal r = (i % 2 == 0) ? outer : inner;
        const qreal a = qDegreesToRadians(-90.0 + i * 36.0);
        const QPointF pt(c.x() + r * qCos(a), c.y() + r * qSin(a));
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    path.closeSubpath();
    return path;
}

void symbolStar(QPainter& p, const QRectF& b, const QColor& colour)
{
    QRadialGradient g(b.center() - QPointF(b.width() * 0.1, b.height() * 0.15), b.width() * 0.6);
    g.setColorAt(0.0, colour.lighter(130));
    g.setColorAt(1.0, colour.darker(130));
    p.setBrush(g);
    p.setPen(QPen(colour.darker(200), b.width() * 0.04));
    p.drawPath(starPath(b.center() + QPointF(0, b.height() * 0.04), b.width() * 0.48, b.width() * 0.2));
}

void symbolQuestion(QPainter& p, const QRectF& b, const QColor& colour)
{
    p.setPen(strokePen(colour, b.width() * 0.09));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(b.adjusted(b.width() * 0.06, b.height() * 0.06, -b.width() * 0.06, -b.height() * 0.06));
    p.setFont(font(b.height() * 0.68, true, true));
    p.drawText(b.translated(0, b.height() * 0.02), Qt::AlignCenter, QStringLiteral("?"));
}

void symbolShare(QPainter& p, const QRectF& b, const QColor& colour)
{
    p.setPen(strokePen(colour, b.width() * 0.09));
    p.setBrush(Qt::NoBrush);
    // An open tray and an arrow leaving it upwards.
    QPainterPath tray;
    tray.moveTo(b.left() + b.width() * 0.32, b.top() + b.height() * 0.42);
    tray.lineTo(b.left() + b.width() * 0.12, b.top() + b.height() * 0.42);
    tray.lineTo(b.left() + b.width() * 0.12, b.bottom() - b.height() * 0.08);
    tray.lineTo(b.right() - b.width() * 0.12, b.bottom() - b.height() * 0.08);
    tray.lineTo(b.right() - b.width() * 0.12, b.top() + b.height() * 0.42);
    tray.lineTo(b.right() - b.width() * 0.32, b.top() + b.height() * 0.42);
    p.drawPath(tray);
    const qreal cx = b.center().x();
    p.drawLine(QPointF(cx, b.top() + b.height() * 0.08), QPointF(cx, b.top() + b.height() * 0.66));
    p.drawLine(QPointF(cx, b.top() + b.height() * 0.08), QPointF(cx - b.width() * 0.18, b.top() + b.height() * 0.26));
    p.drawLine(QPointF(cx, b.top() + b.height() * 0.08), QPointF(cx + b.width() * 0.18, b.top() + b.height() * 0.26));
}

void person(QPainter& p, const QPointF& head, qreal r, const QColor& colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawEllipse(head, r, r);
    QPainterPath body;
    body.moveTo(head.x() - r * 1.9, head.y() + r * 3.4);
    body.cubicTo(head.x() - r * 1.9, head.y() + r * 1.2, head.x() + r * 1.9, head.y() + r * 1.2, head.x() + r * 1.9,
        head.y() + r * 3.4);
    body.closeSubpath();
    p.drawPath(body);
}

void symbolJoin(QPainter& p, const QRectF& b, const QColor& colour)
{
    const qreal r = b.width() * 0.13;
    person(p, QPointF(b.left() + b.width() * 0.34, b.top() + b.height() * 0.3), r, colour.darker(135));
    person(p, QPointF(b.left() + b.width() * 0.62, b.top() + b.height() * 0.36), r * 1.1, colour);
    p.setPen(strokePen(kBrass, b.width() * 0.08));
    const QPointF plus(b.right() - b.width() * 0.1, b.top() + b.height() * 0.18);
    const qreal a = b.width() * 0.1;
    p.drawLine(plus - QPointF(a, 0), plus + QPointF(a, 0));
    p.drawLine(plus - QPointF(0, a), plus + QPointF(0, a));
}

void symbolMenu(QPainter& p, const QRectF& b, const QColor& colour)
{
    p.setPen(strokePen(colour, b.height() * 0.11));
    for (int i = 0; i < 3; ++i) {
        const qreal y = b.top() + b.height() * (0.25 + 0.25 * i);
        p.drawLine(QPointF(b.left() + b.width() * 0.14, y), QPointF(b.right() - b.width() * 0.14, y));
    }
}

void symbolGrid(QPainter& p, const QRectF& b, const QColor& colour)
{
    const qreal cell = b.width() * 0.36;
    const qreal gap = b.width() * 0.1;
    const QColor colours[] = { colour, kBrass, kRosewood.lighter(150), colour.darker(120) };
    for (int i = 0; i < 4; ++i) {
        const QRectF r(b.left() + b.width() * 0.09 + (i % 2) * (cell + gap),
            b.top() + b.height() * 0.09 + (i / 2) * (cell + gap), cell, cell);
        p.setPen(QPen(QColor(0, 0, 0, 120), b.width() * 0.02));
        p.setBrush(colours[i]);
        p.drawRoundedRect(r, cell * 0.25, cell * 0.25);
    }
}

void symbolBubble(QPainter& p, const QRectF& b, const QColor& colour)
{
    QPainterPath bubble;
    const QRectF body(b.left() + b.width() * 0.06, b.top() + b.height() * 0.12, b.width() * 0.88, b.height() * 0.6);
    bubble.addRoundedRect(body, b.width() * 0.16, b.height() * 0.16);
    QPainterPath tail;
    tail.moveTo(b.left() + b.width() * 0.26, body.bottom() - 1);
    tail.lineTo(b.left() + b.width() * 0.2, b.bottom() - b.height() * 0.08);
    tail.lineTo(b.left() + b.width() * 0.46, body.bottom() - 1);
    tail.closeSubpath();
    bubble = bubble.united(tail);
    p.setPen(QPen(colour.darker(160), b.width() * 0.04));
    p.setBrush(colour);
    p.drawPath(bubble);
    p.setPen(Qt::NoPen);
    p.setBrush(kRosewood);
    for (int i = 0; i < 3; ++i)
        p.drawEllipse(QPointF(body.left() + body.width() * (0.28 + 0.22 * i), body.center().y()), b.width() * 0.06,
            b.width() * 0.06);
}

void symbolGlobe(QPainter& p, const QRectF& b, const QColor& colour)
{
    const QRectF r = b.adjusted(b.width() * 0.08, b.height() * 0.08, -b.width() * 0.08, -b.height() * 0.08);
    QRadialGradient sea(r.center() - QPointF(r.width() * 0.2, r.height() * 0.2), r.width() * 0.7);
    sea.setColorAt(0.0, QColor(90, 150, 200));
    sea.setColorAt(1.0, QColor(20, 60, 110));
    p.setPen(QPen(colour, b.width() * 0.06));
    p.setBrush(sea);
    p.drawEllipse(r);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(colour, b.width() * 0.04));
    p.drawEllipse(r.adjusted(r.width() * 0.28, 0, -r.width() * 0.28, 0));
    p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
    p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    p.drawLine(QPointF(r.left() + r.width() * 0.1, r.top() + r.height() * 0.28),
        QPointF(r.right() - r.width() * 0.1, r.top() + r.height() * 0.28));
    p.drawLine(QPointF(r.left() + r.width() * 0.1, r.bottom() - r.height() * 0.28),
        QPointF(r.right() - r.width() * 0.1, r.bottom() - r.height() * 0.28));
}

void symbolHeart(QPainter& p, const QRectF& b, const QColor& colour)
{
    QPainterPath heart;
    const qreal w = b.width();
    const qreal h = b.height();
    heart.moveTo(b.left() + w * 0.5, b.top() + h * 0.9);
    heart.cubicTo(b.left() - w * 0.1, b.top() + h * 0.45, b.left() + w * 0.2, b.top() + h * 0.02, b.left() + w * 0.5,
        b.top() + h * 0.3);
    heart.cubicTo(b.left() + w * 0.8, b.top() + h * 0.02, b.left() + w * 1.1, b.top() + h * 0.45, b.left() + w * 0.5,
        b.top() + h * 0.9);
    QLinearGradient g(b.topLeft(), b.bottomLeft());
    g.setColorAt(0.0, QColor(210, 70, 60));
    g.setColorAt(1.0, QColor(130, 20, 24));
    p.setPen(QPen(colour, w * 0.05));
    p.setBrush(g);
    p.drawPath(heart);
}

void symbolGift(QPainter& p, const QRectF& b, const QColor& colour)
{
    const QRectF box(b.left() + b.width() * 0.12, b.top() + b.height() * 0.36, b.width() * 0.76, b.height() * 0.56);
    const QRectF lid(b.left() + b.width() * 0.06, b.top() + b.height() * 0.24, b.width() * 0.88, b.height() * 0.16);
    p.setPen(QPen(kRosewoodDark, b.width() * 0.03));
    p.setBrush(kRosewood.lighter(115));
    p.drawRect(box);
    p.drawRect(lid);
    p.setPen(Qt::NoPen);
    p.setBrush(kBrass);
    p.drawRect(QRectF(b.center().x() - b.width() * 0.07, lid.top(), b.width() * 0.14, box.bottom() - lid.top()));
    p.setPen(strokePen(kBrass, b.width() * 0.07));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(
        QRectF(b.center().x() - b.width() * 0.3, b.top() + b.height() * 0.06, b.width() * 0.28, b.height() * 0.18));
    p.drawEllipse(
        QRectF(b.center().x() + b.width() * 0.02, b.top() + b.height() * 0.06, b.width() * 0.28, b.height() * 0.18));
    Q_UNUSED(colour);
}

void symbolBook(QPainter& p, const QRectF& b, const QColor& colour)
{
    const qreal cx = b.center().x();
    const qreal top = b.top() + b.height() * 0.2;
    const qreal bottom = b.bottom() - b.height() * 0.14;
    p.setPen(QPen(kRosewoodDark, b.width() * 0.04));
    p.setBrush(kRosewood);
    QPainterPath cover;
    cover.moveTo(b.left() + b.width() * 0.04, top + b.height() * 0.06);
    cover.lineTo(cx, top + b.height() * 0.12);
    cover.lineTo(b.right() - b.width() * 0.04, top + b.height() * 0.06);
    cover.lineTo(b.right() - b.width() * 0.04, bottom + b.height() * 0.06);
    cover.lineTo(cx, bottom + b.height() * 0.1);
    cover.lineTo(b.left() + b.width() * 0.04, bottom + b.height() * 0.06);
    cover.closeSubpath();
    p.drawPath(cover);
    p.setBrush(colour);
    for (int side = -1; side <= 1; side += 2) {
        QPainterPath page;
        page.moveTo(cx, top + b.height() * 0.06);
        page.quadTo(cx + side * b.width() * 0.2, top - b.height() * 0.04, cx + side * b.width() * 0.4, top);
        page.lineTo(cx + side * b.width() * 0.4, bottom);
        page.quadTo(cx + side * b.width() * 0.2, bottom - b.height() * 0.04, cx, bottom + b.height() * 0.04);
        page.closeSubpath();
        p.drawPath(page);
    }
    p.setPen(QPen(kIvoryDim.darker(140), b.width() * 0.025));
    for (int i = 1; i <= 3; ++i) {
        const qreal y = top + (bottom - top) * i / 4.5;
        p.drawLine(QPointF(cx - b.width() * 0.33, y), QPointF(cx - b.width() * 0.08, y + b.height() * 0.02));
        p.drawLine(QPointF(cx + b.width() * 0.08, y + b.height() * 0.02), QPointF(cx + b.width() * 0.33, y));
    }
}

void symbolHeadphones(QPainter& p, const QRectF& b, const QColor& colour)
{
    p.setPen(strokePen(colour, b.width() * 0.09));
    p.setBrush(Qt::NoBrush);
    const QRectF arc(b.left() + b.width() * 0.14, b.top() + b.height() * 0.1, b.width() * 0.72, b.height() * 0.8);
    p.drawArc(arc, 0, 180 * 16);
    p.setPen(QPen(kRosewoodDark, b.width() * 0.03));
    p.setBrush(kRosewood.lighter(120));
    p.drawRoundedRect(
        QRectF(b.left() + b.width() * 0.08, b.top() + b.height() * 0.46, b.width() * 0.2, b.height() * 0.38),
        b.width() * 0.06, b.width() * 0.06);
    p.drawRoundedRect(
        QRectF(b.right() - b.width() * 0.28, b.top() + b.height() * 0.46, b.width() * 0.2, b.height() * 0.38),
        b.width() * 0.06, b.width() * 0.06);
}

void symbolEye(QPainter& p, const QRectF& b, const QColor& colour)
{
    QPainterPath lid;
    lid.moveTo(b.left() + b.width() * 0.04, b.center().y());
    lid.quadTo(b.center().x(), b.top() - b.height() * 0.08, b.right() - b.width() * 0.04, b.center().y());
    lid.quadTo(b.center().x(), b.bottom() + b.height() * 0.08, b.left() + b.width() * 0.04, b.center().y());
    p.setPen(QPen(colour.darker(170), b.width() * 0.04));
    p.setBrush(colour);
    p.drawPath(lid);
    QRadialGradient iris(b.center(), b.width() * 0.2);
    iris.setColorAt(0.0, QColor(150, 96, 50));
    iris.setColorAt(1.0, kRosewoodDark);
    p.setPen(Qt::NoPen);
    p.setBrush(iris);
    p.drawEllipse(b.center(), b.width() * 0.2, b.width() * 0.2);
    p.setBrush(Qt::black);
    p.drawEllipse(b.center(), b.width() * 0.08, b.width() * 0.08);
    p.setBrush(QColor(255, 255, 255, 220));
    p.drawEllipse(b.center() + QPointF(-b.width() * 0.06, -b.width() * 0.06), b.width() * 0.035, b.width() * 0.035);
}

void symbolWikipedia(QPainter& p, const QRectF& b, const QColor& colour)
{
    p.setPen(QPen(QColor(90, 90, 90), b.width() * 0.04));
    QRadialGradient g(b.center() - QPointF(b.width() * 0.15, b.height() * 0.15), b.width() * 0.6);
    g.setColorAt(0.0, Qt::white);
    g.setColorAt(1.0, colour.darker(115));
    p.setBrush(g);
    p.drawEllipse(b.adjusted(b.width() * 0.04, b.height() * 0.04, -b.width() * 0.04, -b.height() * 0.04));
    p.setPen(QColor(30, 30, 30));
    p.setFont(font(b.height() * 0.62, false, true));
    p.drawText(b.translated(0, b.height() * 0.02), Qt::AlignCenter, QStringLiteral("W"));
}

// A small guitar: rosewood body, ivory soundhole ring, neck and strings.
void guitarShape(QPainter& p, const QRectF& b)
{
    p.save();
    p.translate(b.center());
    p.rotate(-35);
    const qreal s = b.width();
    QPainterPath body;
    body.addEllipse(QPointF(0, s * 0.2), s * 0.22, s * 0.2);
    body.addEllipse(QPointF(0, s * -0.04), s * 0.16, s * 0.14);
    body.setFillRule(Qt::WindingFill);
    QLinearGradient wood(QPointF(-s * 0.2, 0), QPointF(s * 0.2, 0));
    wood.setColorAt(0.0, kRosewoodDark);
    wood.setColorAt(0.5, kRosewood.lighter(130));
    wood.setColorAt(1.0, kRosewoodDark);
    p.setPen(QPen(kIvory, s * 0.012));
    p.setBrush(wood);
    p.drawPath(body.simplified());
    p.setBrush(QColor(20, 10, 6));
    p.drawEllipse(QPointF(0, s * 0.08), s * 0.065, s * 0.065);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 24, 14));
    p.drawRect(QRectF(-s * 0.035, -s * 0.5, s * 0.07, s * 0.5));
    p.setBrush(kRosewoodDark);
    p.drawRoundedRect(QRectF(-s * 0.055, -s * 0.6, s * 0.11, s * 0.12), s * 0.02, s * 0.02);
    p.setPen(QPen(kIvoryDim, s * 0.004));
    for (int i = -1; i <= 1; ++i)
        p.drawLine(QPointF(i * s * 0.015, -s * 0.52), QPointF(i * s * 0.015, s * 0.3));
    p.restore();
}

// The application's picture: a guitar before the five lines of a staff with
// a note on them, on a dark panel.
void paintAppPicture(QPainter& p, const QSizeF& size, bool rounded)
{
    const QRectF r(0, 0, size.width(), size.height());
    QRadialGradient ground(r.center() - QPointF(0, r.height() * 0.15), r.width() * 0.8);
    ground.setColorAt(0.0, QColor(70, 62, 58));
    ground.setColorAt(0.6, QColor(22, 20, 20));
    ground.setColorAt(1.0, QColor(6, 6, 6));
    p.setPen(rounded ? QPen(kBrass, size.width() * 0.015) : Qt::NoPen);
    p.setBrush(ground);
    const qreal radius = rounded ? size.width() * 0.18 : 0;
    p.drawRoundedRect(rounded ? r.adjusted(1, 1, -1, -1) : r, radius, radius);

    const qreal w = size.width();
    // Staff lines across the upper part, ivory and faint.
    p.setPen(QPen(QColor(243, 233, 210, 150), w * 0.006));
    for (int i = 0; i < 5; ++i) {
        const qreal y = r.height() * 0.18 + i * w * 0.045;
        p.drawLine(QPointF(w * 0.08, y), QPointF(w * 0.92, y));
    }
    // A note head with its stem on the staff.
    p.save();
    p.translate(w * 0.7, r.height() * 0.18 + 2.5 * w * 0.045);
    p.rotate(-20);
    p.setPen(Qt::NoPen);
    p.setBrush(kBrass);
    p.drawEllipse(QPointF(0, 0), w * 0.06, w * 0.042);
    p.restore();
    p.setPen(QPen(kBrass, w * 0.012));
    p.drawLine(QPointF(w * 0.7 + w * 0.055, r.height() * 0.18 + 2.2 * w * 0.045),
        QPointF(w * 0.7 + w * 0.055, r.height() * 0.18 - 1.2 * w * 0.045));

    guitarShape(p, QRectF(w * 0.12, r.height() * 0.28, w * 0.62, w * 0.62));

    if (size.width() >= 120) {
        p.setFont(font(w * 0.085, true, true));
        p.setPen(kIvory);
        p.drawText(
            QRectF(0, r.height() * 0.8, w, r.height() * 0.16), Qt::AlignCenter, QStringLiteral("GuitarTonarium"));
    }
}

// A square product icon of the "More" menu: the frame's tile with a symbol.
void paintProductIcon(QPainter& p, const QSizeF& size, const QString& letters, const QColor& accent)
{
    const QRectF r(1, 1, size.width() - 2, size.height() - 2);
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0.0, accent.lighter(130));
    g.setColorAt(0.5, accent);
    g.setColorAt(1.0, accent.darker(220));
    p.setPen(QPen(kBrass, size.width() * 0.03));
    p.setBrush(g);
    p.drawRoundedRect(r, size.width() * 0.2, size.width() * 0.2);
    QLinearGradient gloss(r.topLeft(), QPointF(r.left(), r.center().y()));
    gloss.setColorAt(0.0, QColor(255, 255, 255, 80));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(gloss);
    p.drawRoundedRect(r.adjusted(3, 3, -3, -r.height() / 2), size.width() * 0.15, size.width() * 0.1);
    p.setFont(font(size.height() * (letters.size() > 2 ? 0.3 : 0.4), true, true));
    p.setPen(QColor(0, 0, 0, 120));
    p.drawText(r.translated(1, 1.5), Qt::AlignCenter, letters);
    p.setPen(kIvory);
    p.drawText(r, Qt::AlignCenter, letters);
}

// The picture button of the bar, 60 by 32: a dark pill with an ivory symbol;
// under the mouse the pill warms to rosewood and the symbol brightens.
using Symbol = void (*)(QPainter&, const QRectF&, const QColor&);

void paintBarButton(QPainter& p, const QSizeF& size, Symbol symbol, bool hover)
{
    const QRectF r(2, 2, size.width() - 4, size.height() - 4);
    fillDarkPanel(p, r, r.height() * 0.3, hover);
    const qreal side = r.height() * 0.72;
    const QRectF box(r.center().x() - side / 2, r.center().y() - side / 2, side, side);
    symbol(p, box, hover ? Qt::white : kIvory);
}

void paintMoreButton(QPainter& p, const QSizeF& size, bool hover)
{
    const QRectF r(2, 2, size.width() - 4, size.height() - 4);
    fillDarkPanel(p, r, r.height() * 0.3, hover);
    p.setFont(font(r.height() * 0.5, true));
    p.setPen(hover ? Qt::white : kIvory);
    p.drawText(r.adjusted(0, -r.height() * 0.08, 0, 0), Qt::AlignCenter, QStringLiteral("More"));
}

void paintBarGround(QPainter& p, const QSizeF& size)
{
    const QRectF r(0, 0, size.width(), size.height());
    QLinearGradient g(r.bottomLeft(), r.topLeft());
    g.setColorAt(0.0, QColor(24, 24, 24));
    g.setColorAt(0.4, QColor(10, 10, 10));
    g.setColorAt(0.9, QColor(52, 52, 52));
    g.setColorAt(1.0, QColor(78, 78, 78));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawRect(r);
    // A rosewood strip with a brass edge closes the bar towards the page.
    p.setBrush(kRosewood);
    p.drawRect(QRectF(0, size.height() - 4, size.width(), 3));
    p.setBrush(kBrass.darker(130));
    p.drawRect(QRectF(0, size.height() - 1, size.width(), 1));
}

void paintMakerLogo(QPainter& p, const QSizeF& size)
{
    const qreal h = size.height();
    QPainterPath diamond;
    diamond.moveTo(h * 0.5, h * 0.1);
    diamond.lineTo(h * 0.9, h * 0.5);
    diamond.lineTo(h * 0.5, h * 0.9);
    diamond.lineTo(h * 0.1, h * 0.5);
    diamond.closeSubpath();
    p.setPen(QPen(kBrass, h * 0.06));
    p.setBrush(kRosewood);
    p.drawPath(diamond);
    p.setFont(font(h * 0.62, true, true));
    p.setPen(kIvory);
    p.drawText(
        QRectF(h * 1.1, 0, size.width() - h * 1.1, h), Qt::AlignVCenter | Qt::AlignLeft, QStringLiteral("CORVANE"));
}

struct ProductIcon
{
    const char* name;
    const char* letters;
    QColor accent;
};

} // namespace

void FrameArt::generate(ArtWriter& writer)
{
    const QSize barButton(60, 32);
    struct BarButton
    {
        const char* name;
        Symbol symbol;
    };
    const BarButton barButtons[] = {
        { "Help", symbolQuestion },
        { "share", symbolShare },
        { "join", symbolJoin },
        { "AppButton", symbolMenu },
        { "MoreAppsButton", symbolGrid },
        { "RateButton", symbolStar },
    };
    for (const BarButton& button : barButtons) {
        for (bool hover : { false, true }) {
            writer.addPicturePair(QLatin1String(button.name) + (hover ? QStringLiteral("_hover") : QString()),
                barButton, [&](QPainter& p, const QSizeF& s) { paintBarButton(p, s, button.symbol, hover); });
        }
    }
    for (bool hover : { false, true }) {
        writer.addPicturePair(hover ? QStringLiteral("More_hover") : QStringLiteral("More"), barButton,
            [&](QPainter& p, const QSizeF& s) { paintMoreButton(p, s, hover); });
    }
    writer.addPicturePair(QStringLiteral("backgroundbar"), QSize(256, 45), paintBarGround);

    // Menu icons, square; the style of the menus shows them at 16 pixels.
    const QSize icon(32, 32);
    struct MenuIcon
    {
        const char* name;
        Symbol symbol;
        QColor colour;
    };
    const MenuIcon menuIcons[] = {
        { "star", symbolStar, kBrass },
        { "feedback", symbolBubble, kIvory },
        { "webpage", symbolGlobe, kIvory },
        { "moreappsicon", symbolGrid, kIvory },
        { "musthave", symbolHeart, kIvory },
        { "nicetohave", symbolGift, kIvory },
        { "read", symbolBook, kIvory },
        { "ohr", symbolHeadphones, kIvory },
        { "eye", symbolEye, kIvory },
        { "wikipedia", symbolWikipedia, kIvory },
    };
    for (const MenuIcon& menuIcon : menuIcons) {
        writer.addPicturePair(QLatin1String(menuIcon.name), icon,
            [&](QPainter& p, const QSizeF& s) { menuIcon.symbol(p, QRectF(QPointF(0, 0), s), menuIcon.colour); });
    }

    writer.addPicturePair(
        QStringLiteral("app"), QSize(290, 290), [](QPainter& p, const QSizeF& s) { paintAppPicture(p, s, false); });
    writer.addPicturePair(
        QStringLiteral("appicon"), QSize(64, 64), [](QPainter& p, const QSizeF& s) { paintAppPicture(p, s, true); });
    writer.addPicturePair(QStringLiteral("pix/corvanelogo"), QSize(110, 22), paintMakerLogo);

    // The maker's other products, listed in the "More" menu.
    const ProductIcon products[] = {
        { "chordtonarium", "Am", QColor(150, 70, 40) },
        { "basstonarium", "B", QColor(60, 80, 120) },
        { "ukuleletonarium", "U", QColor(170, 110, 40) },
        { "pianotonarium", "P", QColor(60, 60, 60) },
        { "tunertonarium", "T", QColor(40, 110, 90) },
        { "metronometonarium", "M", QColor(110, 60, 110) },
        { "chordtransposer", "C#", QColor(130, 40, 50) },
        { "soundrecorder", "R", QColor(150, 30, 30) },
        { "timecodereader", "TC", QColor(40, 70, 70) },
    };
    for (const ProductIcon& product : products) {
        writer.addPicturePair(
            QStringLiteral("promo/") + QLatin1String(product.name), QSize(64, 64), [&](QPainter& p, const QSizeF& s) {
                paintProductIcon(p, s, QString::fromLatin1(product.letters), product.accent);
            });
    }
}
