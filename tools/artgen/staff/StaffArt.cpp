#include "StaffArt.h"

#include "ArtWriter.h"
#include "StaffGeometry.h"

#include <QFontDatabase>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>

namespace {

// The music font holds one em as four staff spaces, and a glyph's origin
// lies on its reference line (the G line, the F line, the head's centre).
constexpr qreal kSpacesPerEm = 4.0;
// The clefs keep half a space of air at the left edge of the staff.
constexpr qreal kClefLeftSpaces = 0.5;

const QChar kGClef(0xE085);
const QChar kFClef(0xE083);
const QChar kBlackHead(0xE0EA);
const QChar kSharp(0xE013);
const QChar kFlat(0xE021);
const QChar kNatural(0xE01D);

QString musicFamily()
{
    const QStringList families = QFontDatabase().families();
    for (const QString& family : families) {
        if (family.startsWith(QLatin1String("Emmentaler"), Qt::CaseInsensitive))
            return family;
    }
    return QString();
}

// The outline of a glyph at a given staff space in pixels, origin on its
// reference line.
QPainterPath glyphPath(const QString& family, QChar glyph, qreal space)
{
    QFont font(family);
    font.setPixelSize(qRound(space * kSpacesPerEm));
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, QString(glyph));
    return path;
}

QImage transparentImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void fillPath(QImage& image, const QPainterPath& path, const QTransform& transform, const QColor& colour)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.setTransform(transform);
    painter.drawPath(path);
}

// The widget draws this picture into a square from line 8 to line 16, eight
// spaces high: the treble staff's top line lies two spaces down, and the
// G line (G4, line 13) five spaces down, where the clef's curl turns.
QImage violinKey(const QString& family)
{
    constexpr int side = 512;
    constexpr qreal space = side / 8.0;
    const QPainterPath path = glyphPath(family, kGClef, space);
    QImage image = transparentImage(side, side);
    QTransform transform;
    transform.translate(kClefLeftSpaces * space - path.boundingRect().left(), 5.0 * space);
    fillPath(image, path, transform, Qt::black);
    return image;
}

// Drawn into a square from line 16 to line 20, four spaces high: the F line
// (F3, line 17) lies one space down, between the clef's two dots. The top of
// the clef reaches a hair above the top line in the font; it is scaled
// about the F line just enough to stay inside the square.
QImage bassKey(const QString& family)
{
    constexpr int side = 512;
    constexpr qreal space = side / 4.0;
    const QPainterPath path = glyphPath(family, kFClef, space);
    const QRectF bounds = path.boundingRect();
    const qreal fLine = 1.0 * space;
    const qreal scale = bounds.top() < -fLine ? fLine / -bounds.top() : 1.0;
    QImage image = transparentImage(side, side);
    QTransform transform;
    transform.translate(kClefLeftSpaces * space - bounds.left() * scale, fLine);
    transform.scale(scale, scale);
    fillPath(image, path, transform, Qt::black);
    return image;
}

// The widget stretches this picture into a box of 2.2 by 1.2 note widths
// (aspect 11 : 6), while the picture is 8 : 5. The head is drawn narrower
// by that ratio so that it keeps the font's proportions on the staff.
QImage noteHead(const QString& family)
{
    constexpr int width = 512;
    constexpr int height = 320;
    const QPainterPath unit = glyphPath(family, kBlackHead, 100.0);
    const QRectF unitBounds = unit.boundingRect();
    const qreal fit = (height - 2.0) / unitBounds.height();
    const qreal squeeze = (8.0 / 5.0) / (11.0 / 6.0);
    QImage image = transparentImage(width, height);
    QTransform transform;
    transform.translate(width / 2.0, height / 2.0);
    transform.scale(fit * squeeze, fit);
    transform.translate(-unitBounds.center().x(), -unitBounds.center().y());
    fillPath(image, unit, transform, Qt::black);
    return image;
}

// A small ivory tile with a soft shadow and the accidental in its middle.
// The framed form is the selected state: a deep blue frame and a cool tint.
QImage signButton(const QString& family, QChar glyph, bool framed)
{
    constexpr int side = 74;
    QImage image = transparentImage(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRectF tile(3.0, 2.0, side - 6.0, side - 6.0);
    const qreal radius = 12.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawRoundedRect(tile.translated(0, 2.0), radius, radius);

    QLinearGradient fill(tile.topLeft(), tile.bottomLeft());
    if (framed) {
        fill.setColorAt(0.0, QColor(236, 242, 255));
        fill.setColorAt(1.0, QColor(176, 196, 240));
    } else {
        fill.setColorAt(0.0, QColor(255, 253, 246));
        fill.setColorAt(1.0, QColor(222, 216, 202));
    }
    painter.setBrush(fill);
    if (framed)
        painter.setPen(QPen(QColor(24, 52, 160), 4.0));
    else
        painter.setPen(QPen(QColor(150, 142, 126), 1.5));
    painter.drawRoundedRect(tile.adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);

    // All three signs share one staff space, so they look alike in size.
    const QPainterPath path = glyphPath(family, glyph, 15.0);
    const QRectF bounds = path.boundingRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(framed ? QColor(10, 18, 60) : QColor(60, 56, 50));
    painter.translate(tile.center() - bounds.center());
    painter.drawPath(path);
    painter.end();
    return image;
}

// An accidental as the staff draws it in front of a head: black, its
// reference line at a fixed height of the picture (see StaffGeometry).
QImage staffSign(const QString& family, QChar glyph)
{
    using QMMusic::StaffGeometry;
    const qreal space = StaffGeometry::signPictureSpace;
    const QPainterPath path = glyphPath(family, glyph, space);
    const int width = int(std::ceil(path.boundingRect().right() + space * 0.1));
    const int height = int(std::ceil((StaffGeometry::signSpacesAbove + StaffGeometry::signSpacesBelow) * space));
    QImage image = transparentImage(width, height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.translate(0.0, StaffGeometry::signSpacesAbove * space);
    painter.drawPath(path);
    painter.end();
    return image;
}

} // namespace

void StaffArt::generate(ArtWriter& writer)
{
    const QString family = musicFamily();
    if (family.isEmpty()) {
        std::fprintf(stderr, "artgen: no music font loaded, staff pictures skipped\n");
        return;
    }
    writer.addPicture(QStringLiteral("violinkey.png"), violinKey(family));
    writer.addPicture(QStringLiteral("basskey.png"), bassKey(family));
    writer.addPicture(QStringLiteral("note.png"), noteHead(family));
    writer.addPicture(QStringLiteral("staffsharp.png"), staffSign(family, kSharp));
    writer.addPicture(QStringLiteral("staffflat.png"), staffSign(family, kFlat));

    const struct
    {
        const char* name;
        QChar glyph;
    } signs[] = { { "flatsign", kFlat }, { "sharpsign", kSharp }, { "naturalsign", kNatural } };
    for (const auto& sign : signs) {
        const QString name = QString::fromLatin1(sign.name);
        writer.addPicture(name + QStringLiteral(".png"), signButton(family, sign.glyph, false));
        writer.addPicture(name + QStringLiteral("_framed.png"), signButton(family, sign.glyph, true));
    }
}
