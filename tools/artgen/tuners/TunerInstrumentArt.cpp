#include "TunerInstrumentArt.h"

#include "ArtWriter.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

namespace {

enum class Top
{
    Spruce, // a light top under clear lacquer
    Varnished, // the violin family's red-brown varnish over an arched top
    Sunburst, // dark towards the edge
    Lacquer, // an even, glossy paint
    Drum, // the banjo's frosted head in its metal rim
};

enum class Hole
{
    None,
    Round, // with a rosette
    FHoles,
    Small, // a small round hole with a ring of inlay
    Pickups, // the bass guitar's two pickups
};

enum class Head
{
    Scroll, // pegbox with wooden pegs out to the sides, scroll above
    ScrollMachines, // the double bass's: metal machines instead of pegs
    Sides, // a flat headstock, half the tuners on either side
    Inline, // all tuners on one side
};

enum class Tail
{
    PinBridge, // the strings end in the bridge
    Tailpiece, // the violin family's ebony tailpiece
    Trapeze, // a metal tailpiece from the bottom edge
    Button, // the strings run over the bridge to a button at the bottom
};

enum class Strings
{
    Steel, // plain high strings, wound low ones
    Nylon,
    Bowed, // silver-wound, the highest plain steel
};

// One point of the body's outline: how far down the body (0..1) and half
// the width there, in millimetres; a sharp point is a corner.
struct Bout
{
    double down;
    double half;
    bool sharp = false;
};

// An instrument in millimetres, measured from the top of its head.
struct Design
{
    double head = 0; // top of the head to the nut
    double neck = 0; // nut to the top of the body
    double body = 0;
    double endpin = 0; // below the body
    QVector<Bout> outline;
    double scale = 0; // nut to bridge
    double nutWidth = 0;
    double heelWidth = 0; // the board's width where the body starts
    double boardEnd = 0; // from the nut
    int strings = 0;
    bool doubled = false;
    double bridgeSpread = 0;
    QVector<double> gauges; // picture pixels, left to right
    Strings stringKind = Strings::Steel;
    int frets = 0;
    QVector<int> inlays;
    Top top = Top::Spruce;
    Hole hole = Hole::None;
    double holeDown = 0; // fraction of the body
    double holeRadius = 0;
    Head headKind = Head::Sides;
    Tail tail = Tail::PinBridge;
    bool chinrest = false;
    bool pickguard = false;
    bool spruce = true; // the top's grain: spruce, or the hardwood of a solid body
    int fifthStringFret = 0; // the banjo's short string starts at this fret
    QColor topDark, topLight;
    QColor neckDark, neckLight;
    QColor boardDark, boardLight;
    QColor bindingColour = QColor(236, 224, 196);
    int seed = 1;

