#include "DesktopIconArt.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QPainter>

namespace {

const QColor kTileColor(0x2b, 0x1d, 0x14);
const QColor kEdgeColor(0xc0, 0x7a, 0x3a);
const QColor kNeckColor(0x6a, 0x3d, 0x22);
const QColor kNutColor(0xf1, 0xe9, 0xd2);
const QColor kFretColor(0xd8, 0xd8, 0xd0);
const QColor kStringColor(0xf4, 0xe7, 0xc8);
const QColor kMarkColor(0x38, 0xd6, 0xf0);

// One element of the drawing, in units of a 256 square.
struct Shape
{
    enum Kind
    {
        Tile,
        Box,
        Line,
        Ring
    } kind;
    QRectF box; // Tile, Box; Ring: its bounding square
    QLineF line;
    QColor color;
    double width = 0.0; // stroke width; for the tile its edge
};

// Seven white keys of an octave with its five black keys, one key marked.
QVector<Shape> keyboard(bool small)
{
    QVector<Shape> shapes;
    shapes.append({ Shape::Tile, QRectF(8, 8, 240, 240), {}, kTileColor, small ? 16.0 : 10.0 });
    const int whites = small ? 4 : 7;
    const double left = 28;
    const double width = 200.0 / whites;
    const double top = small ? 56 : 60;
    const double bottom = small ? 200 : 196;
    shapes.append({ Shape::Box, QRectF(left, top, 200, bottom - top), {}, kNutColor, 0 });
    for (int i = 1; i < whites; ++i) {
        const double x = left + i * width;
        shapes.append({ Shape::Line, {}, QLineF(x, top, x, bottom), kTileColor, small ? 10.0 : 4.0 });
    }
    // Black keys after the first, second, fourth, fifth and sixth white key.
    for (int i : { 1, 2, 4, 5, 6 }) {
        if (i >= whites)
            continue;
        const double x = left + i * width;
        shapes.append(
            { Shape::Box, QRectF(x - width * 0.3, top, width * 0.6, (bottom - top) * 0.6), {}, kTileColor, 0 });
    }
    const double radius = small ? 30 : 20;
    const QPointF mark(left + (small ? 2.5 : 3.5) * width, top + (bottom - top) * 0.8);
    shapes.append({ Shape::Ring, QRectF(mark.x() - radius, mark.y() - radius, 2 * radius, 2 * radius), {}, kMarkColor,
        small ? 16.0 : 9.0 });
    return shapes;
}

// A metronome: its case, the scale plate and the pendulum swung to one
// side, its weight marked.
QVector<Shape> metronome(bool small)
{
    QVector<Shape> shapes;
    shapes.append({ Shape::Tile, QRectF(8, 8, 240, 240), {}, kTileColor, small ? 16.0 : 10.0 });
    shapes.append({ Shape::Box, QRectF(64, 52, 128, 164), {}, kNeckColor, 0 });
    shapes.append({ Shape::Box, QRectF(48, 204, 160, 22), {}, kEdgeColor, 0 });
    if (!small)
        shapes.append({ Shape::Box, QRectF(108, 96, 40, 100), {}, kNutColor, 0 });
    shapes.append({ Shape::Line, {}, QLineF(128, 196, 170, 70), kStringColor, small ? 14.0 : 8.0 });
    const QPointF weight(156, 112);
    const double radius = small ? 30 : 22;
    shapes.append({ Shape::Ring, QRectF(weight.x() - radius, weight.y() - radius, 2 * radius, 2 * radius), {},
        kMarkColor, small ? 16.0 : 9.0 });
    return shapes;
}

// A tuning fork standing on strings, its prongs ringing.
QVector<Shape> tuningFork(bool small)
{
    QVector<Shape> shapes;
    shapes.append({ Shape::Tile, QRectF(8, 8, 240, 240), {}, kTileColor, small ? 16.0 : 10.0 });
    shapes.append({ Shape::Box, QRectF(28, 166, 200, 52), {}, kNeckColor, 0 });
    for (double y : small ? QVector<double> { 192 } : QVector<double> { 180, 192, 204 })
        shapes.append({ Shape::Line, {}, QLineF(28, y, 228, y), kStringColor, small ? 10.0 : 4.0 });
    const double prong = small ? 30 : 22;
    const double left = small ? 92 : 98;
    const double right = 256 - left;
    shapes.append({ Shape::Line, {}, QLineF(left, 40, left, 142), kFretColor, prong });
    shapes.append({ Shape::Line, {}, QLineF(right, 40, right, 142), kFretColor, prong });
    shapes.append({ Shape::Box, QRectF(left - prong / 2, 132, right - left + prong, prong), {}, kFretColor, 0 });
    shapes.append({ Shape::Line, {}, QLineF(128, 132, 128, 226), kFretColor, small ? 24.0 : 18.0 });
    // The ring of the prongs, marks beside their tips.
    const double out = small ? 40 : 46;
    shapes.append({ Shape::Line, {}, QLineF(left - out, 46, left - out, 108), kMarkColor, small ? 24.0 : 14.0 });
    shapes.append({ Shape::Line, {}, QLineF(right + out, 46, right + out, 108), kMarkColor, small ? 24.0 : 14.0 });
    if (!small) {
        shapes.append({ Shape::Line, {}, QLineF(left - 70, 60, left - 70, 94), kMarkColor, 9.0 });
        shapes.append({ Shape::Line, {}, QLineF(right + 70, 60, right + 70, 94), kMarkColor, 9.0 });
    }
    return shapes;
}

// A chord's diagram: the nut, frets across, strings down and the fingers
// of an A minor as dots.
QVector<Shape> chordDiagram(bool small)
{
    QVector<Shape> shapes;
    shapes.append({ Shape::Tile, QRectF(8, 8, 240, 240), {}, kTileColor, small ? 16.0 : 10.0 });
    const int strings = small ? 4 : 6;
    const int frets = small ? 3 : 4;
    const double left = small ? 56 : 52;
    const double right = 256 - left;
    const double top = small ? 60 : 56;
    const double bottom = small ? 212 : 216;
    const double fret = (bottom - top) / frets;
    const double step = (right - left) / (strings - 1);
    shapes.append({ Shape::Box, QRectF(left - 6, top - 8, right - left + 12, bottom - top + 8), {}, kNeckColor, 0 });
    shapes.append({ Shape::Line, {}, QLineF(left - 6, top - 4, right + 6, top - 4), kNutColor, small ? 18.0 : 12.0 });
    for (int i = 1; i <= frets; ++i) {
        const double y = top + i * fret;
        shapes.append({ Shape::Line, {}, QLineF(left, y, right, y), kFretColor, small ? 10.0 : 5.0 });
    }
    for (int i = 0; i < strings; ++i) {
        const double x = left + i * step;
        shapes.append({ Shape::Line, {}, QLineF(x, top, x, bottom), kStringColor, small ? 10.0 : 4.0 });
    }
    // A dot is a ring as thick as its radius is wide.
    const double radius = small ? 10 : 7;
    auto dot = [&](int string, int onFret) {
        const QPointF at(left + string * step, top + (onFret - 0.5) * fret);
        shapes.append({ Shape::Ring, QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius), {}, kMarkColor,
            2 * radius });
    };
    if (small) {
        dot(1, 2);
        dot(2, 2);
        dot(3, 1);
    } else {
        dot(2, 2);
        dot(3, 2);
        dot(4, 1);
    }
    return shapes;
}

