#include "FingerboardArt.h"

#include "ArtWriter.h"
#include "BoardPicture.h"
#include "FingerboardDesign.h"
#include "FingerboardMap.h"
#include "GuitarFretMap.h"
#include "NeckArt.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

using QMMusic::FingerboardDesign;
using QMMusic::FingerboardMap;
using QMMusic::GuitarFretMap;

namespace {

using BoardPicture::toPicture;
const QSize kLargeSize = BoardPicture::LargeSize;
const QSize kSmallSize = BoardPicture::SmallSize;
constexpr double kSx = BoardPicture::Sx;
constexpr double kSy = BoardPicture::Sy;
// Right edge of the drawing, a little beyond the picture.
const double kEnd = 803.0;

enum class Body
{
    SoundHole, // ukulele: a light top with a round hole
    Violin, // the upper bout, varnished, with its purfling
    Pickup, // bass guitar: a dark body and a pickup
    Drum, // banjo: the head in its metal rim
    Oval, // mandolin: a carved top with an oval hole
    Triangle, // balalaika: the straight edges of a three-cornered body
};

enum class Strings
{
    Nylon,
    Steel, // plain steel, the lowest wound
    RoundWound, // every string wound
    Violin, // steel E, the others wound with silver
};

// How an instrument looks, beyond the geometry of its design.
struct Look
{
    QColor boardDark;
    QColor boardLight;
    QColor headDark;
    QColor headLight;
    QColor bodyDark;
    QColor bodyLight;
    Body body = Body::SoundHole;
    Strings strings = Strings::Steel;
    // Where the fingerboard ends over the body, and where the body starts.
    double boardEndX = kEnd;
    double bodyX = 700;
    // The board's edge beyond the outer strings, in string spacings.
    double margin = 0.55;
    // String widths in picture pixels at the nut, string 1 first.
    QVector<double> widths;
    QVector<int> inlays;
    bool doubled = false;
};

Look lookOf(const QString& key)
{
    Look look;
    if (key == QLatin1String("Ukulele")) {
        look.boardDark = QColor(72, 40, 24);
        look.boardLight = QColor(150, 92, 54);
        look.headDark = QColor(132, 84, 44);
        look.headLight = QColor(206, 150, 92);
        look.bodyDark = QColor(170, 112, 58);
        look.bodyLight = QColor(226, 176, 112);
        look.body = Body::SoundHole;
        look.strings = Strings::Nylon;
        look.boardEndX = 596;
        look.bodyX = 568;
        look.widths = { 3.0, 3.4, 3.9, 2.8 };
        look.inlays = { 5, 7, 10, 12, 15 };
    } else if (key == QLatin1String("Violin")) {
        look.boardDark = QColor(8, 8, 9);
        look.boardLight = QColor(40, 36, 34);
        look.headDark = QColor(104, 44, 16);
        look.headLight = QColor(196, 104, 44);
        look.bodyDark = QColor(110, 40, 12);
        look.bodyLight = QColor(206, 110, 44);
        look.body = Body::Violin;
        look.strings = Strings::Violin;
        look.bodyX = 600;
        look.margin = 0.6;
        look.widths = { 1.4, 2.2, 2.6, 3.2 };
    } else if (key == QLatin1String("Bass")) {
        look.boardDark = QColor(34, 18, 12);
        look.boardLight = QColor(104, 56, 34);
        look.headDark = QColor(170, 120, 66);
        look.headLight = QColor(232, 196, 140);
        look.bodyDark = QColor(18, 14, 12);
        look.bodyLight = QColor(150, 46, 20);
        look.body = Body::Pickup;
        look.strings = Strings::RoundWound;
        look.boardEndX = 716;
        look.bodyX = 680;
        look.margin = 0.5;
        look.widths = { 4.4, 5.4, 6.4, 7.4 };
        look.inlays = { 3, 5, 7, 9, 12, 15, 17, 19 };
    } else if (key == QLatin1String("Balalaika")) {
        look.boardDark = QColor(40, 22, 14);
        look.boardLight = QColor(112, 64, 38);
        look.headDark = QColor(150, 98, 52);
        look.headLight = QColor(220, 170, 110);
        look.bodyDark = QColor(196, 150, 90);
        look.bodyLight = QColor(240, 214, 164);
        look.body = Body::Triangle;
        look.strings = Strings::Nylon;
        look.boardEndX = 664;
        look.bodyX = 640;
        look.margin = 0.6;
        look.widths = { 1.8, 3.2, 3.2 };
        look.inlays = { 5, 7, 10, 12, 15, 17 };
    } else if (key == QLatin1String("Banjo")) {
        look.boardDark = QColor(30, 16, 12);
        look.boardLight = QColor(98, 54, 34);
        look.headDark = QColor(30, 16, 12);
        look.headLight = QColor(92, 52, 32);
        look.bodyDark = QColor(214, 204, 180);
        look.bodyLight = QColor(246, 240, 226);
        look.body = Body::Drum;
        look.strings = Strings::Steel;
        look.boardEndX = 718;
        look.bodyX = 716;
        look.margin = 0.5;
        look.widths = { 1.6, 1.9, 2.2, 2.9, 1.5 };
        look.inlays = { 5, 7, 10, 12, 15, 17, 19, 22 };
    } else {
        look.boardDark = QColor(34, 18, 12);
        look.boardLight = QColor(104, 58, 36);
        look.headDark = QColor(20, 12, 10);
        look.headLight = QColor(70, 40, 26);
        look.bodyDark = QColor(120, 56, 18);
        look.bodyLight = QColor(226, 160, 80);
        look.body = Body::Oval;
        look.strings = Strings::Steel;
        look.boardEndX = 626;
        look.bodyX = 596;
        look.widths = { 1.3, 1.7, 2.3, 3.0 };
        look.inlays = { 5, 7, 10, 12, 15 };
        look.doubled = true;
    }
    return look;
}

double boardTop(const FingerboardDesign& d, const Look& look, double x)
{
    return d.stringY(1, x) - look.margin * d.spacing(x);
}

double boardBottom(const FingerboardDesign& d, const Look& look, double x)
{
    return d.stringY(d.stringCount(), x) + look.margin * d.spacing(x);
}

// The tuner or peg of each string, left of the nut, on the string's line.
double postX(const FingerboardDesign& d, int string)
{
    const double step = qMin(16.0, (d.nutX - 50.0) / qMax(1, d.stringCount() - 1));
    return d.nutX - 28.0 - (d.stringCount() - string) * step;
}

// Fills a shape with wood whose grain runs along the quad, in perspective.
void fillWood(QPainter& painter, const QPainterPath& shape, const QPolygonF& quad, const QColor& dark,
    const QColor& light, int seed)
{
    const QImage texture = WoodArt::woodTexture(QSize(900, 300), dark, light, seed);
    const QPolygonF flat({ QPointF(0, 0), QPointF(texture.width(), 0), QPointF(texture.width(), texture.height()),
        QPointF(0, texture.height()) });
    QTransform transform;
    if (!QTransform::quadToQuad(flat, quad, transform))
        return;
    painter.save();
    painter.setClipPath(shape);
    painter.setTransform(transform);
    painter.drawImage(QPointF(0, 0), texture);
    painter.restore();
}

void drawSoundHole(QPainter& painter, const QPointF& centre, double radius)
{
    // Rosette rings, then the dark hole with the light falling into it.
    for (int ring = 3; ring >= 1; --ring) {
        painter.setPen(QPen(ring % 2 ? QColor(60, 34, 20) : QColor(236, 222, 190), 5));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, radius + ring * 9, radius + ring * 9);
    }
    QRadialGradient hole(centre + QPointF(radius * 0.3, radius * 0.2), radius);
    hole.setColorAt(0.0, QColor(40, 26, 18));
    hole.setColorAt(1.0, QColor(8, 6, 5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hole);
    painter.drawEllipse(centre, radius, radius);
}

void drawBody(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    const double mid = (d.stringY(1, look.bodyX) + d.stringY(d.stringCount(), look.bodyX)) / 2;
    QPainterPath body;
    if (look.body == Body::Drum) {
        // The head of the banjo: a large circle whose left arc shows.
        const QPointF centre = toPicture(look.bodyX + 250, mid);
        const double radius = 250 * kSx;
        QRadialGradient rim(centre, radius + 34);
        rim.setColorAt(0.0, QColor(90, 90, 96));
        rim.setColorAt(0.9, QColor(230, 232, 238));
        rim.setColorAt(1.0, QColor(70, 70, 76));
        painter.setPen(Qt::NoPen);
        painter.setBrush(rim);
        painter.drawEllipse(centre, radius + 34, radius + 34);
        // Brackets that hold the head, around the rim.
        for (int i = -9; i <= 9; ++i) {
            const double angle = M_PI + i * 0.11;
            const QPointF at = centre + QPointF(std::cos(angle), std::sin(angle)) * (radius + 24);
            QRadialGradient nut(at - QPointF(3, 3), 12);
            nut.setColorAt(0.0, QColor(255, 255, 255));
            nut.setColorAt(1.0, QColor(110, 112, 120));
            painter.setBrush(nut);
            painter.drawEllipse(at, 9, 9);
        }
        QRadialGradient head(centre - QPointF(radius * 0.4, radius * 0.3), radius * 1.2);
        head.setColorAt(0.0, look.bodyLight);
        head.setColorAt(1.0, look.bodyDark);
        painter.setBrush(head);
        painter.drawEllipse(centre, radius, radius);
        // The frosted head's fine speckle.
        painter.setPen(QPen(QColor(150, 140, 120, 40), 1));
        for (int i = 0; i < 1400; ++i) {
            const double u = WoodArt::hash(i, 3, 77);
            const double v = WoodArt::hash(i, 9, 77);
            const QPointF p = centre + QPointF((u - 1.0) * radius, (v - 0.5) * 2 * radius);
            if (QLineF(p, centre).length() < radius - 4)
                painter.drawPoint(p);
        }
        return;
    }

    if (look.body == Body::Triangle) {
        // Two straight edges that open from the neck towards the picture's corners.
        body.moveTo(toPicture(look.bodyX, boardTop(d, look, look.bodyX) - 2));
        body.lineTo(toPicture(kEnd, -40));
        body.lineTo(toPicture(kEnd, 234));
        body.lineTo(toPicture(look.bodyX, boardBottom(d, look, look.bodyX) + 2));
        body.closeSubpath();
    } else {
        // A rounded shoulder that starts at the neck's heel.
        const double bulge = look.body == Body::Violin ? 110 : 150;
        body.moveTo(toPicture(kEnd, mid - bulge - 30));
        body.cubicTo(
            toPicture(look.bodyX + 40, mid - bulge), toPicture(look.bodyX, mid - 50), toPicture(look.bodyX, mid));
        body.cubicTo(toPicture(look.bodyX, mid + 50), toPicture(look.bodyX + 40, mid + bulge),
            toPicture(kEnd, mid + bulge + 30));
        body.closeSubpath();
    }

    // Shadow of the body on the ground.
    painter.save();
    painter.translate(6, 10);
    painter.fillPath(body, QColor(0, 0, 0, 90));
    painter.restore();

    const QPolygonF quad(
        { toPicture(look.bodyX, -40), toPicture(kEnd, -40), toPicture(kEnd, 234), toPicture(look.bodyX, 234) });
    fillWood(painter, body, quad, look.bodyDark, look.bodyLight, 41);
    if (look.body == Body::Pickup) {
        // Sunburst: dark towards the edge of the body.
        QRadialGradient burst(toPicture(kEnd + 60, mid), 260 * kSx);
        burst.setColorAt(0.0, QColor(0, 0, 0, 0));
        burst.setColorAt(0.7, QColor(20, 8, 4, 120));
        burst.setColorAt(1.0, QColor(8, 4, 2, 240));
        painter.fillPath(body, burst);
    }
    // Gloss of the finish and the binding at the edge.
    QLinearGradient gloss(0, 0, 0, kLargeSize.height());
    gloss.setColorAt(0.0, QColor(255, 255, 255, 46));
    gloss.setColorAt(0.5, QColor(255, 255, 255, 0));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 70));
    painter.fillPath(body, gloss);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.body == Body::Violin ? QColor(40, 16, 6) : QColor(236, 224, 196), 5));
    painter.drawPath(body);
    if (look.body == Body::Violin) {
        // The purfling, a thin dark double line inside the edge.
        painter.save();
        painter.translate(toPicture(10, 0));
        painter.setPen(QPen(QColor(30, 12, 4, 200), 2));
        painter.drawPath(body);
        painter.restore();
    }

    const QPointF hole = toPicture(look.bodyX + 110, mid);
    if (look.body == Body::SoundHole || look.body == Body::Triangle)
        drawSoundHole(painter, hole, look.body == Body::Triangle ? 46 : 110);
    if (look.body == Body::Oval) {
        painter.save();
        painter.translate(hole);
        painter.scale(0.8, 1.25);
        drawSoundHole(painter, QPointF(0, 0), 90);
        painter.restore();
    }
    if (look.body == Body::Pickup) {
        const QRectF pickup(toPicture(748, mid - 44), toPicture(774, mid + 44));
        painter.setPen(QPen(QColor(70, 70, 74), 2));
        painter.setBrush(QColor(16, 16, 18));
        painter.drawRoundedRect(pickup, 10, 10);
        painter.setPen(Qt::NoPen);
        for (int string = 1; string <= d.stringCount(); ++string) {
            QRadialGradient pole(toPicture(761, d.stringY(string, 761)), 8);
            pole.setColorAt(0.0, QColor(240, 240, 244));
            pole.setColorAt(1.0, QColor(90, 90, 96));
            painter.setBrush(pole);
            painter.drawEllipse(toPicture(761, d.stringY(string, 761)), 7, 7);
        }
    }
}

