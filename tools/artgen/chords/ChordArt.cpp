#include "ChordArt.h"

#include "ArtWriter.h"
#include "ChordName.h"
#include "ChordPictures.h"
#include "ChordTable.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QMap>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

using QMMusic::ChordTable;

// The photos are drawn upright, like the neck they show, and saved at three
// quarters of that size: they stay sharp in the chord view and the program
// small.
const QSize kPhotoSize(240, 320);
const QSize kSavedSize(180, 240);
const int kPhotoQuality = 70;

QImage saved(const QImage& image)
{
    return image.scaled(kSavedSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
// Frets in sight below the nut (or below the first fret shown).
const int kCellsInSight = 5;
const double kTop = 46.0;
const double kBottom = 312.0;

// Warm light from the upper left over a dark brown ground.
void drawWarmGround(QPainter& p, const QSize& size)
{
    QRadialGradient light(QPointF(size.width() * 0.2, size.height() * 0.05), size.height() * 1.1);
    light.setColorAt(0.0, QColor(250, 196, 128));
    light.setColorAt(0.45, QColor(150, 86, 40));
    light.setColorAt(1.0, QColor(40, 22, 12));
    p.fillRect(QRect(QPoint(), size), light);
}

// A fingertip seen from above: a soft shadow, a skin-coloured round with the
// light on its upper left, the hint of a nail.
void drawFingertip(QPainter& p, const QPointF& centre, double radius)
{
    p.save();
    p.setPen(Qt::NoPen);
    QRadialGradient shadow(centre + QPointF(radius * 0.35, radius * 0.45), radius * 1.35);
    shadow.setColorAt(0.0, QColor(0, 0, 0, 150));
    shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
    p.setBrush(shadow);
    p.drawEllipse(centre + QPointF(radius * 0.35, radius * 0.45), radius * 1.35, radius * 1.35);
    QRadialGradient skin(centre - QPointF(radius * 0.4, radius * 0.45), radius * 1.5);
    skin.setColorAt(0.0, QColor(255, 226, 196));
    skin.setColorAt(0.55, QColor(232, 166, 128));
    skin.setColorAt(1.0, QColor(156, 88, 62));
    p.setBrush(skin);
    p.drawEllipse(centre, radius, radius);
    p.setBrush(QColor(255, 236, 222, 120));
    p.drawEllipse(QRectF(centre.x() - radius * 0.45, centre.y() - radius * 0.8, radius * 0.9, radius * 0.7));
    p.restore();
}

void drawCross(QPainter& p, const QPointF& centre, double size)
{
    p.save();
    p.setPen(QPen(QColor(30, 10, 6, 160), 4.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre + QPointF(-size, -size), centre + QPointF(size, size));
    p.drawLine(centre + QPointF(-size, size), centre + QPointF(size, -size));
    p.setPen(QPen(QColor(255, 244, 230), 2.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre + QPointF(-size, -size), centre + QPointF(size, size));
    p.drawLine(centre + QPointF(-size, size), centre + QPointF(size, -size));
    p.restore();
}

void drawRing(QPainter& p, const QPointF& centre, double radius)
{
    p.save();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 244, 230), 2.2));
    p.drawEllipse(centre, radius, radius);
    p.restore();
}

// The first fret in sight: 1 (with the nut) while the chord lies within
// the first frets, else its lowest pressed fret.
int firstFretInSight(const QVector<int>& tab)
{
    int lowest = 100;
    int highest = 0;
    for (int v : tab) {
        if (v > 0) {
            lowest = std::min(lowest, v);
            highest = std::max(highest, v);
        }
    }
    return highest <= kCellsInSight ? 1 : lowest;
}

// y of the wire that closes the cell `cell` in sight (0: the nut or the
// first wire); the cells narrow a little towards the body.
double wireY(int cell)
{
    double y = kTop;
    double h = (kBottom - kTop) / 4.6;
    for (int i = 0; i < cell; ++i) {
        y += h;
        h *= 0.9;
    }
    return y;
}

struct NeckLayout
{
    double left = 0;
    double right = 0;
    QVector<double> stringX;
};

NeckLayout neckLayout(int strings)
{
    NeckLayout layout;
    const double spacing = std::min(34.0, 170.0 / std::max(strings, 1));
    const double width = spacing * strings;
    layout.left = (kPhotoSize.width() - width) / 2.0;
    layout.right = layout.left + width;
    for (int i = 0; i < strings; ++i)
        layout.stringX.append(layout.left + spacing * (i + 0.5));
    return layout;
}

// The neck without the hand: ground, fingerboard, frets, inlays, strings.
QImage neckPicture(const ChordTable& table, int firstFret)
{
    QImage image(kPhotoSize, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    drawWarmGround(p, kPhotoSize);

    const NeckLayout layout = neckLayout(table.openNotes.size());
    const QRectF board(
        layout.left - 8, firstFret == 1 ? kTop - 6 : 0, layout.right - layout.left + 16, kPhotoSize.height());
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 90));
    p.drawRect(board.translated(6, 4));
    p.restore();
    const QImage wood = WoodArt::woodTexture(
        QSize(board.height(), board.width()), QColor(38, 20, 12), QColor(104, 58, 30), 17 + table.openNotes.size());
    QTransform upright;
    upright.rotate(90);
    p.drawImage(board, wood.transformed(upright));
    // The warm light falls on the left edge of the board.
    QLinearGradient sheen(board.topLeft(), board.topRight());
    sheen.setColorAt(0.0, QColor(255, 200, 140, 70));
    sheen.setColorAt(0.5, QColor(255, 200, 140, 0));
    sheen.setColorAt(1.0, QColor(0, 0, 0, 70));
    p.fillRect(board, sheen);

    // Inlays between the wires of frets 3, 5, 7, 9 and 12.
    const QSet<int> inlays { 3, 5, 7, 9, 12 };
    for (int cell = 1; cell <= kCellsInSight; ++cell) {
        const int fret = firstFret + cell - 1;
        if (!inlays.contains(fret))
            continue;
        const double y = (wireY(cell - 1) + wireY(cell)) / 2;
        const double x = (layout.left + layout.right) / 2;
        if (fret == 12) {
            WoodArt::drawPearl(p, QPointF(x - (layout.right - layout.left) / 5, y), 5.5, fret);
            WoodArt::drawPearl(p, QPointF(x + (layout.right - layout.left) / 5, y), 5.5, fret + 1);
        } else {
            WoodArt::drawPearl(p, QPointF(x, y), 6.0, fret);
        }
    }

    if (firstFret == 1) {
        QLinearGradient bone(QPointF(0, kTop - 8), QPointF(0, kTop + 2));
        bone.setColorAt(0.0, QColor(255, 248, 228));
        bone.setColorAt(1.0, QColor(196, 180, 150));
        p.fillRect(QRectF(board.left(), kTop - 8, board.width(), 10), bone);
    }
    for (int cell = firstFret == 1 ? 1 : 0; cell <= kCellsInSight; ++cell) {
        const double y = wireY(cell);
        QLinearGradient wire(QPointF(0, y - 2), QPointF(0, y + 2));
        wire.setColorAt(0.0, QColor(250, 246, 236));
        wire.setColorAt(0.5, QColor(190, 182, 170));
        wire.setColorAt(1.0, QColor(90, 84, 78));
        p.fillRect(QRectF(board.left(), y - 2, board.width(), 4), wire);
    }

    // Strings: wound and thicker for the low notes, lit on one side.
    for (int i = 0; i < layout.stringX.size(); ++i) {
        const double thickness = qBound(1.2, 1.2 + (72 - table.openNotes.at(i)) / 14.0, 4.2);
        const double x = layout.stringX.at(i);
        // The banjo's short string begins at its fifth fret.
        const double top = table.key == QLatin1String("banjo") && i == 0 ? (firstFret == 1 ? wireY(5) : wireY(0)) : 0.0;
        p.setPen(QPen(QColor(0, 0, 0, 110), thickness + 1.5));
        p.drawLine(QPointF(x + 1.5, top), QPointF(x + 1.5, kPhotoSize.height()));
        const QColor metal = table.openNotes.at(i) < 60 ? QColor(214, 170, 110) : QColor(222, 222, 226);
        p.setPen(QPen(metal, thickness));
        p.drawLine(QPointF(x, top), QPointF(x, kPhotoSize.height()));
    }

    if (firstFret > 1) {
        QFont font;
        font.setPixelSize(20);
        font.setBold(true);
        p.setFont(font);
        p.setPen(QColor(255, 236, 210));
        const double y = (wireY(0) + wireY(1)) / 2;
        p.drawText(
            QRectF(0, y - 14, layout.left - 12, 28), Qt::AlignRight | Qt::AlignVCenter, QString::number(firstFret));
    }
    return image;
}