QVector<Shape> drawing(bool small, const DesktopIconArt::Motif& motif)
{
    if (motif.strings == 0)
        return keyboard(small);
    if (motif.strings == DesktopIconArt::tuningFork().strings)
        return tuningFork(small);
    if (motif.strings == DesktopIconArt::chordDiagram().strings)
        return chordDiagram(small);
    if (motif.strings < 0)
        return metronome(small);
    QVector<Shape> shapes;
    shapes.append({ Shape::Tile, QRectF(8, 8, 240, 240), {}, kTileColor, small ? 16.0 : 10.0 });
    const double top = small ? 64 : 72;
    const double bottom = small ? 192 : 184;
    shapes.append({ Shape::Box, QRectF(28, top, 204, bottom - top), {}, kNeckColor, 0 });
    shapes.append({ Shape::Box, QRectF(28, top, small ? 20 : 12, bottom - top), {}, kNutColor, 0 });
    const QVector<double> frets = small ? QVector<double> { 104, 162, 210 } : QVector<double> { 84, 134, 178, 214 };
    for (double x : motif.fretted ? frets : QVector<double>())
        shapes.append({ Shape::Line, {}, QLineF(x, top, x, bottom), kFretColor, small ? 12.0 : 6.0 });
    const int strings = small ? qMin(3, motif.strings) : motif.strings;
    const double margin = small ? 26 : 12;
    const double step = (bottom - top - 2 * margin) / (strings - 1);
    for (int i = 0; i < strings; ++i) {
        const double y = top + margin + i * step;
        shapes.append(
            { Shape::Line, {}, QLineF(28, y, 232, y), kStringColor, small ? 8.0 : 2.5 + i * 5.4 / motif.strings });
    }
    // The mark: a ring around the middle string between two frets.
    const double markX = small ? 133 : 156;
    const double markY = small ? 128 : top + margin + (strings / 2) * step;
    const double radius = small ? 30 : 22;
    shapes.append({ Shape::Ring, QRectF(markX - radius, markY - radius, 2 * radius, 2 * radius), {}, kMarkColor,
        small ? 16.0 : 9.0 });
    return shapes;
}