QPolygonF boardQuad(const FingerboardDesign& d, const Look& look, double left, double right)
{
    return QPolygonF({ toPicture(left, boardTop(d, look, left)), toPicture(right, boardTop(d, look, right)),
        toPicture(right, boardBottom(d, look, right)), toPicture(left, boardBottom(d, look, left)) });
}

void drawNeck(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    const double heel = qMin(look.boardEndX, kEnd);
    // Soft shadow of the neck on the ground, then its side below the board.
    painter.setPen(Qt::NoPen);
    for (int i = 6; i >= 1; --i) {
        painter.setBrush(QColor(0, 0, 0, 20));
        const double grow = i * 2.0;
        painter.drawPolygon(QPolygonF({ toPicture(d.nutX, boardTop(d, look, d.nutX) + 4),
            toPicture(heel, boardTop(d, look, heel) + 4), toPicture(heel, boardBottom(d, look, heel) + 6 + grow),
            toPicture(d.nutX, boardBottom(d, look, d.nutX) + 6 + grow) }));
    }
    const double depth = 0.5;
    QLinearGradient side(0, boardBottom(d, look, 400) * kSy, 0, (boardBottom(d, look, 400) + 8) * kSy);
    side.setColorAt(0.0, look.headLight.darker(130));
    side.setColorAt(1.0, look.headDark.darker(200));
    painter.setBrush(side);
    painter.drawPolygon(
        QPolygonF({ toPicture(d.nutX, boardBottom(d, look, d.nutX)), toPicture(heel, boardBottom(d, look, heel)),
            toPicture(heel, boardBottom(d, look, heel) + depth * d.spacing(heel)),
            toPicture(d.nutX, boardBottom(d, look, d.nutX) + depth * d.spacing(d.nutX)) }));

    QPainterPath board;
    board.addPolygon(boardQuad(d, look, d.nutX, heel));
    fillWood(painter, board, boardQuad(d, look, d.nutX, heel), look.boardDark, look.boardLight, 17);
    if (heel < kEnd) {
        // The rounded end of the board over the body, and its shadow.
        painter.setPen(QPen(QColor(0, 0, 0, 110), 4));
        painter.drawLine(toPicture(heel + 1, boardTop(d, look, heel)), toPicture(heel + 1, boardBottom(d, look, heel)));
    }
}