// The piano photo's octave: white keys C to B across, the black ones above.
const int kWhiteOf[12] = { 0, -1, 1, -1, 2, 3, -1, 4, -1, 5, -1, 6 };
const double kBlackOffset[12] = { 0, 0.62, 0, 0.72, 0, 0, 0.6, 0, 0.68, 0, 0.76, 0 };

} // namespace

QImage ChordArt::photo(const ChordTable& table, const QVector<int>& tab)
{
    static QMap<QString, QImage> necks;
    const int firstFret = firstFretInSight(tab);
    const QString neckKey = table.key + QString::number(firstFret);
    if (!necks.contains(neckKey))
        necks.insert(neckKey, neckPicture(table, firstFret));
    QImage image = necks.value(neckKey).copy();

    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const NeckLayout layout = neckLayout(table.openNotes.size());
    const double spacing = layout.stringX.size() > 1 ? layout.stringX.at(1) - layout.stringX.at(0) : 30;
    for (int i = 0; i < tab.size() && i < layout.stringX.size(); ++i) {
        const int v = tab.at(i);
        const double x = layout.stringX.at(i);
        if (v < 0) {
            drawCross(p, QPointF(x, kTop - 24), 6.0);
        } else if (v == 0) {
            drawRing(p, QPointF(x, kTop - 24), 6.5);
        } else {
            const int cell = v - firstFret + 1;
            const double y = wireY(cell) - (wireY(cell) - wireY(cell - 1)) * 0.38;
            drawFingertip(p, QPointF(x, y), std::min(15.0, spacing * 0.46));
        }
    }
    return image;
}