    double total() const { return head + neck + body + endpin; }
    double nutY() const { return head; }
    double bodyTop() const { return head + neck; }
    double bodyBottom() const { return head + neck + body; }
    double bridgeY() const { return head + scale; }
    double fretY(int fret) const { return head + scale * (1.0 - std::pow(2.0, -fret / 12.0)); }
    double boardWidth(double y) const
    {
        const double t = (y - nutY()) / neck;
        return nutWidth + (heelWidth - nutWidth) * t;
    }
};

const QColor kEbonyDark(10, 9, 9);
const QColor kEbonyLight(52, 46, 44);
const QColor kRosewoodDark(40, 22, 14);
const QColor kRosewoodLight(104, 60, 36);

QVector<Bout> violinOutline(double depth)
{
    // The C-bouts' depth varies a little from instrument to instrument.
    return { { 0, 0 }, { 0.012, 0.09 }, { 0.05, 0.185 }, { 0.13, 0.232 }, { 0.22, 0.228 }, { 0.3, 0.205 },
        { 0.345, 0.207, true }, { 0.38, 0.17 - depth }, { 0.48, 0.152 - depth }, { 0.575, 0.168 - depth },
        { 0.615, 0.222, true }, { 0.69, 0.27 }, { 0.78, 0.29 }, { 0.88, 0.268 }, { 0.955, 0.19 }, { 0.99, 0.08 },
        { 1, 0 } };
}

QVector<Bout> scaled(QVector<Bout> outline, double length)
{
    for (Bout& bout : outline)
        bout.half *= length;
    return outline;
}

Design design(const QString& key)
{
    Design d;
    if (key == QLatin1String("Violin") || key == QLatin1String("Viola")) {
        const bool viola = key == QLatin1String("Viola");
        const double size = viola ? 410.0 / 356.0 : 1.0;
        d.head = 100 * size;
        d.neck = 130 * size;
        d.body = 356 * size;
        d.endpin = 8 * size;
        d.outline = scaled(violinOutline(viola ? 0.008 : 0.0), d.body);
        d.scale = 328 * size;
        d.nutWidth = 24 * size;
        d.heelWidth = 32 * size;
        d.boardEnd = 270 * size;
        d.strings = 4;
        d.bridgeSpread = 34 * size;
        d.gauges = viola ? QVector<double> { 6.0, 5.0, 4.2, 3.6 } : QVector<double> { 5.0, 4.2, 3.6, 2.8 };
        d.stringKind = Strings::Bowed;
        d.top = Top::Varnished;
        d.hole = Hole::FHoles;
        d.headKind = Head::Scroll;
        d.tail = Tail::Tailpiece;
        d.chinrest = true;
        d.topDark = viola ? QColor(70, 22, 8) : QColor(88, 32, 8);
        d.topLight = viola ? QColor(150, 64, 26) : QColor(182, 90, 32);
        d.neckDark = d.topDark;
        d.neckLight = d.topLight;
        d.boardDark = kEbonyDark;
        d.boardLight = kEbonyLight;
        d.bindingColour = QColor(36, 14, 4);
        d.seed = viola ? 12 : 11;
    } else if (key == QLatin1String("Cello")) {
        d.head = 200;
        d.neck = 280;
        d.body = 755;
        d.endpin = 230;
        d.outline = scaled(violinOutline(0.006), d.body);
        d.scale = 690;
        d.nutWidth = 33;
        d.heelWidth = 50;
        d.boardEnd = 580;
        d.strings = 4;
        d.bridgeSpread = 60;
        d.gauges = { 7.0, 6.0, 5.0, 4.2 };
        d.stringKind = Strings::Bowed;
        d.top = Top::Varnished;
        d.hole = Hole::FHoles;
        d.headKind = Head::Scroll;
        d.tail = Tail::Tailpiece;
        d.topDark = QColor(64, 18, 4);
        d.topLight = QColor(172, 72, 24);
        d.neckDark = d.topDark;
        d.neckLight = d.topLight;
        d.boardDark = kEbonyDark;
        d.boardLight = kEbonyLight;
        d.bindingColour = QColor(36, 14, 4);
        d.seed = 13;
    } else if (key == QLatin1String("DoubleBass")) {
        d.head = 300;
        d.neck = 420;
        d.body = 1110;
        d.endpin = 240;
        // Sloping shoulders, the viol's heritage.
        d.outline
            = scaled({ { 0, 0 }, { 0.012, 0.06 }, { 0.06, 0.11 }, { 0.16, 0.175 }, { 0.26, 0.215 },
                         { 0.33, 0.214, true }, { 0.37, 0.176 }, { 0.46, 0.162 }, { 0.56, 0.176 }, { 0.6, 0.232, true },
                         { 0.7, 0.285 }, { 0.8, 0.3 }, { 0.9, 0.272 }, { 0.96, 0.19 }, { 0.99, 0.08 }, { 1, 0 } },
                d.body);
        d.scale = 1060;
        d.nutWidth = 44;
        d.heelWidth = 66;
        d.boardEnd = 880;
        d.strings = 4;
        d.bridgeSpread = 90;
        d.gauges = { 8.0, 7.0, 6.0, 5.0 };
        d.stringKind = Strings::Bowed;
        d.top = Top::Varnished;
        d.hole = Hole::FHoles;
        d.headKind = Head::ScrollMachines;
        d.tail = Tail::Tailpiece;
        d.topDark = QColor(56, 26, 10);
        d.topLight = QColor(150, 82, 36);
        d.neckDark = d.topDark;
        d.neckLight = d.topLight;
        d.boardDark = kEbonyDark;
        d.boardLight = kEbonyLight;
        d.bindingColour = QColor(30, 14, 6);
        d.seed = 14;
    } else if (key == QLatin1String("Guitar")) {
        d.head = 190;
        d.scale = 645;
        d.neck = d.fretY(14) - d.head;
        d.body = 505;
        d.outline = { { 0, 0 }, { 0.01, 42 }, { 0.04, 92 }, { 0.1, 126 }, { 0.19, 142 }, { 0.28, 137 }, { 0.38, 121 },
            { 0.45, 116 }, { 0.53, 128 }, { 0.65, 170 }, { 0.78, 194 }, { 0.88, 186 }, { 0.95, 150 }, { 0.99, 80 },
            { 1, 0 } };
        d.nutWidth = 43;
        d.heelWidth = 56;
        d.boardEnd = d.fretY(20) - d.head + 8;
        d.strings = 6;
        d.bridgeSpread = 54;
        d.gauges = { 5.6, 5.0, 4.4, 3.8, 3.0, 2.6 };
        d.frets = 20;
        d.inlays = { 3, 5, 7, 9, 12, 15, 17, 19 };
        d.hole = Hole::Round;
        d.holeDown = 0.2;
        d.holeRadius = 50;
        d.pickguard = true;
        d.topDark = QColor(186, 134, 74);
        d.topLight = QColor(242, 206, 148);
        d.neckDark = QColor(30, 16, 10);
        d.neckLight = QColor(86, 48, 28);
        d.boardDark = kRosewoodDark;
        d.boardLight = kRosewoodLight;
        d.seed = 21;
    } else if (key == QLatin1String("BassGuitar")) {
        d.head = 200;
        d.scale = 864;
        d.neck = d.fretY(20) - d.head + 12;
        // A double cutaway, drawn on its own (bassBodyPath): its horns reach
        // up beside the neck.
        d.body = 375;
        d.nutWidth = 42;
        d.heelWidth = 62;
        d.boardEnd = d.neck + 4;
        d.strings = 4;
        d.bridgeSpread = 62;
        d.gauges = { 7.0, 6.2, 5.4, 4.6 };
        d.frets = 20;
        d.inlays = { 3, 5, 7, 9, 12, 15, 17, 19 };
        // A cream lacquer, the grain faint under it.
        d.top = Top::Lacquer;
        d.hole = Hole::Pickups;
        d.headKind = Head::Inline;
        d.pickguard = true;
        d.topDark = QColor(206, 192, 160);
        d.topLight = QColor(236, 228, 204);
        d.neckDark = QColor(190, 140, 80);
        d.neckLight = QColor(238, 208, 156);
        d.boardDark = kRosewoodDark;
        d.boardLight = kRosewoodLight;
        d.bindingColour = QColor(20, 12, 8);
        d.seed = 22;
    } else if (key == QLatin1String("Ukulele")) {
        d.head = 110;
        d.scale = 346;
        d.neck = d.fretY(12) - d.head;
        d.body = 240;
        d.outline = { { 0, 0 }, { 0.02, 34 }, { 0.07, 58 }, { 0.16, 70 }, { 0.27, 66 }, { 0.42, 56 }, { 0.55, 64 },
            { 0.7, 80 }, { 0.82, 83 }, { 0.92, 72 }, { 0.98, 40 }, { 1, 0 } };
        d.nutWidth = 35;
        d.heelWidth = 44;
        d.boardEnd = d.fretY(17) - d.head + 4;
        d.strings = 4;
        d.bridgeSpread = 42;
        d.gauges = { 4.2, 5.2, 4.6, 3.8 };
        d.stringKind = Strings::Nylon;
        d.frets = 17;
        d.inlays = { 5, 7, 10, 12, 15 };
        d.hole = Hole::Round;
        d.holeDown = 0.3;
        d.holeRadius = 25;
        d.topDark = QColor(112, 54, 20);
        d.topLight = QColor(206, 132, 62);
        d.neckDark = QColor(100, 50, 20);
        d.neckLight = QColor(180, 110, 56);
        d.boardDark = kRosewoodDark;
        d.boardLight = kRosewoodLight;
        d.spruce = false;
        d.seed = 23;
    } else if (key == QLatin1String("Banjo")) {
        d.head = 180;
        d.scale = 670;
        d.neck = d.fretY(22) - d.head + 10;
        d.body = 300;
        d.outline = { { 0, 0 }, { 0.03, 51 }, { 0.1, 90 }, { 0.2, 120 }, { 0.33, 141 }, { 0.5, 150 }, { 0.67, 141 },
            { 0.8, 120 }, { 0.9, 90 }, { 0.97, 51 }, { 1, 0 } };
        d.nutWidth = 32;
        d.heelWidth = 40;
        d.boardEnd = d.neck + 20;
        d.strings = 5;
        d.bridgeSpread = 46;
        d.gauges = { 3.0, 4.6, 3.8, 3.2, 2.8 };
        d.frets = 22;
        d.inlays = { 3, 5, 7, 10, 12, 15, 17, 19, 22 };
        d.top = Top::Drum;
        d.headKind = Head::Sides;
        d.tail = Tail::Trapeze;
        d.fifthStringFret = 5;
        d.topDark = QColor(206, 196, 172);
        d.topLight = QColor(248, 244, 232);
        d.neckDark = QColor(70, 36, 18);
        d.neckLight = QColor(150, 88, 48);
        d.boardDark = QColor(28, 16, 12);
        d.boardLight = QColor(92, 52, 34);
        d.seed = 24;
    } else if (key == QLatin1String("Mandolin")) {
        d.head = 150;
        d.scale = 350;
        d.neck = d.fretY(12) - d.head;
        d.body = 330;
        // A teardrop, narrow at the neck.
        d.outline = { { 0, 0 }, { 0.015, 28 }, { 0.08, 58 }, { 0.2, 88 }, { 0.38, 116 }, { 0.58, 128 }, { 0.76, 120 },
            { 0.9, 92 }, { 0.97, 52 }, { 1, 0 } };
        d.nutWidth = 30;
        d.heelWidth = 40;
        d.boardEnd = d.fretY(20) - d.head;
        d.strings = 4;
        d.doubled = true;
        d.bridgeSpread = 42;
        d.gauges = { 3.8, 3.2, 2.8, 2.4 };
        d.frets = 20;
        d.inlays = { 3, 5, 7, 10, 12, 15 };
        d.top = Top::Sunburst;
        d.hole = Hole::Round;
        d.holeDown = 0.36;
        d.holeRadius = 30;
        d.tail = Tail::Trapeze;
        d.pickguard = true;
        d.topDark = QColor(120, 44, 12);
        d.topLight = QColor(236, 160, 74);
        d.neckDark = QColor(24, 14, 10);
        d.neckLight = QColor(70, 40, 26);
        d.boardDark = kRosewoodDark;
        d.boardLight = kRosewoodLight;
        d.seed = 25;
    } else if (key == QLatin1String("Balalaika")) {
        d.head = 130;
        d.scale = 440;
        d.neck = d.fretY(12) - d.head;
        d.body = 330;
        // Three corners: straight, slightly bellied sides from the neck to
        // the wide bottom.
        d.outline = { { 0, 0 }, { 0.006, 26, true }, { 0.3, 92 }, { 0.6, 158 }, { 0.9, 210 }, { 0.965, 216, true },
            { 0.99, 150 }, { 1, 0 } };
        d.nutWidth = 28;
        d.heelWidth = 38;
        d.boardEnd = d.fretY(16) - d.head;
        d.strings = 3;
        d.bridgeSpread = 34;
        d.gauges = { 4.0, 4.0, 3.0 };
        d.stringKind = Strings::Nylon;
        d.frets = 16;
        d.inlays = { 5, 7, 10, 12 };
        d.hole = Hole::Small;
        d.holeDown = 0.3;
        d.holeRadius = 18;
        d.tail = Tail::Button;
        d.pickguard = true;
        d.topDark = QColor(200, 150, 88);
        d.topLight = QColor(246, 214, 160);
        d.neckDark = QColor(110, 48, 16);
        d.neckLight = QColor(196, 112, 52);
        d.boardDark = QColor(26, 14, 10);
        d.boardLight = QColor(84, 46, 30);
        d.bindingColour = QColor(60, 28, 12);
        d.seed = 26;
    } else if (key == QLatin1String("Dombra")) {
        d.head = 150;
        d.scale = 720;
        d.neck = d.fretY(12) - d.head + 80;
        d.body = 420;
        // A pear: a long, narrow shoulder into a round belly.
        d.outline = { { 0, 0 }, { 0.02, 24 }, { 0.12, 52 }, { 0.3, 92 }, { 0.5, 128 }, { 0.68, 142 }, { 0.82, 134 },
            { 0.93, 100 }, { 0.985, 48 }, { 1, 0 } };
        d.nutWidth = 30;
        d.heelWidth = 40;
        d.boardEnd = d.neck + 30;
        d.strings = 2;
        d.bridgeSpread = 22;
        d.gauges = { 4.6, 3.8 };
        d.stringKind = Strings::Nylon;
        d.frets = 19;
        d.hole = Hole::Small;
        d.holeDown = 0.28;
        d.holeRadius = 10;
        d.tail = Tail::Button;
        d.topDark = QColor(150, 94, 46);
        d.topLight = QColor(226, 176, 110);
        d.neckDark = QColor(96, 44, 16);
        d.neckLight = QColor(176, 96, 44);
        d.boardDark = d.neckDark;
        d.boardLight = d.neckLight;
        d.bindingColour = QColor(60, 26, 10);
        d.spruce = false;
        d.seed = 27;
    }
    return d;
}

// The body's outline through its bouts, mirrored about x = 0; the
// neighbour beyond an end is the mirrored point, so the ends run across
// smoothly, and a sharp point keeps its corner.
QPainterPath bassBodyPath(const Design& d)
{
    const double y = d.bodyTop();
    QPainterPath path(QPointF(-32, y + 10));
    path.cubicTo(-60, y + 20, -70, y - 40, -85, y - 95);
    path.cubicTo(-95, y - 125, -140, y - 110, -150, y - 60);
    path.cubicTo(-160, y, -130, y + 60, -130, y + 110);
    path.cubicTo(-130, y + 170, -175, y + 220, -170, y + 290);
    path.cubicTo(-165, y + 370, -60, y + 378, 0, y + 375);
    path.cubicTo(60, y + 378, 165, y + 370, 168, y + 290);
    path.cubicTo(172, y + 220, 135, y + 170, 135, y + 110);
    path.cubicTo(135, y + 60, 150, y + 10, 140, y - 30);
    path.cubicTo(132, y - 65, 100, y - 70, 90, y - 40);
    path.cubicTo(75, y - 5, 60, y + 20, 32, y + 10);
    path.closeSubpath();
    return path;
}

QPainterPath bodyPath(const Design& d)
{
    if (d.headKind == Head::Inline)
        return bassBodyPath(d);
    QVector<QPointF> right;
    QVector<bool> sharp;
    for (const Bout& bout : d.outline) {
        right.append(QPointF(bout.half, d.bodyTop() + bout.down * d.body));
        sharp.append(bout.sharp);
    }
    QVector<QPointF> points = right;
    QVector<bool> corners = sharp;
    for (int i = right.size() - 2; i >= 1; --i) {
        points.append(QPointF(-right[i].x(), right[i].y()));
        corners.append(sharp[i]);
    }
    const int n = points.size();
    auto at = [&](int i) { return points[(i + n) % n]; };
    auto tangentOut = [&](int i) {
        if (corners[(i + n) % n])
            return (at(i + 1) - at(i)) * 0.5;
        return (at(i + 1) - at(i - 1)) * 0.5;
    };
    auto tangentIn = [&](int i) {
        if (corners[(i + n) % n])
            return (at(i) - at(i - 1)) * 0.5;
        return (at(i + 1) - at(i - 1)) * 0.5;
    };
    QPainterPath path(points[0]);
    for (int i = 0; i < n; ++i)
        path.cubicTo(at(i) + tangentOut(i) / 3.0, at(i + 1) - tangentIn(i + 1) / 3.0, at(i + 1));
    path.closeSubpath();
    return path;
}

double halfWidthAt(const Design& d, double y)
{
    const double down = (y - d.bodyTop()) / d.body;
    for (int i = 1; i < d.outline.size(); ++i) {
        if (down <= d.outline[i].down) {
            const Bout& a = d.outline[i - 1];
            const Bout& b = d.outline[i];
            const double t = (down - a.down) / qMax(1e-9, b.down - a.down);
            return a.half + (b.half - a.half) * t;
        }
    }
    return 0;
}

// Fills a shape with wood whose grain runs down the rectangle. The texture
// is made at the size the rectangle takes in the picture.
// Spruce, as the tops are cut: fine, straight, dark lines of late wood,
// closer towards the middle of the log, with a faint silk across them. The
// grain runs along the width, as WoodArt's does.
QImage spruceTexture(const QSize& size, const QColor& dark, const QColor& light, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int v = 0; v < size.height(); ++v) {
        QRgb* line = reinterpret_cast<QRgb*>(image.scanLine(v));
        const double across = double(v) / size.height();
        // Narrow rings at the middle of the top, wider at its edges.
        const double rings = 34.0 * across + 10.0 * std::pow(std::abs(across - 0.5), 1.6) * 2.0;
        for (int u = 0; u < size.width(); ++u) {
            const double wave = 0.35 * WoodArt::valueNoise(u * 0.004, v * 0.02, seed + 1);
            const double phase = rings * 3.0 + wave;
            const double ring = phase - std::floor(phase);
            const double lateWood = std::pow(qBound(0.0, (ring - 0.78) / 0.22, 1.0), 1.5);
            const double tone = WoodArt::fbm(u * 0.003, v * 0.03, seed + 2);
            const double silk = WoodArt::valueNoise(u * 0.08, v * 0.006, seed + 3);
            const double t = 0.7 - 0.55 * lateWood - 0.6 * (tone - 0.5);
            line[u] = WoodArt::mix(dark, light, t, 0.96 + 0.06 * silk);
        }
    }
    return image;
}

