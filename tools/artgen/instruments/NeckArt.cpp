#include "NeckArt.h"

#include "ArtWriter.h"
#include "BoardPicture.h"
#include "GuitarFretMap.h"
#include "NeckGeometry.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

using QMMusic::GuitarFretMap;
using QMMusic::NeckGeometry;

namespace {

using BoardPicture::toPicture;
const QSize kLargeSize = BoardPicture::LargeSize;
const QSize kSmallSize = BoardPicture::SmallSize;
constexpr double kSx = BoardPicture::Sx;
constexpr double kSy = BoardPicture::Sy;
// The mark's colour: cyan reads clearly on the warm wood.
const QColor kMarkColour(64, 200, 224);

QPolygonF boardQuad(const NeckGeometry& g, double left, double right)
{
    return QPolygonF({ toPicture(left, g.boardTop(left)), toPicture(right, g.boardTop(right)),
        toPicture(right, g.boardBottom(right)), toPicture(left, g.boardBottom(left)) });
}

void drawNeckShadowAndSide(QPainter& painter, const NeckGeometry& g, double nut)
{
    // Soft shadow of the neck on the ground below it.
    for (int i = 6; i >= 1; --i) {
        const double grow = i * 2.2;
        QPolygonF shadow({ toPicture(-2, g.boardTop(-2) + 4), toPicture(802, g.boardTop(802) + 4),
            toPicture(802, g.boardBottom(802) + 6 + grow), toPicture(-2, g.boardBottom(-2) + 6 + grow) });
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 22));
        painter.drawPolygon(shadow);
    }

    // The side of the neck, seen below the fingerboard: mahogany in shade.
    QPolygonF side({ toPicture(nut, g.boardBottom(nut)), toPicture(802, g.boardBottom(802)),
        toPicture(802, g.boardBottom(802) + 0.55 * g.spacing(802)),
        toPicture(nut, g.boardBottom(nut) + 0.55 * g.spacing(nut)) });
    QLinearGradient wood(0, g.boardBottom(400) * kSy, 0, (g.boardBottom(400) + 0.55 * g.spacing(400)) * kSy);
    wood.setColorAt(0.0, QColor(120, 66, 36));
    wood.setColorAt(1.0, QColor(52, 26, 14));
    painter.setBrush(wood);
    painter.drawPolygon(side);
}

void drawHeadstock(QPainter& painter, const NeckGeometry& g, double nut)
{
    // The face flares out from the nut towards the tuners.
    QPainterPath face;
    const double topNut = g.boardTop(nut);
    const double bottomNut = g.boardBottom(nut);
    face.moveTo(toPicture(nut, topNut));
    face.cubicTo(toPicture(nut - 30, topNut - 1), toPicture(nut - 60, topNut - 12), toPicture(-5, topNut - 16));
    face.lineTo(toPicture(-5, bottomNut + 14));
    face.cubicTo(toPicture(nut - 60, bottomNut + 10), toPicture(nut - 30, bottomNut + 1), toPicture(nut, bottomNut));
    face.closeSubpath();

    // Shadow cast by the headstock on the ground.
    painter.save();
    painter.translate(0, 8 * kSy);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawPath(face);
    painter.restore();

    const QImage veneer = WoodArt::woodTexture(QSize(420, 260), QColor(14, 11, 10), QColor(58, 38, 28), 91);
    painter.save();
    painter.setClipPath(face);
    const QPolygonF quad({ toPicture(-5, topNut - 16), toPicture(nut, topNut), toPicture(nut, bottomNut),
        toPicture(-5, bottomNut + 14) });
    WoodArt::mapTexture(painter, veneer, quad);
    // Gloss of the lacquer.
    QLinearGradient gloss(0, (topNut - 16) * kSy, 0, (bottomNut + 14) * kSy);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 40));
    gloss.setColorAt(0.35, QColor(255, 255, 255, 8));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 60));
    painter.fillPath(face, gloss);
    painter.restore();

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(222, 206, 170), 2.2));
    painter.drawPath(face);
}

