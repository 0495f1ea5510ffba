#include "CommunityArt.h"

#include "ArtWriter.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {

const QColor kIvory(243, 233, 210);
const QColor kBrass(214, 168, 82);
const QColor kCopper(176, 98, 48);

using Emblem = void (*)(QPainter&, const QRectF&);

QPen roundPen(const QColor& colour, qreal width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A round speech bubble with a tail at the lower left.
void emblemBubble(QPainter& p, const QRectF& b)
{
    QPainterPath bubble;
    const QRectF round(b.left() + b.width() * 0.12, b.top() + b.height() * 0.14, b.width() * 0.76, b.height() * 0.6);
    bubble.addEllipse(round);
    QPainterPath tail;
    tail.moveTo(round.left() + round.width() * 0.22, round.bottom() - round.height() * 0.2);
    tail.lineTo(b.left() + b.width() * 0.16, b.bottom() - b.height() * 0.1);
    tail.lineTo(round.left() + round.width() * 0.5, round.bottom() - round.height() * 0.06);
    tail.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPath(bubble.united(tail));
}

// A small bird in flight: a body swoosh with a raised wing.
void emblemBird(QPainter& p, const QRectF& b)
{
    const auto at = [&b](qreal x, qreal y) { return QPointF(b.left() + b.width() * x, b.top() + b.height() * y); };
    QPainterPath bird;
    bird.moveTo(at(0.12, 0.62));
    bird.cubicTo(at(0.3, 0.86), at(0.68, 0.84), at(0.84, 0.46));
    bird.lineTo(at(0.92, 0.3));
    bird.lineTo(at(0.78, 0.32));
    bird.cubicTo(at(0.7, 0.2), at(0.56, 0.22), at(0.54, 0.4));
    bird.cubicTo(at(0.42, 0.18), at(0.3, 0.14), at(0.2, 0.2));
    bird.cubicTo(at(0.24, 0.36), at(0.32, 0.46), at(0.44, 0.52));
    bird.cubicTo(at(0.34, 0.6), at(0.22, 0.64), at(0.12, 0.62));
    bird.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPath(bird);
}

// "VK" as a monogram of strokes.
void emblemMonogram(QPainter& p, const QRectF& b)
{
    const auto at = [&b](qreal x, qreal y) { return QPointF(b.left() + b.width() * x, b.top() + b.height() * y); };
    p.setPen(roundPen(Qt::white, b.width() * 0.11));
    p.setBrush(Qt::NoBrush);
    QPainterPath v;
    v.moveTo(at(0.14, 0.3));
    v.lineTo(at(0.32, 0.72));
    v.lineTo(at(0.5, 0.3));
    p.drawPath(v);
    p.drawLine(at(0.62, 0.28), at(0.62, 0.72));
    QPainterPath k;
    k.moveTo(at(0.88, 0.28));
    k.lineTo(at(0.64, 0.5));
    k.lineTo(at(0.88, 0.72));
    p.drawPath(k);
}

void emblemEnvelope(QPainter& p, const QRectF& b)
{
    const QRectF box = b.adjusted(b.width() * 0.14, b.height() * 0.26, -b.width() * 0.14, -b.height() * 0.26);
    p.setPen(roundPen(Qt::white, b.width() * 0.08));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(box, b.width() * 0.04, b.width() * 0.04);
    QPainterPath flap;
    flap.moveTo(box.topLeft());
    flap.lineTo(box.center().x(), box.top() + box.height() * 0.58);
    flap.lineTo(box.topRight());
    p.drawPath(flap);
}

// The channel's square: its colour, a soft gloss and a light rim.
void paintEmblemSquare(QPainter& p, const QRectF& r, const QColor& colour)
{
    QLinearGradient fill(r.topLeft(), r.bottomLeft());
    fill.setColorAt(0.0, colour.lighter(125));
    fill.setColorAt(1.0, colour.darker(125));
    p.setPen(QPen(QColor(255, 255, 255, 120), r.width() * 0.04));
    p.setBrush(fill);
    p.drawRoundedRect(r, r.width() * 0.22, r.width() * 0.22);
}

// The wide button: a dark plate with a rim in the channel's colour, the
// emblem, the name and at the right a plus to join or an arrow to share.
void paintChannelButton(
    QPainter& p, const QSizeF& s, const QColor& colour, Emblem emblem, const QString& name, bool join, bool hover)
{
    const QRectF plate(1, 1, s.width() - 2, s.height() - 2);
    QLinearGradient ground(plate.topLeft(), plate.bottomLeft());
    ground.setColorAt(0.0, hover ? QColor(86, 86, 90) : QColor(66, 66, 68));
    ground.setColorAt(0.5, hover ? QColor(44, 44, 48) : QColor(30, 30, 32));
    ground.setColorAt(1.0, hover ? QColor(64, 64, 68) : QColor(48, 48, 50));
    p.setPen(QPen(hover ? colour.lighter(150) : colour, 1.5));
    p.setBrush(ground);
    p.drawRoundedRect(plate, s.height() * 0.2, s.height() * 0.2);

    const qreal side = s.height() - 8;
    const QRectF square(5, 4, side, side);
    paintEmblemSquare(p, square, hover ? colour.lighter(115) : colour);
    emblem(p, square);

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(qRound(s.height() * 0.42));
    p.setFont(font);
    p.setPen(hover ? Qt::white : kIvory);
    const QRectF text(square.right() + 10, 0, s.width() - square.right() - 10 - s.height(), s.height());
    p.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, name);

    const QPointF c(s.width() - s.height() * 0.55, s.height() / 2);
    const qreal a = s.height() * 0.16;
    p.setPen(roundPen(hover ? kBrass.lighter(120) : kBrass, s.height() * 0.08));
    if (join) {
        p.drawLine(QPointF(c.x() - a, c.y()), QPointF(c.x() + a, c.y()));
        p.drawLine(QPointF(c.x(), c.y() - a), QPointF(c.x(), c.y() + a));
    } else {
        p.drawLine(QPointF(c.x() - a, c.y() + a), QPointF(c.x() + a, c.y() - a));
        p.drawLine(QPointF(c.x() + a, c.y() - a), QPointF(c.x(), c.y() - a));
        p.drawLine(QPointF(c.x() + a, c.y() - a), QPointF(c.x() + a, c.y()));
    }
}