enum class Grain
{
    Wood, // WoodArt's hardwood
    Spruce,
};

void fillWood(QPainter& painter, const QPainterPath& shape, const QRectF& rect, const QColor& dark, const QColor& light,
    int seed, Grain grain = Grain::Wood)
{
    const QRectF onPicture = painter.transform().mapRect(rect);
    const QSize size(qBound(64, int(onPicture.height()), 1400), qBound(32, int(onPicture.width()), 900));
    const QImage texture = grain == Grain::Spruce ? spruceTexture(size, dark, light, seed)
                                                  : WoodArt::woodTexture(size, dark, light, seed);
    const QPolygonF flat(
        { QPointF(0, 0), QPointF(size.width(), 0), QPointF(size.width(), size.height()), QPointF(0, size.height()) });
    const QPolygonF quad({ rect.topLeft(), rect.bottomLeft(), rect.bottomRight(), rect.topRight() });
    QTransform transform;
    if (!QTransform::quadToQuad(flat, quad, transform))
        return;
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.setTransform(transform, true);
    painter.drawImage(QPointF(0, 0), texture);
    painter.restore();
}

// Darkens a shape towards its edge, as a rounded or arched surface turns
// away from the light, and lays a soft light on it from the upper left.
void shade(QPainter& painter, const QPainterPath& shape, double depth, int strength)
{
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.setBrush(Qt::NoBrush);
    for (int i = 8; i >= 1; --i) {
        painter.setPen(QPen(QColor(10, 4, 0, strength), depth * i / 4.0));
        painter.drawPath(shape);
    }
    const QRectF box = shape.boundingRect();
    QLinearGradient light(box.topLeft(), box.bottomRight());
    light.setColorAt(0.0, QColor(255, 236, 200, 40));
    light.setColorAt(0.5, QColor(255, 236, 200, 0));
    light.setColorAt(1.0, QColor(0, 0, 0, 70));
    painter.fillPath(shape, light);
    painter.restore();
}