void drawHeadstock(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    const double top = boardTop(d, look, d.nutX);
    const double bottom = boardBottom(d, look, d.nutX);
    const double far = postX(d, 1) - 26;
    QPainterPath face;
    if (look.body == Body::Violin) {
        // The pegbox, open on top, ending in the scroll.
        face.moveTo(toPicture(d.nutX, top));
        face.lineTo(toPicture(far + 18, top - 4));
        face.cubicTo(
            toPicture(far - 10, top - 26), toPicture(far - 44, top - 8), toPicture(far - 40, (top + bottom) / 2));
        face.cubicTo(
            toPicture(far - 44, bottom + 8), toPicture(far - 10, bottom + 26), toPicture(far + 18, bottom + 4));
        face.lineTo(toPicture(d.nutX, bottom));
        face.closeSubpath();
    } else {
        const double flare = look.body == Body::Drum || look.body == Body::Oval ? 20 : 12;
        face.moveTo(toPicture(d.nutX, top));
        face.cubicTo(
            toPicture(d.nutX - 20, top - 2), toPicture(far + 20, top - flare), toPicture(far, top - flare + 2));
        face.quadTo(toPicture(far - 14, (top + bottom) / 2), toPicture(far, bottom + flare - 2));
        face.cubicTo(
            toPicture(far + 20, bottom + flare), toPicture(d.nutX - 20, bottom + 2), toPicture(d.nutX, bottom));
        face.closeSubpath();
    }
    painter.save();
    painter.translate(4, 9);
    painter.fillPath(face, QColor(0, 0, 0, 80));
    painter.restore();
    const QPolygonF quad({ toPicture(far - 50, top - 30), toPicture(d.nutX, top - 30), toPicture(d.nutX, bottom + 30),
        toPicture(far - 50, bottom + 30) });
    fillWood(painter, face, quad, look.headDark, look.headLight, 91);
    QLinearGradient gloss(0, (top - 20) * kSy, 0, (bottom + 20) * kSy);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 44));
    gloss.setColorAt(0.4, QColor(255, 255, 255, 6));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 70));
    painter.fillPath(face, gloss);
    if (look.body == Body::Violin) {
        // The dark opening of the pegbox and the turns of the scroll.
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(14, 6, 2, 230));
        painter.drawRoundedRect(QRectF(toPicture(far + 16, top + 3), toPicture(d.nutX - 6, bottom - 3)), 12, 12);
        painter.setBrush(Qt::NoBrush);
        const QPointF eye = toPicture(far - 22, (top + bottom) / 2);
        for (int turn = 0; turn < 3; ++turn) {
            painter.setPen(QPen(QColor(60, 22, 6, 200), 4));
            const double r = 14 + turn * 14;
            painter.drawArc(QRectF(eye.x() - r, eye.y() - r, 2 * r, 2 * r), 30 * 16 * turn, 300 * 16);
        }
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.headDark.darker(160), 2.2));
    painter.drawPath(face);
}