// The update check's pictures: a copper disc with an arrow into a tray when
// a newer release exists, a brass disc with a tick when this is the latest.
void paintUpdatePicture(QPainter& p, const QSizeF& s, bool available)
{
    const QRectF disc(s.width() * 0.06, s.height() * 0.06, s.width() * 0.88, s.height() * 0.88);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(disc.translated(s.width() * 0.02, s.height() * 0.03));
    const QColor colour = available ? kCopper : QColor(96, 120, 70);
    QRadialGradient fill(disc.center() - QPointF(disc.width() * 0.18, disc.height() * 0.22), disc.width() * 0.7);
    fill.setColorAt(0.0, colour.lighter(150));
    fill.setColorAt(0.6, colour);
    fill.setColorAt(1.0, colour.darker(170));
    p.setPen(QPen(QColor(255, 240, 220, 170), s.width() * 0.025));
    p.setBrush(fill);
    p.drawEllipse(disc);

    const auto at
        = [&disc](qreal x, qreal y) { return QPointF(disc.left() + disc.width() * x, disc.top() + disc.height() * y); };
    p.setPen(roundPen(QColor(255, 248, 236), s.width() * 0.08));
    p.setBrush(Qt::NoBrush);
    if (available) {
        p.drawLine(at(0.5, 0.2), at(0.5, 0.58));
        QPainterPath head;
        head.moveTo(at(0.34, 0.44));
        head.lineTo(at(0.5, 0.6));
        head.lineTo(at(0.66, 0.44));
        p.drawPath(head);
        QPainterPath tray;
        tray.moveTo(at(0.26, 0.6));
        tray.lineTo(at(0.26, 0.76));
        tray.lineTo(at(0.74, 0.76));
        tray.lineTo(at(0.74, 0.6));
        p.drawPath(tray);
    } else {
        QPainterPath tick;
        tick.moveTo(at(0.28, 0.52));
        tick.lineTo(at(0.44, 0.68));
        tick.lineTo(at(0.74, 0.34));
        p.drawPath(tick);
    }
}

} // namespace

void CommunityArt::generate(ArtWriter& writer)
{
    struct Channel
    {
        const char* name;
        const char* label;
        QColor colour;
        Emblem emblem;
    };
    const Channel channels[] = {
        { "facebook", "Facebook", QColor(59, 89, 152), emblemBubble },
        { "twitter", "Twitter", QColor(29, 150, 220), emblemBird },
        { "vkontakte", "VKontakte", QColor(76, 117, 163), emblemMonogram },
        { "email", "E-Mail", QColor(196, 112, 52), emblemEnvelope },
    };
    for (const Channel& channel : channels) {
        for (const bool join : { false, true }) {
            for (const bool hover : { false, true }) {
                const QString name = QLatin1String(channel.name)
                    + (join ? QStringLiteral("join") : QStringLiteral("share"))
                    + (hover ? QStringLiteral("_hover") : QString());
                writer.addPicturePair(name, QSize(190, 35), [&](QPainter& p, const QSizeF& s) {
                    paintChannelButton(p, s, channel.colour, channel.emblem, QLatin1String(channel.label), join, hover);
                });
            }
        }
    }
    for (const bool available : { true, false }) {
        writer.addPicturePair(available ? QStringLiteral("update_available") : QStringLiteral("update_not_available"),
            QSize(96, 96), [available](QPainter& p, const QSizeF& s) { paintUpdatePicture(p, s, available); });
    }
}