// A soft reflection of the light on the varnish.
void gloss(QPainter& painter, const QPainterPath& clip, const QPointF& centre, double rx, double ry, int alpha)
{
    painter.save();
    painter.setClipPath(clip, Qt::IntersectClip);
    painter.translate(centre);
    painter.scale(1.0, ry / rx);
    QRadialGradient spot(QPointF(0, 0), rx);
    spot.setColorAt(0.0, QColor(255, 246, 226, alpha));
    spot.setColorAt(0.45, QColor(255, 240, 210, alpha / 3));
    spot.setColorAt(1.0, QColor(255, 240, 210, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(spot);
    painter.drawEllipse(QPointF(0, 0), rx, rx);
    painter.restore();
}

QBrush metal(const QPointF& from, const QPointF& to)
{
    QLinearGradient chrome(from, to);
    chrome.setColorAt(0.0, QColor(90, 92, 98));
    chrome.setColorAt(0.35, QColor(245, 246, 250));
    chrome.setColorAt(0.6, QColor(170, 172, 180));
    chrome.setColorAt(1.0, QColor(70, 72, 78));
    return chrome;
}

// A round, shining knob or button of a tuner.
void drawKnob(QPainter& painter, const QPointF& centre, double rx, double ry, bool wooden, const QColor& wood)
{
    painter.setPen(QPen(QColor(0, 0, 0, 160), 0.6));
    QRadialGradient knob(centre - QPointF(rx * 0.35, ry * 0.35), qMax(rx, ry) * 1.4);
    if (wooden) {
        knob.setColorAt(0.0, wood.lighter(170));
        knob.setColorAt(0.5, wood);
        knob.setColorAt(1.0, wood.darker(300));
    } else {
        knob.setColorAt(0.0, QColor(255, 255, 255));
        knob.setColorAt(0.45, QColor(176, 178, 186));
        knob.setColorAt(1.0, QColor(60, 62, 68));
    }
    painter.setBrush(knob);
    painter.drawEllipse(centre, rx, ry);
}

// The x of a string (0 = leftmost) at the nut and at the bridge; courses
// split in two.
double stringX(const Design& d, int string, double spread, double courseOffset)
{
    const double step = d.strings > 1 ? spread / (d.strings - 1) : 0;
    return -spread / 2 + string * step + courseOffset * step;
}

double nutSpread(const Design& d)
{
    return d.nutWidth * (d.strings > 2 ? 0.78 : 0.5);
}

void drawEndpin(QPainter& painter, const Design& d)
{
    if (d.endpin <= 0)
        return;
    const double y0 = d.bodyBottom() - 6;
    const double w = d.body * 0.02;
    if (d.endpin > 40) {
        // The spike, a steel rod out of a wooden collar.
        const double rod = w * 0.32;
        painter.setPen(Qt::NoPen);
        painter.setBrush(metal(QPointF(-rod, 0), QPointF(rod, 0)));
        QPainterPath spike;
        spike.moveTo(-rod, y0);
        spike.lineTo(rod, y0);
        spike.lineTo(rod, d.bodyBottom() + d.endpin - rod * 3);
        spike.lineTo(0, d.bodyBottom() + d.endpin);
        spike.lineTo(-rod, d.bodyBottom() + d.endpin - rod * 3);
        spike.closeSubpath();
        painter.drawPath(spike);
    }
    QLinearGradient collar(QPointF(-w, 0), QPointF(w, 0));
    collar.setColorAt(0.0, QColor(10, 8, 8));
    collar.setColorAt(0.4, QColor(70, 62, 58));
    collar.setColorAt(1.0, QColor(8, 6, 6));
    painter.setBrush(collar);
    painter.drawRoundedRect(QRectF(-w, y0, 2 * w, qMin(d.endpin, w * 2.6)), w * 0.4, w * 0.4);
}

void drawRosette(QPainter& painter, const QPointF& centre, double radius, bool small)
{
    painter.setBrush(Qt::NoBrush);
    const double ring = radius * (small ? 0.18 : 0.07);
    for (int i = 4; i >= 1; --i) {
        painter.setPen(QPen(i % 2 ? QColor(50, 26, 14) : QColor(240, 226, 194), ring));
        painter.drawEllipse(centre, radius + i * ring * 1.3, radius + i * ring * 1.3);
    }
    if (small) {
        // A ring of inlaid dots around the small hole.
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 16; ++i) {
            const double angle = i * M_PI / 8;
            painter.setBrush(i % 2 ? QColor(120, 40, 20) : QColor(40, 70, 50));
            painter.drawEllipse(
                centre + QPointF(std::cos(angle), std::sin(angle)) * radius * 2.3, radius * 0.16, radius * 0.16);
        }
    }
    QRadialGradient hole(centre + QPointF(radius * 0.25, radius * 0.3), radius);
    hole.setColorAt(0.0, QColor(46, 30, 20));
    hole.setColorAt(1.0, QColor(6, 4, 3));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hole);
    painter.drawEllipse(centre, radius, radius);
}

// One f-hole: an upper and a lower eye joined by a slanting, waisted stem
// with the two notches at its middle; `side` is -1 on the left.
void drawFHole(QPainter& painter, const QPointF& centre, double length, int side)
{
    const QPointF upper = centre + QPointF(-side * length * 0.11, -length * 0.42);
    const QPointF lower = centre + QPointF(side * length * 0.1, length * 0.42);
    QPainterPath stem;
    stem.moveTo(upper);
    stem.cubicTo(centre + QPointF(side * length * 0.12, -length * 0.15),
        centre + QPointF(-side * length * 0.12, length * 0.15), lower);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 220, 170, 60), length * 0.05, Qt::SolidLine, Qt::RoundCap));
    painter.save();
    painter.translate(length * 0.012, length * 0.012);
    painter.drawPath(stem);
    painter.restore();
    painter.setPen(QPen(QColor(8, 4, 2), length * 0.038, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(stem);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(8, 4, 2));
    painter.drawEllipse(upper, length * 0.05, length * 0.05);
    painter.drawEllipse(lower, length * 0.062, length * 0.062);
    painter.setPen(QPen(QColor(8, 4, 2), length * 0.012));
    painter.drawLine(centre + QPointF(-length * 0.07, 0), centre + QPointF(length * 0.07, 0));
}

void drawBody(QPainter& painter, const Design& d, const QPainterPath& body)
{
    const QRectF box = body.boundingRect();
    const double width = box.width();
    if (d.top == Top::Drum) {
        // The rim in chrome, its hooks all round, the frosted head inside.
        const QPointF centre = box.center();
        const double radius = width / 2;
        QRadialGradient rim(centre, radius);
        rim.setColorAt(0.86, QColor(80, 82, 88));
        rim.setColorAt(0.93, QColor(236, 238, 244));
        rim.setColorAt(1.0, QColor(60, 62, 68));
        painter.setPen(Qt::NoPen);
        painter.setBrush(rim);
        painter.drawEllipse(centre, radius, radius);
        for (int i = 0; i < 24; ++i) {
            const double angle = i * M_PI / 12 + M_PI / 24;
            const QPointF at = centre + QPointF(std::cos(angle), std::sin(angle)) * radius * 0.95;
            drawKnob(painter, at, radius * 0.035, radius * 0.035, false, QColor());
        }
        QPainterPath head;
        head.addEllipse(centre, radius * 0.86, radius * 0.86);
        QRadialGradient skin(centre - QPointF(radius * 0.3, radius * 0.35), radius * 1.1);
        skin.setColorAt(0.0, d.topLight);
        skin.setColorAt(1.0, d.topDark);
        painter.setBrush(skin);
        painter.drawPath(head);
        painter.setPen(QPen(QColor(150, 140, 120, 50), 0.6));
        for (int i = 0; i < 3000; ++i) {
            const double u = WoodArt::hash(i, 3, 77) * 2 - 1;
            const double v = WoodArt::hash(i, 9, 77) * 2 - 1;
            if (u * u + v * v < 0.95)
                painter.drawPoint(centre + QPointF(u, v) * radius * 0.86);
        }
        shade(painter, head, radius * 0.03, 14);
        gloss(painter, head, centre - QPointF(radius * 0.3, radius * 0.35), radius * 0.4, radius * 0.3, 70);
        return;
    }

    if (d.top == Top::Lacquer) {
        QRadialGradient paint(box.center() - QPointF(width * 0.15, box.height() * 0.1), box.height() * 0.7);
        paint.setColorAt(0.0, d.topLight);
        paint.setColorAt(1.0, d.topDark);
        painter.fillPath(body, paint);
    } else {
        fillWood(painter, body, box, d.topDark, d.topLight, d.seed, d.spruce ? Grain::Spruce : Grain::Wood);
    }
    if (d.top == Top::Varnished) {
        // The varnish pools darker in the hollows beside the arching.
        QRadialGradient pool(box.center(), box.height() * 0.55);
        pool.setColorAt(0.0, QColor(0, 0, 0, 0));
        pool.setColorAt(0.7, QColor(60, 16, 2, 40));
        pool.setColorAt(1.0, QColor(40, 10, 0, 120));
        painter.fillPath(body, pool);
    }
    if (d.top == Top::Sunburst) {
        QRadialGradient burst(box.center() + QPointF(0, box.height() * 0.12), box.height() * 0.62);
        burst.setColorAt(0.0, QColor(0, 0, 0, 0));
        burst.setColorAt(0.55, QColor(30, 10, 2, 90));
        burst.setColorAt(0.85, QColor(16, 6, 2, 230));
        burst.setColorAt(1.0, QColor(8, 3, 1, 250));
        painter.fillPath(body, burst);
    }
    const bool arched = d.top == Top::Varnished;
    shade(painter, body, width * (arched ? 0.026 : 0.012), arched ? 22 : 14);

    // Varnish highlights on the bouts.
    const double upper = d.bodyTop() + d.body * 0.16;
    const double lower = d.bodyTop() + d.body * 0.75;
    gloss(painter, body, QPointF(-width * 0.14, upper), width * 0.16, d.body * 0.08, arched ? 90 : 60);
    gloss(painter, body, QPointF(-width * 0.16, lower), width * 0.22, d.body * 0.1, arched ? 80 : 50);
    gloss(painter, body, QPointF(width * 0.2, lower + d.body * 0.04), width * 0.08, d.body * 0.06, 40);

    // The edge: binding, or the violin's dark edge and purfling.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(d.bindingColour, width * (arched ? 0.012 : 0.008)));
    painter.drawPath(body);
    if (arched) {
        const QPointF middle = box.center();
        for (double inset : { 0.022, 0.03 }) {
            painter.save();
            painter.translate(middle);
            painter.scale(1.0 - 2 * inset, 1.0 - 2 * inset * width / box.height());
            painter.translate(-middle);
            painter.setPen(QPen(QColor(20, 8, 2, 200), width * 0.003));
            painter.drawPath(body);
            painter.restore();
        }
    }
}