void drawPeg(QPainter& painter, const QPointF& centre, bool wooden)
{
    const double bushing = 12.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 90));
    painter.drawEllipse(centre + QPointF(2, 4), bushing, bushing);
    QRadialGradient ring(centre - QPointF(4, 4), bushing * 1.6);
    ring.setColorAt(0.0, wooden ? QColor(120, 70, 40) : QColor(250, 250, 252));
    ring.setColorAt(0.5, wooden ? QColor(50, 26, 14) : QColor(160, 162, 168));
    ring.setColorAt(1.0, wooden ? QColor(20, 10, 6) : QColor(70, 72, 78));
    painter.setBrush(ring);
    painter.drawEllipse(centre, bushing, bushing);
    QRadialGradient top(centre - QPointF(2, 2), 10);
    top.setColorAt(0.0, wooden ? QColor(150, 100, 70) : QColor(255, 255, 255));
    top.setColorAt(1.0, wooden ? QColor(40, 20, 10) : QColor(96, 98, 104));
    painter.setBrush(top);
    painter.drawEllipse(centre, 6.5, 6.5);
}

void drawFittings(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    const bool wooden = look.body == Body::Violin;
    for (int string = 1; string <= d.stringCount(); ++string) {
        const bool shortString = !d.firstColumns.isEmpty() && d.firstColumns.value(string - 1) > 0;
        const double x = shortString ? d.wireX(d.firstColumns.at(string - 1)) - 6 : postX(d, string);
        const QPointF at = toPicture(x, d.stringY(string, x) + (shortString ? 6 : 0));
        if (look.doubled) {
            drawPeg(painter, at - QPointF(0, 0.22 * d.spacing(x) * kSy), wooden);
            drawPeg(painter, at + QPointF(0, 0.22 * d.spacing(x) * kSy), wooden);
        } else {
            drawPeg(painter, at, wooden);
        }
    }

    // The nut, of bone (ebony on the violin).
    const double left = d.nutX - 3.4;
    const double right = d.nutX + 1.6;
    const QRectF bone(
        toPicture(left, boardTop(d, look, d.nutX) - 1), toPicture(right, boardBottom(d, look, d.nutX) + 1));
    QLinearGradient shade(bone.topLeft(), bone.topRight());
    shade.setColorAt(0.0, wooden ? QColor(20, 18, 16) : QColor(196, 184, 156));
    shade.setColorAt(0.4, wooden ? QColor(70, 64, 60) : QColor(246, 240, 222));
    shade.setColorAt(1.0, wooden ? QColor(10, 10, 10) : QColor(150, 136, 108));
    painter.setPen(QPen(QColor(60, 50, 40), 1.0));
    painter.setBrush(shade);
    painter.drawRoundedRect(bone, 2.5, 2.5);
}