QImage ChordArt::pianoPhoto(const QString& code)
{
    QImage image(kPhotoSize, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    drawWarmGround(p, kPhotoSize);

    const double keyW = 32.0;
    const double left = (kPhotoSize.width() - keyW * 7) / 2;
    const double top = 40.0;
    const double whiteH = 250.0;
    const double blackH = 150.0;
    p.fillRect(QRectF(left - 6, top - 16, keyW * 7 + 12, 16), QColor(30, 16, 10));
    for (int white = 0; white < 7; ++white) {
        const QRectF key(left + white * keyW + 1, top, keyW - 2, whiteH);
        QLinearGradient ivory(key.topLeft(), key.bottomLeft());
        ivory.setColorAt(0.0, QColor(236, 228, 212));
        ivory.setColorAt(1.0, QColor(255, 250, 240));
        p.setPen(Qt::NoPen);
        p.setBrush(ivory);
        p.drawRoundedRect(key, 3, 3);
    }
    for (int pc = 0; pc < 12; ++pc) {
        if (kWhiteOf[pc] >= 0)
            continue;
        const double x = left + keyW * (kWhiteOf[pc - 1] + 1) - keyW * 0.3 + (kBlackOffset[pc] - 0.66) * 8;
        const QRectF key(x, top, keyW * 0.6, blackH);
        QLinearGradient ebony(key.topLeft(), key.topRight());
        ebony.setColorAt(0.0, QColor(60, 56, 54));
        ebony.setColorAt(0.3, QColor(20, 18, 18));
        ebony.setColorAt(1.0, QColor(6, 6, 6));
        p.setBrush(ebony);
        p.drawRoundedRect(key, 2, 2);
    }
    for (int pc = 0; pc < 12 && pc < code.size(); ++pc) {
        if (code.at(pc) != QLatin1Char('0'))
            continue;
        QPointF centre;
        if (kWhiteOf[pc] >= 0)
            centre = QPointF(left + keyW * (kWhiteOf[pc] + 0.5), top + whiteH - 40);
        else
            centre = QPointF(left + keyW * (kWhiteOf[pc - 1] + 1) + (kBlackOffset[pc] - 0.66) * 8, top + blackH - 30);
        drawFingertip(p, centre, 13.0);
    }
    return image;
}

QImage ChordArt::keyboard(const QString& code, bool tablature)
{
    const QSize size(420, 150);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const double keyW = size.width() / 14.0;
    const double whiteH = size.height() - 2;
    const double blackH = whiteH * 0.6;
    const QColor marked(232, 132, 44);
    const auto isMarked = [&code](int pc) { return pc < code.size() && code.at(pc) == QLatin1Char('0'); };
    for (int octave = 0; octave < 2; ++octave) {
        for (int pc = 0; pc < 12; ++pc) {
            if (kWhiteOf[pc] < 0)
                continue;
            const QRectF key((octave * 7 + kWhiteOf[pc]) * keyW, 1, keyW, whiteH);
            p.setPen(QPen(Qt::black, 1.5));
            p.setBrush(!tablature && isMarked(pc) ? marked : QColor(Qt::white));
            p.drawRect(key);
            if (tablature && isMarked(pc)) {
                p.setPen(Qt::NoPen);
                p.setBrush(QColor(40, 90, 170));
                p.drawEllipse(QPointF(key.center().x(), whiteH - keyW * 0.6), keyW * 0.3, keyW * 0.3);
            }
        }
        for (int pc = 0; pc < 12; ++pc) {
            if (kWhiteOf[pc] >= 0)
                continue;
            const double x = (octave * 7 + kWhiteOf[pc - 1] + 1) * keyW - keyW * 0.3;
            const QRectF key(x, 1, keyW * 0.6, blackH);
            p.setPen(QPen(Qt::black, 1.5));
            p.setBrush(!tablature && isMarked(pc) ? marked.darker(130) : QColor(Qt::black));
            p.drawRect(key);
            if (tablature && isMarked(pc)) {
                p.setPen(Qt::NoPen);
                p.setBrush(QColor(120, 180, 255));
                p.drawEllipse(QPointF(key.center().x(), blackH - keyW * 0.5), keyW * 0.22, keyW * 0.22);
            }
        }
    }
    p.end();
    // Few colours: a palette keeps the files small.
    return image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
}

void ChordArt::generate(ArtWriter& writer)
{
    const QString group = QStringLiteral("Chords");
    // Where the programs' views look: below the library's resource offset.
    const QString offset = QMMusic::ChordPictures::libraryOffset();
    for (const QString& key : ChordTable::keys()) {
        const ChordTable& table = ChordTable::forKey(key);
        QSet<QString> done;
        for (int chord = 0; chord < QMMusic::ChordName::ChordCount; ++chord) {
            const QVector<int> tab = table.row(chord);
            const QString name = QMMusic::ChordPictures::photoName(key, tab);
            if (done.contains(name))
                continue;
            done.insert(name);
            if (table.isPiano) {
                const QString code = QMMusic::ChordPictures::pianoCode(tab);
                writer.addPicture(offset + name, saved(pianoPhoto(code)), kPhotoQuality, group);
                writer.addPicture(
                    offset + QMMusic::ChordPictures::keysName(tab, false), keyboard(code, false), -1, group);
                writer.addPicture(
                    offset + QMMusic::ChordPictures::keysName(tab, true), keyboard(code, true), -1, group);
            } else {
                writer.addPicture(offset + name, saved(photo(table, tab)), kPhotoQuality, group);
            }
        }
    }
}
