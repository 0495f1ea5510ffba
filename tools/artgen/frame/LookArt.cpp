#include "LookArt.h"

#include "ArtWriter.h"

#include <QFont>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <functional>

namespace {

// Instrument silhouettes in ivory on a dark rounded plate, for the tuner and
// finder pages' instrument labels.
QPainterPath bodyPath(const QString& instrument, const QSizeF& s)
{
    const qreal w = s.width();
    const qreal h = s.height();
    QPainterPath path;
    if (instrument == QLatin1String("piano")) {
        path.addRoundedRect(QRectF(w * 0.14, h * 0.3, w * 0.72, h * 0.44), 4, 4);
        return path;
    }
    if (instrument == QLatin1String("balalaika")) {
        path.moveTo(w * 0.5, h * 0.42);
        path.lineTo(w * 0.8, h * 0.88);
        path.quadTo(w * 0.5, h * 0.95, w * 0.2, h * 0.88);
        path.closeSubpath();
        return path;
    }
    if (instrument == QLatin1String("banjo")) {
        path.addEllipse(QPointF(w * 0.5, h * 0.68), w * 0.24, w * 0.24);
        return path;
    }
    if (instrument == QLatin1String("mandolin")) {
        path.addEllipse(QPointF(w * 0.5, h * 0.7), w * 0.2, h * 0.2);
        return path;
    }
    // Guitar and bass: a figure of eight, the bass a little longer.
    // The bass has a slimmer, offset body.
    const bool bass = instrument == QLatin1String("bass");
    const qreal upper = bass ? 0.15 : 0.17;
    path.addEllipse(QPointF(w * 0.5, h * 0.55), w * upper, h * 0.12);
    path.addEllipse(QPointF(w * 0.5, h * 0.74), w * 0.22, h * 0.15);
    QPainterPath waist;
    waist.addRect(QRectF(w * 0.36, h * 0.58, w * 0.28, h * 0.1));
    return path.united(waist).simplified();
}

void paintInstrument(QPainter& p, const QSizeF& s, const QString& instrument)
{
    const QRectF plate(1, 1, s.width() - 2, s.height() - 2);
    QLinearGradient ground(plate.topLeft(), plate.bottomLeft());
    ground.setColorAt(0.1, QColor(50, 50, 50, 220));
    ground.setColorAt(0.6, QColor(10, 10, 10, 220));
    ground.setColorAt(1.0, QColor(50, 50, 50, 220));
    p.setPen(QPen(QColor(128, 128, 128), 1));
    p.setBrush(ground);
    p.drawRoundedRect(plate, 8, 8);

    const QColor ivory(236, 224, 196);
    const QColor rosewood(92, 48, 26);
    p.setPen(Qt::NoPen);
    if (instrument == QLatin1String("piano")) {
        const QRectF keys(s.width() * 0.14, s.height() * 0.3, s.width() * 0.72, s.height() * 0.44);
        p.setBrush(ivory);
        p.drawRoundedRect(keys, 3, 3);
        p.setPen(QPen(rosewood, 1));
        const int white = 7;
        for (int i = 1; i < white; ++i) {
            const qreal x = keys.left() + keys.width() * i / white;
            p.drawLine(QPointF(x, keys.top()), QPointF(x, keys.bottom()));
        }
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(20, 20, 20));
        for (const int i : { 1, 2, 4, 5, 6 }) {
            const qreal x = keys.left() + keys.width() * i / white;
            p.drawRect(QRectF(x - keys.width() / 28, keys.top(), keys.width() / 14, keys.height() * 0.6));
        }
        return;
    }
    const qreal neckWidth = s.width() * (instrument == QLatin1String("bass") ? 0.07 : 0.06);
    p.setBrush(rosewood.lighter(140));
    p.drawRect(QRectF(s.width() / 2 - neckWidth / 2, s.height() * 0.12, neckWidth, s.height() * 0.5));
    p.drawRoundedRect(QRectF(s.width() / 2 - neckWidth, s.height() * 0.06, neckWidth * 2, s.height() * 0.1), 2, 2);
    p.setBrush(ivory);
    p.drawPath(bodyPath(instrument, s));
    p.setBrush(QColor(30, 20, 14));
    if (instrument == QLatin1String("banjo"))
        p.drawEllipse(QPointF(s.width() * 0.5, s.height() * 0.68), s.width() * 0.17, s.width() * 0.17);
    else if (instrument != QLatin1String("balalaika"))
        p.drawEllipse(QPointF(s.width() * 0.5, s.height() * 0.62), s.width() * 0.06, s.width() * 0.06);
    else
        p.drawEllipse(QPointF(s.width() * 0.5, s.height() * 0.7), s.width() * 0.035, s.width() * 0.035);
}

void generateInstruments(ArtWriter& writer)
{
    const QSize size(64, 64);
    // Also the labels of the chord pages: "bass2" is the bass played high up the neck.
    const QStringList instruments
        = { QStringLiteral("mandolin"), QStringLiteral("guitar"), QStringLiteral("piano"), QStringLiteral("banjo"),
              QStringLiteral("balalaika"), QStringLiteral("bass"), QStringLiteral("ukulele"), QStringLiteral("bass2") };
    for (const QString& instrument : instruments)
        writer.addPicturePair(
            instrument, size, [&](QPainter& p, const QSizeF& s) { paintInstrument(p, s, instrument); });
    // The capitalised name is the guitar on the finder's own label.
    writer.addPicturePair(QStringLiteral("Guitar"), size,
        [](QPainter& p, const QSizeF& s) { paintInstrument(p, s, QStringLiteral("guitar")); });
}