void drawFingerboard(QPainter& painter, const NeckGeometry& g, double nut)
{
    const QImage rosewood = WoodArt::woodTexture(QSize(2400, 300), QColor(40, 20, 14), QColor(118, 62, 38), 17);
    WoodArt::mapTexture(painter, rosewood, boardQuad(g, nut, 803));

    // Cream binding along both edges.
    painter.setPen(QPen(QColor(226, 212, 178), 2.6));
    painter.drawLine(toPicture(nut, g.boardTop(nut)), toPicture(803, g.boardTop(803)));
    painter.setPen(QPen(QColor(200, 184, 150), 3.2));
    painter.drawLine(toPicture(nut, g.boardBottom(nut)), toPicture(803, g.boardBottom(803)));
}

void drawInlays(QPainter& painter, const NeckGeometry& g)
{
    const int frets[] = { 3, 5, 7, 9, 12, 15, 17, 19, 21 };
    for (int fret : frets) {
        const double x = g.cellMiddle(fret);
        const double cellWidth = g.wires().at(fret) - g.wires().at(fret - 1);
        const double radius = qMin(0.42 * g.spacing(x), 0.34 * cellWidth) * kSx;
        if (fret == 12) {
            WoodArt::drawPearl(painter, toPicture(x, (g.stringY(2, x) + g.stringY(3, x)) / 2), radius, fret);
            WoodArt::drawPearl(painter, toPicture(x, (g.stringY(4, x) + g.stringY(5, x)) / 2), radius, fret + 1);
        } else {
            WoodArt::drawPearl(painter, toPicture(x, (g.stringY(3, x) + g.stringY(4, x)) / 2), radius, fret);
        }
        // Side dot on the binding.
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(245, 242, 232));
        painter.drawEllipse(toPicture(x, g.boardBottom(x) + 0.25 * g.spacing(x)), 3.0, 2.6);
    }
}