void drawPickguard(QPainter& painter, const Design& d)
{
    QPainterPath guard;
    const double y = d.bodyTop();
    const QPointF hole(0, d.bodyTop() + d.body * d.holeDown);
    const double r = d.holeRadius;
    if (d.headKind == Head::Inline) {
        // The bass guitar's tortoise-shell guard around the neck's end and
        // down the bass side, its bevel showing a white layer.
        guard.moveTo(-40, y - 12);
        guard.cubicTo(-80, y - 20, -112, y, -114, y + 60);
        guard.cubicTo(-118, y + 130, -110, y + 200, -90, y + 235);
        guard.cubicTo(-60, y + 262, -30, y + 250, 0, y + 215);
        guard.cubicTo(40, y + 170, 100, y + 150, 104, y + 96);
        guard.cubicTo(108, y + 40, 90, y + 4, 40, y - 12);
        guard.closeSubpath();
    } else if (d.hole == Hole::Small) {
        // The balalaika's shield below the hole, under the strings.
        guard.addEllipse(QPointF(0, hole.y() + r * 4.2), r * 2.6, r * 1.8);
    } else {
        // A guard beside the hole, on the treble side below it, its inner
        // edge following the rosette.
        const double ring = r * 1.36;
        auto around = [&](double degrees) {
            return hole + QPointF(std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees))) * ring;
        };
        guard.moveTo(around(-20));
        guard.cubicTo(
            hole + QPointF(r * 2.2, -r * 0.6), hole + QPointF(r * 2.7, r * 1.3), hole + QPointF(r * 1.9, r * 2.3));
        guard.cubicTo(hole + QPointF(r * 1.3, r * 2.9), hole + QPointF(r * 0.5, r * 2.2), around(85));
        guard.arcTo(QRectF(hole.x() - ring, hole.y() - ring, 2 * ring, 2 * ring), -85, 105);
        guard.closeSubpath();
    }
    const QRectF box = guard.boundingRect();
    QImage shell(QSize(64, 64), QImage::Format_ARGB32_Premultiplied);
    for (int v = 0; v < shell.height(); ++v) {
        for (int u = 0; u < shell.width(); ++u) {
            const double t = WoodArt::fbm(u * 0.09, v * 0.09, d.seed + 50);
            shell.setPixel(u, v, WoodArt::mix(QColor(30, 10, 4), QColor(170, 80, 24), (t - 0.3) * 2.0, 1.0));
        }
    }
    painter.save();
    painter.setClipPath(guard, Qt::IntersectClip);
    painter.drawImage(box, shell);
    painter.restore();
    painter.setPen(QPen(d.headKind == Head::Inline ? QColor(240, 236, 226) : QColor(20, 8, 2, 180),
        d.headKind == Head::Inline ? 2.4 : 1.0));
    painter.setBrush(QColor(255, 230, 200, 30));
    painter.drawPath(guard);
    gloss(painter, guard, box.center() - QPointF(box.width() * 0.2, box.height() * 0.2), box.width() * 0.3,
        box.height() * 0.2, 50);
}

void drawPickups(QPainter& painter, const Design& d)
{
    // The split pickup: two halves, offset, two poles per string.
    const double y = d.bodyTop() + 150;
    for (int half = 0; half < 2; ++half) {
        const double x0 = half ? 0.0 : -d.bridgeSpread * 0.62;
        const double yy = y + (half ? 16 : -16);
        const QRectF pickup(x0 - 8, yy - 15, d.bridgeSpread * 0.62 + 16, 30);
        painter.setPen(QPen(QColor(70, 70, 74), 1.2));
        painter.setBrush(QColor(18, 18, 20));
        painter.drawRoundedRect(pickup, 8, 8);
        for (int string = half * 2; string < half * 2 + 2; ++string) {
            const double x = stringX(d, string, d.bridgeSpread * 0.9, 0);
            drawKnob(painter, QPointF(x - 5, yy), 2.6, 2.6, false, QColor());
            drawKnob(painter, QPointF(x + 5, yy), 2.6, 2.6, false, QColor());
        }
    }
    // The chrome control plate with its two knobs.
    const QPointF plate(108, d.bodyTop() + 318);
    painter.save();
    painter.translate(plate);
    painter.rotate(-30);
    painter.setPen(Qt::NoPen);
    painter.setBrush(metal(QPointF(-20, -60), QPointF(20, 60)));
    painter.drawRoundedRect(QRectF(-16, -46, 32, 92), 16, 16);
    painter.restore();
    for (int i = 0; i < 2; ++i) {
        const QPointF knob = plate + QPointF(std::sin(M_PI / 6) * (i ? 24 : -24), -std::cos(M_PI / 6) * (i ? 24 : -24));
        painter.setBrush(QColor(0, 0, 0, 110));
        painter.drawEllipse(knob + QPointF(2, 3), 12, 12);
        drawKnob(painter, knob, 10, 10, false, QColor());
    }
}