void drawFretsAndInlays(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    if (!d.fretted) {
        // Fingering places, marked faintly across the ebony, as a teacher's tape.
        for (int place = 1; place <= d.frets; ++place) {
            const double x = d.wireX(place);
            painter.setPen(QPen(QColor(236, 228, 210, place % 2 ? 46 : 70), 2.0));
            painter.drawLine(toPicture(x, boardTop(d, look, x) + 2), toPicture(x, boardBottom(d, look, x) - 2));
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(240, 232, 214, 60));
            for (int string = 1; string <= d.stringCount(); ++string)
                painter.drawEllipse(toPicture(x, d.stringY(string, x)), 4.0, 4.0);
        }
        return;
    }

    const int middle = d.stringCount() / 2;
    for (int fret : look.inlays) {
        const double x = (d.wireX(fret - 1) + d.wireX(fret)) / 2;
        const double cell = d.wireX(fret) - d.wireX(fret - 1);
        const double radius = qMin(0.36 * d.spacing(x), 0.3 * cell) * kSx;
        const double between = (d.stringY(middle, x) + d.stringY(middle + 1, x)) / 2;
        if (fret == 12 && d.stringCount() >= 4) {
            WoodArt::drawPearl(painter, toPicture(x, (d.stringY(1, x) + d.stringY(2, x)) / 2), radius, fret);
            WoodArt::drawPearl(
                painter, toPicture(x, (d.stringY(middle + 1, x) + d.stringY(middle + 2, x)) / 2), radius, fret + 1);
        } else {
            WoodArt::drawPearl(painter, toPicture(x, between), radius, fret);
        }
    }

    for (int fret = 1; fret <= d.frets; ++fret) {
        const double x = d.wireX(fret);
        const double half = 0.7;
        const double top = boardTop(d, look, x) - 0.2;
        const double bottom = boardBottom(d, look, x) + 0.3;
        QLinearGradient shadow(toPicture(x + half, 0), toPicture(x + half + 2.4, 0));
        shadow.setColorAt(0.0, QColor(0, 0, 0, 140));
        shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(shadow);
        painter.drawRect(QRectF(toPicture(x + half, top + 0.6), toPicture(x + half + 2.4, bottom)));
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

// A band along a string from x0 to x1, widening with the spread of the
// strings, offset across the string by `offset` string spacings.
QPolygonF stringBand(const FingerboardDesign& d, int string, double x0, double x1, double width, double offset)
{
    const double s0 = d.spacing(x0) / d.spacing(d.nutX);
    const double s1 = d.spacing(x1) / d.spacing(d.nutX);
    const double y0 = (d.stringY(string, x0) + offset * d.spacing(x0)) * kSy;
    const double y1 = (d.stringY(string, x1) + offset * d.spacing(x1)) * kSy;
    return QPolygonF({ QPointF(x0 * kSx, y0 - width * s0 / 2), QPointF(x1 * kSx, y1 - width * s1 / 2),
        QPointF(x1 * kSx, y1 + width * s1 / 2), QPointF(x0 * kSx, y0 + width * s0 / 2) });
}

void drawString(QPainter& painter, const FingerboardDesign& d, const Look& look, int string, double offset)
{
    const bool shortString = !d.firstColumns.isEmpty() && d.firstColumns.value(string - 1) > 0;
    const double start = shortString ? d.wireX(d.firstColumns.at(string - 1)) - 6 : postX(d, string);
    const double width = look.widths.value(string - 1, 2.0);
    const bool wound = look.strings == Strings::RoundWound || (look.strings == Strings::Violin && string > 1)
        || (look.strings == Strings::Steel && width >= 2.2);
    const bool nylon = look.strings == Strings::Nylon;

    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 3; ++i) {
        painter.setBrush(QColor(0, 0, 0, 40));
        painter.drawPolygon(stringBand(d, string, qMax(start, d.nutX), kEnd, width * (1.4 + 0.8 * i), offset + 0.12));
    }
    QColor dark = QColor(62, 64, 68);
    QColor body = QColor(176, 178, 184);
    QColor shine = QColor(252, 252, 255);
    if (nylon) {
        dark = QColor(150, 140, 120);
        body = QColor(236, 230, 214);
        shine = QColor(255, 255, 250);
    } else if (wound && look.strings != Strings::Violin) {
        dark = QColor(74, 64, 48);
        body = QColor(176, 160, 128);
        shine = QColor(250, 240, 214);
    }
    painter.setBrush(dark);
    painter.drawPolygon(stringBand(d, string, start, kEnd, width, offset));
    painter.setBrush(body);
    painter.drawPolygon(stringBand(d, string, start, kEnd, width * 0.7, offset - 0.006));
    painter.setBrush(shine);
    painter.drawPolygon(stringBand(d, string, start, kEnd, width * 0.26, offset - 0.014));

    if (!wound)
        return;
    // Windings: fine slanted grooves across the string.
    painter.setPen(QPen(QColor(40, 32, 22, 140), 0.7));
    for (double x = start * kSx; x < kEnd * kSx; x += qMax(1.6, width * 0.6)) {
        const double w = width * d.spacing(x / kSx) / d.spacing(d.nutX);
        const double y = (d.stringY(string, x / kSx) + offset * d.spacing(x / kSx)) * kSy;
        painter.drawLine(QPointF(x, y - w / 2), QPointF(x + w * 0.4, y + w / 2));
    }
}