void drawFrets(QPainter& painter, const NeckGeometry& g)
{
    const QVector<double>& wires = g.wires();
    for (int fret = 1; fret < wires.size(); ++fret) {
        const double x = wires.at(fret);
        const double scale = g.spacing(x) / g.spacing(wires.first());
        const double half = 0.75 * scale;
        const double top = g.boardTop(x) - 0.2;
        const double bottom = g.boardBottom(x) + 0.3;

        // Shadow on the wood behind the wire.
        QLinearGradient shade(toPicture(x + half, 0), toPicture(x + half + 2.4 * scale, 0));
        shade.setColorAt(0.0, QColor(0, 0, 0, 140));
        shade.setColorAt(1.0, QColor(0, 0, 0, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        painter.drawPolygon(QPolygonF({ toPicture(x + half, top + 0.6), toPicture(x + half + 2.4 * scale, top + 0.6),
            toPicture(x + half + 2.4 * scale, bottom), toPicture(x + half, bottom) }));

        QLinearGradient nickel(toPicture(x - half, 0), toPicture(x + half, 0));
        nickel.setColorAt(0.0, QColor(88, 88, 92));
        nickel.setColorAt(0.3, QColor(238, 238, 242));
        nickel.setColorAt(0.55, QColor(182, 182, 188));
        nickel.setColorAt(1.0, QColor(78, 78, 84));
        painter.setBrush(nickel);
        const QRectF wire(toPicture(x - half, top), toPicture(x + half, bottom));
        painter.drawRoundedRect(wire, wire.width() / 2, wire.width() / 2);
    }
}

void drawNut(QPainter& painter, const NeckGeometry& g, double nut)
{
    const double left = nut - 3.6;
    const double right = nut + 1.8;
    const QRectF bone(toPicture(left, g.boardTop(nut) - 1.2), toPicture(right, g.boardBottom(nut) + 1.0));
    QLinearGradient shade(bone.topLeft(), bone.topRight());
    shade.setColorAt(0.0, QColor(196, 184, 156));
    shade.setColorAt(0.35, QColor(246, 240, 222));
    shade.setColorAt(0.8, QColor(226, 216, 190));
    shade.setColorAt(1.0, QColor(150, 136, 108));
    painter.setPen(QPen(QColor(90, 76, 56), 1.0));
    painter.setBrush(shade);
    painter.drawRoundedRect(bone, 2.5, 2.5);

    // Slots where the strings sit.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(110, 96, 72, 200));
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        const double y = g.stringY(string, nut) * kSy;
        const double h = 1.2 + 0.35 * string;
        painter.drawRect(QRectF(bone.left() + 1, y - h / 2, bone.width() - 2, h));
    }
}

// Left end of each string: its tuner post on the headstock.
double postX(int string)
{
    return 74.0 - (string - 1) * 11.0;
}

void drawPosts(QPainter& painter, const NeckGeometry& g)
{
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        const QPointF centre = toPicture(postX(string), g.stringY(string, postX(string)));
        const double bushing = 11.5;
        const double post = 7.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 90));
        painter.drawEllipse(centre + QPointF(2, 4), bushing, bushing);

        QRadialGradient ring(centre - QPointF(4, 4), bushing * 1.6);
        ring.setColorAt(0.0, QColor(250, 250, 252));
        ring.setColorAt(0.5, QColor(160, 162, 168));
        ring.setColorAt(1.0, QColor(70, 72, 78));
        painter.setBrush(ring);
        painter.drawEllipse(centre, bushing, bushing);

        QRadialGradient top(centre - QPointF(2, 2), post * 1.5);
        top.setColorAt(0.0, QColor(255, 255, 255));
        top.setColorAt(0.6, QColor(190, 192, 198));
        top.setColorAt(1.0, QColor(96, 98, 104));
        painter.setBrush(top);
        painter.drawEllipse(centre, post, post);
        painter.setBrush(QColor(40, 40, 44));
        painter.drawRect(QRectF(centre.x() - post * 0.7, centre.y() - 0.8, post * 1.4, 1.6));
    }
}

// A straight band along a string from x0 to x1 whose width grows with the
// perspective, offset across the string by a fraction of its width.
QPolygonF stringBand(
    const NeckGeometry& g, int string, double x0, double x1, double width0, double fraction, double offset)
{
    const double s0 = g.spacing(x0) / g.spacing(0);
    const double s1 = g.spacing(x1) / g.spacing(0);
    const double w0 = width0 * s0 * fraction / 2;
    const double w1 = width0 * s1 * fraction / 2;
    const double c0 = g.stringY(string, x0) * kSy + offset * width0 * s0;
    const double c1 = g.stringY(string, x1) * kSy + offset * width0 * s1;
    return QPolygonF({ QPointF(x0 * kSx, c0 - w0), QPointF(x1 * kSx, c1 - w1), QPointF(x1 * kSx, c1 + w1),
        QPointF(x0 * kSx, c0 + w0) });
}

void drawStrings(QPainter& painter, const NeckGeometry& g, double nut)
{
    // Width in picture pixels at the left edge, E4 to E2.
    const double widths[GuitarFretMap::StringCount] = { 1.6, 2.0, 2.6, 3.4, 4.2, 5.0 };
    const double end = 803;
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        const double start = postX(string);
        const double width = widths[string - 1];
        const bool wound = string >= 4;

        // Shadow on the board: the string hangs a little above the wood.
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 3; ++i) {
            painter.setBrush(QColor(0, 0, 0, 45));
            painter.drawPolygon(stringBand(g, string, nut, end, width, 1.4 + i * 0.8, 2.2 + i * 0.3));
        }

        const QColor dark = wound ? QColor(74, 64, 48) : QColor(62, 64, 68);
        const QColor body = wound ? QColor(176, 160, 128) : QColor(176, 178, 184);
        const QColor shine = wound ? QColor(250, 240, 214) : QColor(252, 252, 255);
        painter.setBrush(dark);
        painter.drawPolygon(stringBand(g, string, start, end, width, 1.0, 0.0));
        painter.setBrush(body);
        painter.drawPolygon(stringBand(g, string, start, end, width, 0.7, -0.08));
        painter.setBrush(shine);
        painter.drawPolygon(stringBand(g, string, start, end, width, 0.28, -0.18));

        if (!wound)
            continue;
        // Windings: fine slanted grooves across the string.
        painter.setPen(QPen(QColor(40, 32, 22, 150), 0.7));
        double x = start * kSx;
        while (x < end * kSx) {
            const double w = width * g.spacing(x / kSx) / g.spacing(0);
            const double y = g.stringY(string, x / kSx) * kSy;
            painter.drawLine(QPointF(x, y - w / 2), QPointF(x + w * 0.4, y + w / 2));
            x += qMax(1.6, w * 0.62);
        }
    }
}

} // namespace