void drawNeck(QPainter& painter, const Design& d)
{
    const double top = d.nutY();
    const double end = d.nutY() + d.boardEnd;
    const double wTop = d.nutWidth;
    const double wEnd = d.boardWidth(end);
    QPainterPath board;
    board.moveTo(-wTop / 2, top);
    board.lineTo(wTop / 2, top);
    board.lineTo(wEnd / 2, end);
    if (d.top == Top::Varnished) {
        // The violin family's board ends in a gentle curve.
        board.quadTo(0, end + wEnd * 0.08, -wEnd / 2, end);
    } else {
        board.lineTo(-wEnd / 2, end);
    }
    board.closeSubpath();

    // The neck under the board shows at its sides, rounded, with its shadow.
    QPainterPath neck;
    neck.addRect(QRectF(-d.heelWidth * 0.56, top, d.heelWidth * 1.12, d.bodyTop() - top + 4));
    if (d.top == Top::Drum || d.headKind == Head::Inline) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 90));
        painter.drawPath(board.translated(3, 4));
    } else {
        QPainterPath heel;
        heel.moveTo(-wTop / 2 - 2, top);
        heel.lineTo(wTop / 2 + 2, top);
        heel.lineTo(d.heelWidth / 2 + 3, d.bodyTop() + 6);
        heel.lineTo(-d.heelWidth / 2 - 3, d.bodyTop() + 6);
        heel.closeSubpath();
        fillWood(painter, heel, heel.boundingRect(), d.neckDark, d.neckLight, d.seed + 3);
        shade(painter, heel, d.heelWidth * 0.06, 30);
    }
    fillWood(painter, board, board.boundingRect(), d.boardDark, d.boardLight, d.seed + 5);
    QLinearGradient across(QPointF(-wEnd / 2, 0), QPointF(wEnd / 2, 0));
    across.setColorAt(0.0, QColor(0, 0, 0, 110));
    across.setColorAt(0.3, QColor(255, 255, 255, 18));
    across.setColorAt(0.55, QColor(0, 0, 0, 0));
    across.setColorAt(1.0, QColor(0, 0, 0, 120));
    painter.fillPath(board, across);
    painter.setPen(QPen(QColor(0, 0, 0, 140), 0.8));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(board);

    // Inlays between the frets, then the fret wires.
    for (int fret : d.inlays) {
        const double y = (d.fretY(fret - 1) + d.fretY(fret)) / 2;
        if (y > end)
            continue;
        const double cell = d.fretY(fret) - d.fretY(fret - 1);
        const double r = qMin(d.boardWidth(y) * 0.1, cell * 0.22);
        if (fret == 12) {
            WoodArt::drawPearl(painter, QPointF(-d.boardWidth(y) * 0.22, y), r, fret);
            WoodArt::drawPearl(painter, QPointF(d.boardWidth(y) * 0.22, y), r, fret + 1);
        } else {
            WoodArt::drawPearl(painter, QPointF(0, y), r, fret);
        }
    }
    for (int fret = 1; fret <= d.frets; ++fret) {
        const double y = d.fretY(fret);
        if (y > end - 2)
            break;
        const double w = d.boardWidth(y) / 2;
        const double h = qMax(1.0, d.scale * 0.0022);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 120));
        painter.drawRect(QRectF(-w, y + h * 0.5, 2 * w, h * 1.2));
        painter.setBrush(metal(QPointF(0, y - h / 2), QPointF(0, y + h / 2)));
        painter.drawRoundedRect(QRectF(-w, y - h / 2, 2 * w, h), h / 2, h / 2);
    }

    // The nut: bone, or ebony on the bowed instruments.
    const double nutH = d.nutWidth * 0.12;
    const bool ebony = d.stringKind == Strings::Bowed;
    QLinearGradient nut(QPointF(0, top - nutH), QPointF(0, top + nutH / 2));
    nut.setColorAt(0.0, ebony ? QColor(20, 18, 16) : QColor(200, 188, 160));
    nut.setColorAt(0.5, ebony ? QColor(80, 72, 66) : QColor(250, 246, 232));
    nut.setColorAt(1.0, ebony ? QColor(6, 6, 6) : QColor(150, 136, 110));
    painter.setPen(QPen(QColor(40, 30, 20), 0.5));
    painter.setBrush(nut);
    painter.drawRoundedRect(QRectF(-wTop / 2 - 0.5, top - nutH, wTop + 1, nutH * 1.5), nutH * 0.4, nutH * 0.4);
}

// Where each string is anchored on the head, the peg's or post's point.
QVector<QPointF> anchors(const Design& d)
{
    QVector<QPointF> points;
    const double head = d.head;
    const int n = d.strings;
    if (d.headKind == Head::Scroll || d.headKind == Head::ScrollMachines) {
        // Pegs from low to high alternate between the sides, top to bottom.
        const double box0 = d.head * 0.42;
        const double step = (d.nutY() - box0 - d.head * 0.1) / n;
        const int order[] = { 1, 2, 0, 3 };
        for (int i = 0; i < n; ++i)
            points.append(QPointF(0, box0 + step * (order[i] + 0.5)));
        return points;
    }
    if (d.headKind == Head::Inline) {
        for (int i = 0; i < n; ++i)
            points.append(QPointF(-d.nutWidth * 0.4, d.nutY() - head * 0.2 - i * head * 0.2));
        return points;
    }
    // Sides: the lower strings on the left, upwards from the nut.
    const int playing = d.fifthStringFret > 0 ? n - 1 : n;
    const int left = (playing + 1) / 2;
    const double spread = d.nutWidth * 0.46;
    for (int i = 0; i < n; ++i) {
        if (d.fifthStringFret > 0 && i == 0) {
            points.append(QPointF(-d.boardWidth(d.fretY(d.fifthStringFret)) / 2 - 4, d.fretY(d.fifthStringFret)));
            continue;
        }
        const int k = d.fifthStringFret > 0 ? i - 1 : i;
        const bool onLeft = k < left;
        const int place = onLeft ? left - 1 - k : k - left;
        const int rows = qMax(left, playing - left);
        const double y = d.nutY() - head * 0.2 - place * head * 0.62 / qMax(1, rows);
        points.append(QPointF(onLeft ? -spread : spread, y));
    }
    return points;
}

void drawHead(QPainter& painter, const Design& d)
{
    const double nut = d.nutY();
    const double w = d.nutWidth;
    const QVector<QPointF> posts = anchors(d);
    if (d.headKind == Head::Scroll || d.headKind == Head::ScrollMachines) {
        // Pegbox, open to the front, then the scroll's turns seen from the front.
        const double boxTop = d.head * 0.36;
        QPainterPath box;
        box.moveTo(-w * 0.55, nut);
        box.lineTo(w * 0.55, nut);
        box.lineTo(w * 0.45, boxTop);
        box.lineTo(-w * 0.45, boxTop);
        box.closeSubpath();
        QPainterPath scroll;
        scroll.addEllipse(QPointF(0, d.head * 0.2), w * 0.9, d.head * 0.2);
        QPainterPath wood = box.united(scroll);
        // Pegs or machines out to either side first, under the box.
        for (int i = 0; i < posts.size(); ++i) {
            const int side = (i == 0 || i == 1) ? -1 : 1;
            const double y = posts[i].y();
            if (d.headKind == Head::ScrollMachines) {
                const double plate = w * 0.52;
                painter.setPen(Qt::NoPen);
                painter.setBrush(metal(QPointF(0, y - 8), QPointF(0, y + 8)));
                painter.drawRect(QRectF(side < 0 ? -plate - w * 0.8 : plate, y - 5, w * 0.8, 10));
                drawKnob(painter, QPointF(side * (plate + w * 0.5), y), w * 0.22, w * 0.22, false, QColor());
                drawKnob(painter, QPointF(side * (plate + w * 1.1), y), w * 0.42, w * 0.24, true, QColor(150, 110, 60));
            } else {
                const double out = w * 1.5;
                QLinearGradient shaft(QPointF(0, y - 4), QPointF(0, y + 4));
                shaft.setColorAt(0.0, QColor(12, 10, 10));
                shaft.setColorAt(0.4, QColor(90, 80, 74));
                shaft.setColorAt(1.0, QColor(8, 6, 6));
                painter.setPen(Qt::NoPen);
                painter.setBrush(shaft);
                painter.drawRect(QRectF(side < 0 ? -out : w * 0.3, y - w * 0.08, out - w * 0.3, w * 0.16));
                drawKnob(painter, QPointF(side * out, y), w * 0.55, w * 0.34, true, QColor(40, 30, 26));
                painter.setBrush(QColor(236, 226, 204));
                painter.drawEllipse(QPointF(side * (out - w * 0.55), y), w * 0.08, w * 0.08);
            }
        }
        fillWood(painter, wood, wood.boundingRect(), d.neckDark, d.neckLight, d.seed + 7);
        shade(painter, wood, w * 0.05, 30);
        // The hollow of the box.
        QPainterPath hollow;
        hollow.moveTo(-w * 0.36, nut - w * 0.1);
        hollow.lineTo(w * 0.36, nut - w * 0.1);
        hollow.lineTo(w * 0.28, boxTop + w * 0.2);
        hollow.quadTo(0, boxTop, -w * 0.28, boxTop + w * 0.2);
        hollow.closeSubpath();
        QLinearGradient dark(QPointF(0, boxTop), QPointF(0, nut));
        dark.setColorAt(0.0, QColor(6, 3, 2));
        dark.setColorAt(1.0, QColor(40, 18, 8));
        painter.setPen(Qt::NoPen);
        painter.fillPath(hollow, dark);
        // The turns of the scroll: the spiral's edges seen from the front.
        painter.setBrush(Qt::NoBrush);
        for (int turn = 0; turn < 3; ++turn) {
            const double r = w * (0.66 - turn * 0.18);
            painter.setPen(QPen(QColor(20, 8, 2, 200), w * 0.04));
            const QRectF left(QPointF(-r * 1.1, d.head * 0.2 - r * 0.9), QSizeF(r * 1.1, r * 1.8));
            painter.drawArc(left, 90 * 16, 180 * 16);
            painter.drawArc(left.translated(r * 1.1, 0), -90 * 16, 180 * 16);
        }
        gloss(painter, scroll, QPointF(-w * 0.3, d.head * 0.16), w * 0.5, d.head * 0.1, 90);
        return;
    }

    QPainterPath plate;
    if (d.headKind == Head::Inline) {
        // A large paddle swept to the right, its tuners along the left edge.
        plate.moveTo(-w * 0.5, nut);
        plate.cubicTo(-w * 0.8, nut - d.head * 0.3, -w * 0.8, nut - d.head * 0.8, -w * 0.55, nut - d.head * 0.97);
        plate.cubicTo(-w * 0.2, nut - d.head * 1.04, w * 0.9, nut - d.head * 1.0, w * 1.2, nut - d.head * 0.86);
        plate.cubicTo(w * 1.45, nut - d.head * 0.72, w * 0.55, nut - d.head * 0.55, w * 0.5, nut - d.head * 0.22);
        plate.lineTo(w * 0.5, nut);
        plate.closeSubpath();
    } else {
        // Flared towards the top, with a crowned end.
        const double top = nut - d.head;
        const double flare = d.fifthStringFret > 0 ? 0.85 : (d.doubled ? 0.8 : 0.72);
        plate.moveTo(-w * 0.5, nut);
        plate.lineTo(-w * flare, top + d.head * 0.12);
        plate.quadTo(-w * 0.4, top - d.head * 0.02, 0, top + d.head * 0.06);
        plate.quadTo(w * 0.4, top - d.head * 0.02, w * flare, top + d.head * 0.12);
        plate.lineTo(w * 0.5, nut);
        plate.closeSubpath();
    }
    // Tuner keys out at the sides, under the plate.
    for (int i = 0; i < posts.size(); ++i) {
        const QPointF post = posts[i];
        if (d.fifthStringFret > 0 && i == 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(metal(post - QPointF(0, 4), post + QPointF(0, 4)));
            painter.drawRect(QRectF(post.x() - w * 0.5, post.y() - 2, w * 0.5, 4));
            drawKnob(painter, post - QPointF(w * 0.55, 0), w * 0.2, w * 0.13, false, QColor());
            continue;
        }
        const int side = post.x() < 0 ? -1 : 1;
        const double edge = d.headKind == Head::Inline ? -w * 0.72 : side * w * 0.72;
        const double out = edge + side * w * (d.headKind == Head::Inline ? 0.5 : 0.42);
        painter.setPen(Qt::NoPen);
        painter.setBrush(metal(post - QPointF(0, 4), post + QPointF(0, 4)));
        painter.drawRect(
            QRectF(QPointF(qMin(edge, out), post.y() - w * 0.045), QPointF(qMax(edge, out), post.y() + w * 0.045)));
        // The dombra's two pegs are turned wood, every other key metal.
        const bool wooden = d.strings == 2;
        const double size = d.headKind == Head::Inline ? 0.3 : 0.2;
        drawKnob(painter, QPointF(out, post.y()), w * size, w * size * 0.62, wooden, QColor(220, 200, 170));
        if (d.doubled) {
            // The mandolin's second post of a course sits beside the first.
            drawKnob(painter, QPointF(out, post.y() + d.head * 0.08), w * size, w * size * 0.62, false, QColor());
        }
    }
    fillWood(painter, plate, plate.boundingRect(), d.neckDark, d.neckLight, d.seed + 7);
    shade(painter, plate, w * 0.05, 26);
    gloss(painter, plate, QPointF(-w * 0.2, nut - d.head * 0.6), w * 0.4, d.head * 0.2, 60);
    for (int i = 0; i < posts.size(); ++i) {
        if (d.fifthStringFret > 0 && i == 0)
            continue;
        drawKnob(painter, posts[i], w * 0.09, w * 0.09, false, QColor());
        if (d.doubled)
            drawKnob(painter, posts[i] + QPointF(0, d.head * 0.08), w * 0.09, w * 0.09, false, QColor());
    }
}