void drawStrings(QPainter& painter, const FingerboardDesign& d, const Look& look)
{
    for (int string = 1; string <= d.stringCount(); ++string) {
        if (look.doubled) {
            drawString(painter, d, look, string, -0.16);
            drawString(painter, d, look, string, 0.16);
        } else {
            drawString(painter, d, look, string, 0.0);
        }
    }
}

} // namespace

QImage FingerboardArt::drawBoard(const FingerboardDesign& design)
{
    const Look look = lookOf(design.key);
    QImage image(kLargeSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    WoodArt::drawBackdrop(painter, kLargeSize);
    drawBody(painter, design, look);
    drawNeck(painter, design, look);
    drawHeadstock(painter, design, look);
    drawFretsAndInlays(painter, design, look);
    drawFittings(painter, design, look);
    drawStrings(painter, design, look);
    painter.end();
    return image;
}

QImage FingerboardArt::drawOverlay(const FingerboardDesign& design, const QString& stem, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double sx = double(size.width()) / GuitarFretMap::DesignWidth;
    const double sy = double(size.height()) / GuitarFretMap::DesignHeight;
    const double scale = double(size.width()) / kLargeSize.width();
    const FingerboardMap map(design);
    for (const FingerboardMap::Box& place : map.places(stem)) {
        const QPointF centre(place.centre.x() * sx, place.centre.y() * sy);
        const double outer = qMin(design.spacing(place.centre.x()) * kSx, NeckArt::MarkMaxExtent) / 2 * scale;
        NeckArt::drawMark(painter, centre, outer);
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

void FingerboardArt::generate(ArtWriter& writer)
{
    for (const QString& key : FingerboardDesign::keys()) {
        const FingerboardDesign& design = FingerboardDesign::forKey(key);
        const QImage board = drawBoard(design);
        writer.addPicture(key + QStringLiteral("_0@2x.jpg"), board, 90, key);
        writer.addPicture(key + QStringLiteral("_0.jpg"),
            board.scaled(kSmallSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), 90, key);
        for (const QString& stem : design.stems()) {
            writer.addPicture(
                QStringLiteral("%1_%2@2x.png").arg(key, stem), drawOverlay(design, stem, kLargeSize), -1, key);
            writer.addPicture(
                QStringLiteral("%1_%2.png").arg(key, stem), drawOverlay(design, stem, kSmallSize), -1, key);
        }
    }
}