QImage NeckArt::drawNeck(const NeckGeometry& geometry)
{
    const double nut = geometry.wires().first();
    QImage image(kLargeSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);

    WoodArt::drawBackdrop(painter, kLargeSize);
    drawNeckShadowAndSide(painter, geometry, nut);
    drawHeadstock(painter, geometry, nut);
    drawFingerboard(painter, geometry, nut);
    drawInlays(painter, geometry);
    drawFrets(painter, geometry);
    drawNut(painter, geometry, nut);
    drawPosts(painter, geometry);
    drawStrings(painter, geometry, nut);
    painter.end();
    return image;
}

void NeckArt::drawMark(QPainter& painter, const QPointF& centre, double outer)
{
    const double ring = outer * 0.74;

    QRadialGradient glow(centre, outer);
    QColor clear = kMarkColour;
    clear.setAlpha(0);
    QColor soft = kMarkColour;
    soft.setAlpha(150);
    glow.setColorAt(0.0, clear);
    glow.setColorAt(0.55, clear);
    glow.setColorAt(0.74, soft);
    glow.setColorAt(1.0, clear);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, outer, outer);

    QColor tint = kMarkColour;
    tint.setAlpha(60);
    painter.setBrush(tint);
    painter.setPen(QPen(kMarkColour.lighter(115), qMax(1.0, outer * 0.27)));
    painter.drawEllipse(centre, ring, ring);

    // A short highlight on the upper left, as on glass.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 150), qMax(0.6, outer * 0.07), Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(centre.x() - ring, centre.y() - ring, 2 * ring, 2 * ring), 100 * 16, 60 * 16);
}

QImage NeckArt::drawOverlay(const QString& stem, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double sx = double(size.width()) / GuitarFretMap::DesignWidth;
    const double sy = double(size.height()) / GuitarFretMap::DesignHeight;
    const double scale = double(size.width()) / kLargeSize.width();
    const NeckGeometry geometry;

    for (const NeckGeometry::Place& place : NeckGeometry::places(stem)) {
        const double x = GuitarFretMap::centre(place.string, place.column).x();
        const QPointF centre(x * sx, geometry.stringY(place.string, x) * sy);
        const double outer = qMin(geometry.spacing(x) * kSx, MarkMaxExtent) / 2 * scale;
        drawMark(painter, centre, outer);
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

void NeckArt::generate(ArtWriter& writer)
{
    const NeckGeometry geometry;
    const QImage neck = drawNeck(geometry);
    writer.addPicture(QStringLiteral("Guitar_0@2x.jpg"), neck, 90);
    writer.addPicture(
        QStringLiteral("Guitar_0.jpg"), neck.scaled(kSmallSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), 90);

    for (const QString& stem : NeckGeometry::stems()) {
        writer.addPicture(QStringLiteral("Guitar_%1@2x.png").arg(stem), drawOverlay(stem, kLargeSize));
        writer.addPicture(QStringLiteral("Guitar_%1.png").arg(stem), drawOverlay(stem, kSmallSize));
    }
}