void drawBridgeAndTail(QPainter& painter, const Design& d)
{
    const double y = d.bridgeY();
    const double spread = d.bridgeSpread;
    if (d.tail == Tail::Tailpiece) {
        // The tailpiece, ebony, from below the bridge down to the saddle.
        const double top = y + d.body * 0.12;
        const double bottom = d.bodyBottom() - d.body * 0.04;
        QPainterPath tail;
        tail.moveTo(-spread * 0.62, top);
        tail.quadTo(0, top - spread * 0.1, spread * 0.62, top);
        tail.cubicTo(
            spread * 0.6, top + (bottom - top) * 0.4, spread * 0.3, bottom - spread * 0.2, spread * 0.18, bottom);
        tail.lineTo(-spread * 0.18, bottom);
        tail.cubicTo(
            -spread * 0.3, bottom - spread * 0.2, -spread * 0.6, top + (bottom - top) * 0.4, -spread * 0.62, top);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 100));
        painter.drawPath(tail.translated(spread * 0.05, spread * 0.08));
        fillWood(painter, tail, tail.boundingRect(), kEbonyDark, kEbonyLight, d.seed + 9);
        shade(painter, tail, spread * 0.04, 30);
        gloss(painter, tail, QPointF(-spread * 0.2, top + (bottom - top) * 0.3), spread * 0.2, spread * 0.5, 80);
        // The fine tuner of the highest string.
        drawKnob(painter, QPointF(spread * 0.38, top + spread * 0.25), spread * 0.07, spread * 0.07, false, QColor());
        if (d.chinrest) {
            // The chinrest, rosewood, over the lower bout left of the
            // tailpiece, its cup hollowed towards the edge.
            const QPointF c(-spread * 0.95, bottom - d.body * 0.045);
            QPainterPath rest;
            rest.moveTo(c + QPointF(spread * 0.75, d.body * 0.03));
            rest.cubicTo(c + QPointF(spread * 0.8, -d.body * 0.05), c + QPointF(-spread * 0.2, -d.body * 0.09),
                c + QPointF(-spread * 0.75, -d.body * 0.04));
            rest.cubicTo(c + QPointF(-spread * 1.0, -d.body * 0.01), c + QPointF(-spread * 0.8, d.body * 0.04),
                c + QPointF(-spread * 0.4, d.body * 0.045));
            rest.quadTo(c + QPointF(spread * 0.2, d.body * 0.04), c + QPointF(spread * 0.75, d.body * 0.03));
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0, 0, 0, 110));
            painter.drawPath(rest.translated(spread * 0.06, spread * 0.1));
            fillWood(painter, rest, rest.boundingRect(), QColor(52, 24, 12), QColor(120, 62, 32), d.seed + 11);
            QRadialGradient cup(c + QPointF(-spread * 0.1, -d.body * 0.02), spread * 0.7);
            cup.setColorAt(0.0, QColor(0, 0, 0, 90));
            cup.setColorAt(0.8, QColor(0, 0, 0, 10));
            cup.setColorAt(1.0, QColor(255, 220, 180, 40));
            painter.fillPath(rest, cup);
            shade(painter, rest, spread * 0.03, 26);
            gloss(painter, rest, c + QPointF(-spread * 0.3, -d.body * 0.05), spread * 0.3, d.body * 0.012, 120);
        }
        // The bridge: maple, thin from the front, on its two feet.
        const double h = spread * 0.12;
        QPainterPath bridge;
        bridge.moveTo(-spread * 0.72, y + h);
        bridge.lineTo(-spread * 0.6, y - h * 0.2);
        bridge.quadTo(0, y - h * 1.1, spread * 0.6, y - h * 0.2);
        bridge.lineTo(spread * 0.72, y + h);
        bridge.lineTo(spread * 0.25, y + h);
        bridge.lineTo(spread * 0.2, y + h * 0.4);
        bridge.lineTo(-spread * 0.2, y + h * 0.4);
        bridge.lineTo(-spread * 0.25, y + h);
        bridge.closeSubpath();
        painter.setBrush(QColor(0, 0, 0, 120));
        painter.drawPath(bridge.translated(spread * 0.04, h * 0.9));
        QLinearGradient maple(QPointF(0, y - h), QPointF(0, y + h));
        maple.setColorAt(0.0, QColor(250, 232, 196));
        maple.setColorAt(0.6, QColor(214, 176, 120));
        maple.setColorAt(1.0, QColor(150, 110, 64));
        painter.setPen(QPen(QColor(90, 60, 30), 0.5));
        painter.setBrush(maple);
        painter.drawPath(bridge);
        return;
    }

    if (d.tail == Tail::Trapeze) {
        // A metal tailpiece from the bottom edge up towards the bridge.
        const double top = y + (d.bodyBottom() - y) * 0.5;
        QPainterPath tail;
        tail.moveTo(-spread * 0.42, top);
        tail.lineTo(spread * 0.42, top);
        tail.lineTo(spread * 0.2, d.bodyBottom() + 4);
        tail.lineTo(-spread * 0.2, d.bodyBottom() + 4);
        tail.closeSubpath();
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 110));
        painter.drawPath(tail.translated(2, 4));
        painter.setBrush(metal(QPointF(-spread * 0.5, 0), QPointF(spread * 0.5, 0)));
        painter.drawPath(tail);
        painter.setPen(QPen(QColor(60, 60, 66), 0.8));
        painter.setBrush(Qt::NoBrush);
        painter.drawLine(QPointF(0, top + 6), QPointF(0, d.bodyBottom() - 2));
    }
    if (d.tail == Tail::Button) {
        drawKnob(painter, QPointF(0, d.bodyBottom() - 4), 7, 5, true, QColor(200, 180, 150));
    }
    // A saddle bridge: wood, with a bone or a metal top.
    const double h = d.stringKind == Strings::Nylon ? 6 : 8;
    const QRectF foot(-spread * (d.tail == Tail::PinBridge ? 1.45 : 0.75), y - h,
        spread * (d.tail == Tail::PinBridge ? 2.9 : 1.5), h * (d.tail == Tail::PinBridge ? 3.2 : 1.6));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 110));
    painter.drawRoundedRect(foot.translated(2, 4), h * 0.5, h * 0.5);
    if (d.headKind == Head::Inline) {
        painter.setBrush(metal(foot.topLeft(), foot.bottomLeft()));
        painter.drawRoundedRect(foot.adjusted(0, -h, 0, h * 2), 2, 2);
        for (int string = 0; string < d.strings; ++string) {
            const double x = stringX(d, string, spread, 0);
            painter.setBrush(metal(QPointF(x - 3, 0), QPointF(x + 3, 0)));
            painter.drawRoundedRect(QRectF(x - 5, y - h * 0.4, 10, h * 1.6), 2, 2);
        }
        return;
    }
    QLinearGradient body(foot.topLeft(), foot.bottomLeft());
    body.setColorAt(0.0, d.top == Top::Drum ? QColor(236, 212, 170) : QColor(70, 40, 26));
    body.setColorAt(1.0, d.top == Top::Drum ? QColor(160, 124, 80) : QColor(20, 10, 6));
    painter.setBrush(body);
    painter.drawRoundedRect(foot, h * 0.5, h * 0.5);
    painter.setBrush(QColor(246, 238, 220));
    painter.drawRoundedRect(QRectF(-spread * 0.62, y - h * 0.35, spread * 1.24, h * 0.5), 1, 1);
    if (d.tail == Tail::PinBridge) {
        for (int string = 0; string < d.strings; ++string)
            drawKnob(painter, QPointF(stringX(d, string, spread, 0), y + h * 1.3), h * 0.32, h * 0.32, true,
                QColor(240, 232, 214));
    }
}

