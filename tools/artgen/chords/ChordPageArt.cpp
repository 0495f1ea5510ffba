#include "ChordPageArt.h"

#include "ArtWriter.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

namespace {

const QColor kIvory(243, 233, 210);
const QColor kCopper(196, 120, 72);

// A dark, warm ground with a faint horizontal grain; it tiles.
void paintPanelGround(QPainter& p, const QSizeF& s)
{
    p.fillRect(QRectF(QPointF(0, 0), s), QColor(44, 40, 37));
    QRandomGenerator random(1234);
    for (int line = 0; line < 220; ++line) {
        const qreal y = random.bounded(s.height());
        const int shade = random.bounded(26) - 13;
        p.setPen(QPen(QColor(44 + shade, 40 + shade, 37 + shade, 90), 0.6 + random.bounded(1.2)));
        p.drawLine(QPointF(0, y), QPointF(s.width(), y + random.bounded(2.0) - 1.0));
    }
}

// A sheet with a folded corner and a copper plus.
void paintNew(QPainter& p, const QSizeF& s)
{
    const qreal u = s.width() / 32.0;
    QPainterPath sheet;
    sheet.moveTo(7 * u, 3 * u);
    sheet.lineTo(19 * u, 3 * u);
    sheet.lineTo(25 * u, 9 * u);
    sheet.lineTo(25 * u, 29 * u);
    sheet.lineTo(7 * u, 29 * u);
    sheet.closeSubpath();
    p.setPen(QPen(kIvory.darker(130), 1.2 * u));
    p.setBrush(kIvory);
    p.drawPath(sheet);
    p.setBrush(kIvory.darker(115));
    p.drawPolygon(QPolygonF({ QPointF(19 * u, 3 * u), QPointF(19 * u, 9 * u), QPointF(25 * u, 9 * u) }));
    p.setPen(QPen(kCopper, 3 * u, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(16 * u, 14 * u), QPointF(16 * u, 24 * u));
    p.drawLine(QPointF(11 * u, 19 * u), QPointF(21 * u, 19 * u));
}

// An arrow down into a tray.
void paintSave(QPainter& p, const QSizeF& s)
{
    const qreal u = s.width() / 32.0;
    p.setPen(QPen(kIvory, 2.6 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF(
        { QPointF(5 * u, 19 * u), QPointF(5 * u, 27 * u), QPointF(27 * u, 27 * u), QPointF(27 * u, 19 * u) }));
    p.setPen(QPen(kCopper, 3 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(QPointF(16 * u, 4 * u), QPointF(16 * u, 20 * u));
    p.drawPolyline(QPolygonF({ QPointF(10 * u, 14 * u), QPointF(16 * u, 20 * u), QPointF(22 * u, 14 * u) }));
}

// A waste bin with a lid.
void paintDelete(QPainter& p, const QSizeF& s)
{
    const qreal u = s.width() / 32.0;
    p.setPen(QPen(kIvory.darker(130), 1.2 * u));
    QLinearGradient body(8 * u, 0, 24 * u, 0);
    body.setColorAt(0, kIvory.darker(115));
    body.setColorAt(0.5, kIvory);
    body.setColorAt(1, kIvory.darker(120));
    p.setBrush(body);
    QPainterPath bin;
    bin.moveTo(8 * u, 10 * u);
    bin.lineTo(24 * u, 10 * u);
    bin.lineTo(22.5 * u, 29 * u);
    bin.lineTo(9.5 * u, 29 * u);
    bin.closeSubpath();
    p.drawPath(bin);
    p.setPen(QPen(QColor(150, 60, 40), 1.6 * u, Qt::SolidLine, Qt::RoundCap));
    for (const qreal x : { 12.5, 16.0, 19.5 })
        p.drawLine(QPointF(x * u, 13 * u), QPointF(x * u, 26 * u));
    p.setPen(Qt::NoPen);
    p.setBrush(kCopper);
    p.drawRoundedRect(QRectF(6 * u, 6 * u, 20 * u, 3 * u), u, u);
    p.drawRoundedRect(QRectF(13 * u, 3.5 * u, 6 * u, 3 * u), u, u);
}

} // namespace

void ChordPageArt::generate(ArtWriter& writer)
{
    writer.addPicturePair(QStringLiteral("panelbackground"), QSize(256, 256), paintPanelGround);
    writer.addPicturePair(QStringLiteral("new"), QSize(32, 32), paintNew);
    writer.addPicturePair(QStringLiteral("save"), QSize(32, 32), paintSave);
    writer.addPicturePair(QStringLiteral("delete"), QSize(32, 32), paintDelete);
}