void paintArrow(QPainter& p, const QSizeF& s, bool left)
{
    QPainterPath arrow;
    const qreal cx = s.width() / 2;
    const qreal cy = s.height() / 2;
    const qreal a = qMin(s.width(), s.height()) * 0.28;
    const qreal dir = left ? -1 : 1;
    arrow.moveTo(cx + dir * a, cy);
    arrow.lineTo(cx - dir * a * 0.7, cy - a * 1.2);
    arrow.lineTo(cx - dir * a * 0.7, cy + a * 1.2);
    arrow.closeSubpath();
    p.setPen(QPen(QColor(60, 40, 25), 1));
    p.setBrush(QColor(230, 220, 200));
    p.drawPath(arrow);
}

void paintPlay(QPainter& p, const QSizeF& s, bool pressed, bool hover)
{
    const QRectF ring(2, 2, s.width() - 4, s.height() - 4);
    QRadialGradient metal(ring.center() - QPointF(0, ring.height() * 0.2), ring.width() * 0.7);
    const QColor light = hover ? QColor(170, 170, 172) : QColor(133, 133, 135);
    metal.setColorAt(0.0, light);
    metal.setColorAt(0.6, QColor(31, 31, 33));
    metal.setColorAt(1.0, QColor(60, 60, 62));
    p.setPen(QPen(pressed ? QColor(240, 226, 196) : QColor(150, 150, 150), 2));
    p.setBrush(metal);
    p.drawEllipse(ring);
    p.setPen(Qt::NoPen);
    p.setBrush(pressed ? QColor(240, 226, 196) : QColor(235, 235, 235));
    const QPointF c = ring.center();
    const qreal a = ring.width() * 0.2;
    if (pressed) {
        p.drawRoundedRect(QRectF(c.x() - a, c.y() - a, a * 0.7, a * 2), 1.5, 1.5);
        p.drawRoundedRect(QRectF(c.x() + a * 0.3, c.y() - a, a * 0.7, a * 2), 1.5, 1.5);
    } else {
        QPainterPath triangle;
        triangle.moveTo(c.x() - a * 0.7, c.y() - a);
        triangle.lineTo(c.x() + a * 1.1, c.y());
        triangle.lineTo(c.x() - a * 0.7, c.y() + a);
        triangle.closeSubpath();
        p.drawPath(triangle);
    }
}

// The message box's pictures: a round copper badge with its sign, "i",
// "!", "?" or a cross, in the program's palette instead of the platform's.
void paintMessageIcon(QPainter& p, const QSizeF& size, const QString& sign, const QColor& colour)
{
    const QRectF badge(size.width() * 0.06, size.height() * 0.06, size.width() * 0.88, size.height() * 0.88);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(badge.translated(size.width() * 0.02, size.height() * 0.03));
    QRadialGradient fill(badge.center() - QPointF(badge.width() * 0.18, badge.height() * 0.22), badge.width() * 0.7);
    fill.setColorAt(0.0, colour.lighter(150));
    fill.setColorAt(0.6, colour);
    fill.setColorAt(1.0, colour.darker(170));
    p.setPen(QPen(QColor(255, 240, 220, 170), size.width() * 0.025));
    p.setBrush(fill);
    p.drawEllipse(badge);
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setBold(true);
    font.setPixelSize(int(size.height() * 0.58));
    p.setFont(font);
    p.setPen(QColor(255, 248, 236));
    p.drawText(badge, Qt::AlignCenter, sign);
}

} // namespace

void LookArt::generate(ArtWriter& writer)
{
    generateInstruments(writer);

    const struct
    {
        const char* name;
        const char* sign;
        QColor colour;
    } messageIcons[] = {
        { "MessageInformation", "i", QColor(176, 98, 48) },
        { "MessageQuestion", "?", QColor(176, 98, 48) },
        { "MessageWarning", "!", QColor(200, 140, 30) },
        { "MessageCritical", "\u00d7", QColor(170, 50, 40) },
    };
    for (const auto& icon : messageIcons) {
        const QString sign = QString::fromUtf8(icon.sign);
        const QColor colour = icon.colour;
        writer.addPicturePair(QLatin1String(icon.name), QSize(64, 64),
            [sign, colour](QPainter& p, const QSizeF& s) { paintMessageIcon(p, s, sign, colour); });
    }

    writer.addPicturePair(
        QStringLiteral("arrowleft"), QSize(40, 40), [](QPainter& p, const QSizeF& s) { paintArrow(p, s, true); });
    writer.addPicturePair(
        QStringLiteral("arrowright"), QSize(40, 40), [](QPainter& p, const QSizeF& s) { paintArrow(p, s, false); });
    writer.addPicturePair(QStringLiteral("spinbox_button2"), QSize(8, 8), [](QPainter& p, const QSizeF& s) {
        QPainterPath down;
        down.moveTo(0.5, 1.5);
        down.lineTo(s.width() - 0.5, 1.5);
        down.lineTo(s.width() / 2, s.height() - 1);
        down.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(220, 220, 220));
        p.drawPath(down);
    });

    const QSize play(48, 48);
    writer.addPicturePair(
        QStringLiteral("Play"), play, [](QPainter& p, const QSizeF& s) { paintPlay(p, s, false, false); });
    writer.addPicturePair(
        QStringLiteral("Play_hvr"), play, [](QPainter& p, const QSizeF& s) { paintPlay(p, s, false, true); });
    writer.addPicturePair(
        QStringLiteral("Play_prs"), play, [](QPainter& p, const QSizeF& s) { paintPlay(p, s, true, false); });
    writer.addPicturePair(
        QStringLiteral("Play_prs_hvr"), play, [](QPainter& p, const QSizeF& s) { paintPlay(p, s, true, true); });
}