QString svgColor(const QColor& color)
{
    return color.name(QColor::HexRgb);
}

} // namespace

QVector<int> DesktopIconArt::sizes()
{
    return { 16, 22, 24, 32, 48, 64, 128, 256, 512 };
}

QImage DesktopIconArt::png(int size, const Motif& motif)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 256.0, size / 256.0);
    for (const Shape& shape : drawing(size < 32, motif)) {
        switch (shape.kind) {
        case Shape::Tile:
            painter.setPen(QPen(kEdgeColor, shape.width));
            painter.setBrush(shape.color);
            painter.drawRoundedRect(shape.box, 44, 44);
            break;
        case Shape::Box:
            painter.setPen(Qt::NoPen);
            painter.setBrush(shape.color);
            painter.drawRect(shape.box);
            break;
        case Shape::Line:
            painter.setPen(QPen(shape.color, shape.width, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(shape.line);
            break;
        case Shape::Ring:
            painter.setPen(QPen(shape.color, shape.width));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(shape.box);
            break;
        }
    }
    return image;
}

QByteArray DesktopIconArt::svg(const Motif& motif)
{
    QString text = QStringLiteral(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 256 256\">\n");
    for (const Shape& shape : drawing(false, motif)) {
        switch (shape.kind) {
        case Shape::Tile:
            text += QStringLiteral("  <rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"44\" fill=\"%5\" "
                                   "stroke=\"%6\" stroke-width=\"%7\"/>\n")
                        .arg(shape.box.x())
                        .arg(shape.box.y())
                        .arg(shape.box.width())
                        .arg(shape.box.height())
                        .arg(svgColor(shape.color), svgColor(kEdgeColor))
                        .arg(shape.width);
            break;
        case Shape::Box:
            text += QStringLiteral("  <rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" fill=\"%5\"/>\n")
                        .arg(shape.box.x())
                        .arg(shape.box.y())
                        .arg(shape.box.width())
                        .arg(shape.box.height())
                        .arg(svgColor(shape.color));
            break;
        case Shape::Line:
            text += QStringLiteral(
                "  <line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\" stroke-width=\"%6\"/>\n")
                        .arg(shape.line.x1())
                        .arg(shape.line.y1())
                        .arg(shape.line.x2())
                        .arg(shape.line.y2())
                        .arg(svgColor(shape.color))
                        .arg(shape.width);
            break;
        case Shape::Ring:
            text += QStringLiteral(
                "  <circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"none\" stroke=\"%4\" stroke-width=\"%5\"/>\n")
                        .arg(shape.box.center().x())
                        .arg(shape.box.center().y())
                        .arg(shape.box.width() / 2)
                        .arg(svgColor(shape.color))
                        .arg(shape.width);
            break;
        }
    }
    text += QStringLiteral("</svg>\n");
    return text.toUtf8();
}

bool DesktopIconArt::generate(const QString& dir, const QString& name, const Motif& motif)
{
    bool ok = true;
    for (int size : sizes()) {
        const QString folder = dir + QStringLiteral("/hicolor/%1x%1/apps").arg(size);
        ok = QDir().mkpath(folder) && png(size, motif).save(folder + QLatin1Char('/') + name + QStringLiteral(".png"))
            && ok;
    }
    const QString scalable = dir + QStringLiteral("/hicolor/scalable/apps");
    QFile file(scalable + QLatin1Char('/') + name + QStringLiteral(".svg"));
    ok = QDir().mkpath(scalable) && file.open(QIODevice::WriteOnly) && file.write(svg(motif)) > 0 && ok;
    return ok;
}