void drawStrings(QPainter& painter, const Design& d)
{
    const QVector<QPointF> posts = anchors(d);
    const double scale = painter.transform().m11();
    const int courses = d.doubled ? 2 : 1;
    for (int string = 0; string < d.strings; ++string) {
        for (int course = 0; course < courses; ++course) {
            const double offset = d.doubled ? (course ? 0.16 : -0.16) : 0.0;
            const bool fifth = d.fifthStringFret > 0 && string == 0;
            const double startY = fifth ? d.fretY(d.fifthStringFret) : d.nutY();
            const double nutX = fifth ? -d.boardWidth(startY) / 2 + 3 : stringX(d, string, nutSpread(d), offset);
            const double bridgeX = stringX(d, string, d.bridgeSpread, offset);
            double endY = d.bridgeY();
            double endX = bridgeX;
            if (d.tail == Tail::Tailpiece) {
                endY = d.bridgeY() + d.body * 0.13;
                endX = bridgeX * 0.8;
            } else if (d.tail == Tail::Trapeze) {
                endY = d.bridgeY() + (d.bodyBottom() - d.bridgeY()) * 0.55;
                endX = bridgeX * 0.75;
            } else if (d.tail == Tail::Button) {
                endY = d.bodyBottom() - 4;
                endX = 0;
            } else if (d.tail == Tail::PinBridge) {
                endY = d.bridgeY() + 10;
            }
            QPainterPath path;
            QPointF post = posts.value(string);
            if (d.doubled)
                post += QPointF(0, course * d.head * 0.08);
            path.moveTo(fifth ? QPointF(nutX - 3, startY) : post);
            path.lineTo(nutX, startY);
            path.lineTo(bridgeX, d.bridgeY());
            path.lineTo(endX, endY);
            const double width = d.gauges.value(string, 3.0) / scale * (d.doubled ? 0.8 : 1.0);
            QColor dark(60, 62, 66);
            QColor body(176, 178, 186);
            QColor shine(252, 252, 255);
            const bool wound = d.stringKind == Strings::Bowed ? string < d.strings - 1 : width * scale >= 4.4;
            if (d.stringKind == Strings::Nylon && !(d.strings == 3 && string == 2)) {
                dark = QColor(150, 140, 120);
                body = QColor(236, 230, 214);
                shine = QColor(255, 255, 250);
            } else if (wound && d.stringKind == Strings::Steel) {
                dark = QColor(80, 66, 44);
                body = QColor(190, 164, 120);
                shine = QColor(252, 240, 210);
            }
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(QColor(0, 0, 0, 90), width * 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(path.translated(width * 0.9, width * 1.3));
            painter.setPen(QPen(dark, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(path);
            painter.setPen(QPen(body, width * 0.64, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(path);
            painter.setPen(QPen(shine, width * 0.24, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(path.translated(-width * 0.14, 0));
        }
    }
}

void paintInstrument(QPainter& painter, const Design& d)
{
    const QPainterPath body = bodyPath(d);
    // The shadow that the instrument casts on the dark ground.
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 6; ++i) {
        painter.setBrush(QColor(0, 0, 0, 30));
        painter.drawPath(body.translated(4 + i * 2, 6 + i * 3));
    }
    drawEndpin(painter, d);
    drawBody(painter, d, body);
    if (d.hole == Hole::FHoles) {
        const double length = d.body * 0.2;
        const double y = d.bridgeY() - length * 0.02;
        for (int side : { -1, 1 })
            drawFHole(painter, QPointF(side * halfWidthAt(d, y) * 0.5, y), length, side);
    }
    if (d.pickguard)
        drawPickguard(painter, d);
    if (d.hole == Hole::Round || d.hole == Hole::Small)
        drawRosette(painter, QPointF(0, d.bodyTop() + d.body * d.holeDown), d.holeRadius, d.hole == Hole::Small);
    if (d.hole == Hole::Pickups)
        drawPickups(painter, d);
    drawHead(painter, d);
    drawNeck(painter, d);
    drawBridgeAndTail(painter, d);
    drawStrings(painter, d);
}

} // namespace

QStringList TunerInstrumentArt::keys()
{
    return { QStringLiteral("Violin"), QStringLiteral("Viola"), QStringLiteral("Cello"), QStringLiteral("DoubleBass"),
        QStringLiteral("Guitar"), QStringLiteral("BassGuitar"), QStringLiteral("Ukulele"), QStringLiteral("Banjo"),
        QStringLiteral("Mandolin"), QStringLiteral("Balalaika"), QStringLiteral("Dombra") };
}

QImage TunerInstrumentArt::drawInstrument(const QString& key)
{
    const Design d = design(key);
    if (d.strings == 0)
        return QImage();
    QImage image(PictureSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double scale = (InstrumentBottom - InstrumentTop) / d.total();
    painter.translate(PictureSize.width() / 2.0, InstrumentTop);
    painter.scale(scale, scale);
    paintInstrument(painter, d);
    return image;
}

QMap<QString, QImage> TunerInstrumentArt::generate(ArtWriter& writer)
{
    QMap<QString, QImage> drawings;
    for (const QString& key : keys()) {
        const QImage instrument = drawInstrument(key);
        QImage picture(PictureSize, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        // A faint warm light on the ground behind the instrument.
        QRadialGradient light(
            QPointF(PictureSize.width() * 0.5, PictureSize.height() * 0.42), PictureSize.width() * 0.5);
        light.setColorAt(0.0, QColor(46, 32, 22));
        light.setColorAt(1.0, QColor(0, 0, 0));
        painter.fillRect(picture.rect(), light);
        painter.drawImage(0, 0, instrument);
        painter.end();
        writer.addPicture(key + QStringLiteral(".jpg"), picture, 90, QStringLiteral("Tuners"));
        drawings.insert(key, instrument);
    }
    return drawings;
}
