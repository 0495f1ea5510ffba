#include "InstrumentSideArt.h"

#include "ArtWriter.h"
#include "WoodArt.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

namespace {

constexpr int SideWidth = 600;
constexpr int SideHeight = 1033;

// One side of the picture's instrument body, seen from the front: its half
// outline, its wood, and what sits on its top.
struct Side
{
    QString key;
    QString fileStem; // "uku" gives "ukuleft.jpg" and "ukuright.jpg"
    QColor dark;
    QColor light;
    QString suffix = QStringLiteral(".jpg");
};

const Side kSides[] = {
    { QStringLiteral("Ukulele"), QStringLiteral("uku"), QColor(168, 108, 56), QColor(226, 176, 112) },
    { QStringLiteral("Violin"), QStringLiteral("violin"), QColor(110, 40, 12), QColor(212, 116, 48) },
    { QStringLiteral("Bass"), QStringLiteral("bass"), QColor(120, 36, 14), QColor(214, 120, 50) },
    { QStringLiteral("Balalaika"), QStringLiteral("balalaika"), QColor(196, 150, 90), QColor(242, 216, 166) },
    { QStringLiteral("Banjo"), QStringLiteral("banjo"), QColor(214, 204, 180), QColor(248, 242, 228) },
    { QStringLiteral("Mandolin"), QStringLiteral("mandolin"), QColor(120, 56, 18), QColor(230, 164, 84) },
    { QStringLiteral("Piano"), QStringLiteral("piano"), QColor(4, 4, 6), QColor(40, 40, 46), QStringLiteral(".png") },
};

// A symmetric outline from its right half, given as cubic segments from the
// top of the centre line down to the bottom of it.
QPainterPath mirrored(double centreX, const QVector<QPointF>& rightHalf)
{
    QPainterPath path(QPointF(centreX, rightHalf.first().y()));
    for (int i = 1; i + 2 < rightHalf.size(); i += 3) {
        path.cubicTo(QPointF(centreX + rightHalf[i].x(), rightHalf[i].y()),
            QPointF(centreX + rightHalf[i + 1].x(), rightHalf[i + 1].y()),
            QPointF(centreX + rightHalf[i + 2].x(), rightHalf[i + 2].y()));
    }
    for (int i = rightHalf.size() - 1; i >= 3; i -= 3) {
        path.cubicTo(QPointF(centreX - rightHalf[i - 1].x(), rightHalf[i - 1].y()),
            QPointF(centreX - rightHalf[i - 2].x(), rightHalf[i - 2].y()),
            QPointF(centreX - rightHalf[i - 3].x(), rightHalf[i - 3].y()));
    }
    path.closeSubpath();
    return path;
}

QPainterPath outlineOf(const QString& key, double centreX)
{
    if (key == QLatin1String("Banjo")) {
        QPainterPath path;
        path.addEllipse(QPointF(centreX, 520), 470, 470);
        return path;
    }
    if (key == QLatin1String("Piano")) {
        // A grand piano seen from above: the straight spine, the bent side
        // narrowing towards the tail.
        return mirrored(centreX,
            { { 0, 30 }, { 200, 30 }, { 330, 40 }, { 330, 200 }, { 330, 420 }, { 300, 560 }, { 250, 700 }, { 200, 860 },
                { 160, 1010 }, { 60, 1010 }, { 20, 1010 }, { 0, 1010 } });
    }
    if (key == QLatin1String("Balalaika")) {
        // Three corners, the lower edge slightly rounded.
        QPainterPath path(QPointF(centreX, 30));
        path.lineTo(centreX + 330, 960);
        path.quadTo(centreX, 1030, centreX - 330, 960);
        path.closeSubpath();
        return path;
    }
    if (key == QLatin1String("Mandolin")) {
        return mirrored(centreX,
            { { 0, 40 }, { 120, 40 }, { 250, 160 }, { 300, 380 }, { 350, 600 }, { 360, 820 }, { 220, 960 },
                { 130, 1010 }, { 60, 1010 }, { 0, 1010 } });
    }
    if (key == QLatin1String("Violin")) {
        // Upper bout, the deep C of the waist with its corners, lower bout.
        return mirrored(centreX,
            { { 0, 26 }, { 160, 20 }, { 270, 80 }, { 270, 250 }, { 270, 330 }, { 240, 370 }, { 190, 380 }, { 160, 460 },
                { 160, 560 }, { 200, 620 }, { 330, 640 }, { 340, 820 }, { 330, 1000 }, { 120, 1010 }, { 0, 1010 } });
    }
    if (key == QLatin1String("Bass")) {
        return mirrored(centreX,
            { { 0, 60 }, { 200, 20 }, { 330, 120 }, { 310, 300 }, { 300, 420 }, { 250, 470 }, { 260, 560 },
                { 270, 660 }, { 380, 760 }, { 340, 920 }, { 300, 1010 }, { 120, 1020 }, { 0, 1020 } });
    }
    // The ukulele: a small figure of eight.
    return mirrored(centreX,
        { { 0, 60 }, { 150, 60 }, { 260, 130 }, { 260, 290 }, { 260, 400 }, { 200, 440 }, { 200, 520 }, { 200, 600 },
            { 330, 640 }, { 330, 800 }, { 330, 960 }, { 180, 1000 }, { 0, 1000 } });
}

// What sits on the top: sound holes, f-holes, pickups, the bridge and strings.
void drawTop(QPainter& painter, const QString& key, double centreX, int strings)
{
    const auto hole = [&](const QPointF& centre, double rx, double ry) {
        painter.setPen(QPen(QColor(236, 224, 196), 8));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, rx + 16, ry + 16);
        painter.setPen(QPen(QColor(50, 28, 16), 5));
        painter.drawEllipse(centre, rx + 26, ry + 26);
        QRadialGradient dark(centre, qMax(rx, ry));
        dark.setColorAt(0.0, QColor(4, 3, 3));
        dark.setColorAt(1.0, QColor(30, 20, 14));
        painter.setPen(Qt::NoPen);
        painter.setBrush(dark);
        painter.drawEllipse(centre, rx, ry);
    };
    double bridgeY = 800;
    if (key == QLatin1String("Ukulele")) {
        hole(QPointF(centreX, 330), 95, 95);
        bridgeY = 780;
    } else if (key == QLatin1String("Balalaika")) {
        hole(QPointF(centreX, 560), 60, 60);
        bridgeY = 850;
    } else if (key == QLatin1String("Mandolin")) {
        hole(QPointF(centreX, 420), 80, 120);
        bridgeY = 760;
    } else if (key == QLatin1String("Violin")) {
        // The f-holes either side of the bridge.
        painter.setPen(QPen(QColor(20, 8, 2), 10, Qt::SolidLine, Qt::RoundCap));
        for (double sign : { -1.0, 1.0 }) {
            QPainterPath f(QPointF(centreX + sign * 120, 470));
            f.cubicTo(QPointF(centreX + sign * 80, 520), QPointF(centreX + sign * 160, 640),
                QPointF(centreX + sign * 110, 700));
            painter.drawPath(f);
            painter.setBrush(QColor(20, 8, 2));
            painter.drawEllipse(QPointF(centreX + sign * 124, 466), 9, 9);
            painter.drawEllipse(QPointF(centreX + sign * 106, 704), 9, 9);
            painter.setBrush(Qt::NoBrush);
        }
        bridgeY = 600;
    } else if (key == QLatin1String("Bass")) {
        for (double y : { 420.0, 560.0 }) {
            painter.setPen(QPen(QColor(70, 70, 74), 3));
            painter.setBrush(QColor(16, 16, 18));
            painter.drawRoundedRect(QRectF(centreX - 110, y - 30, 220, 60), 14, 14);
        }
        bridgeY = 820;
    } else if (key == QLatin1String("Piano")) {
        // The golden iron frame and the strings under the open lid.
        painter.setPen(QPen(QColor(176, 140, 70), 26));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(outlineOf(key, centreX));
        for (int s = -14; s <= 14; ++s) {
            painter.setPen(QPen(QColor(210, 200, 180, 160), 2.0));
            painter.drawLine(QPointF(centreX + s * 18, 60), QPointF(centreX + s * 9, 980));
        }
        return;
    } else if (key == QLatin1String("Banjo")) {
        // The bracket nuts round the rim of the head.
        for (int i = 0; i < 24; ++i) {
            const double angle = i * 2 * M_PI / 24;
            const QPointF at(centreX + std::cos(angle) * 452, 520 + std::sin(angle) * 452);
            QRadialGradient nut(at - QPointF(3, 3), 14);
            nut.setColorAt(0.0, QColor(255, 255, 255));
            nut.setColorAt(1.0, QColor(110, 112, 120));
            painter.setPen(Qt::NoPen);
            painter.setBrush(nut);
            painter.drawEllipse(at, 11, 11);
        }
        bridgeY = 700;
    }

    // The bridge, and the strings running up from it.
    const double spread = 24.0;
    const double half = spread * (strings - 1) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 80));
    painter.drawRoundedRect(QRectF(centreX - half - 36, bridgeY - 10, 2 * half + 72, 30), 8, 8);
    QLinearGradient wood(0, bridgeY - 16, 0, bridgeY + 16);
    wood.setColorAt(0.0, key == QLatin1String("Bass") ? QColor(220, 220, 226) : QColor(120, 74, 40));
    wood.setColorAt(1.0, key == QLatin1String("Bass") ? QColor(90, 90, 96) : QColor(50, 28, 16));
    painter.setBrush(wood);
    painter.drawRoundedRect(QRectF(centreX - half - 40, bridgeY - 16, 2 * half + 80, 28), 8, 8);
    for (int s = 0; s < strings; ++s) {
        const double x = centreX - half + s * spread;
        painter.setPen(QPen(QColor(0, 0, 0, 90), 4.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x + 4, bridgeY - 6), QPointF(x * 0.92 + centreX * 0.08 + 4, 0));
        painter.setPen(QPen(QColor(236, 232, 222), 2.4, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x, bridgeY - 10), QPointF(x * 0.92 + centreX * 0.08, 0));
    }
}

int stringsOf(const QString& key)
{
    if (key == QLatin1String("Balalaika"))
        return 3;
    if (key == QLatin1String("Banjo"))
        return 5;
    if (key == QLatin1String("Mandolin"))
        return 8;
    return 4;
}

QImage sidePicture(const Side& side, double centreX)
{
    QImage image(SideWidth, SideHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    WoodArt::drawBackdrop(painter, image.size());

    const QPainterPath outline = outlineOf(side.key, centreX);
    const double towardsGround = centreX < SideWidth / 2 ? 1.0 : -1.0;
    painter.setPen(Qt::NoPen);
    for (int i = 6; i >= 1; --i) {
        painter.setBrush(QColor(0, 0, 0, 22));
        painter.drawPath(outline.translated(towardsGround * i * 4.0, i * 3.0));
    }

    painter.save();
    painter.setClipPath(outline);
    if (side.key == QLatin1String("Banjo")) {
        // The chrome rim, then the frosted head inside it.
        painter.fillRect(image.rect(), QColor(200, 202, 208));
        QRadialGradient head(QPointF(centreX - 120, 380), 560);
        head.setColorAt(0.0, side.light);
        head.setColorAt(1.0, side.dark);
        painter.setBrush(head);
        painter.drawEllipse(QPointF(centreX, 520), 430, 430);
    } else {
        // Grain running along the body, from the neck to the tail.
        painter.translate(SideWidth, 0);
        painter.rotate(90);
        painter.drawImage(0, 0, WoodArt::woodTexture(QSize(SideHeight, SideWidth), side.dark, side.light, 29));
        painter.resetTransform();
    }
    if (side.key == QLatin1String("Bass")) {
        QRadialGradient burst(QPointF(centreX, 560), 480);
        burst.setColorAt(0.0, QColor(0, 0, 0, 0));
        burst.setColorAt(0.65, QColor(20, 8, 4, 110));
        burst.setColorAt(1.0, QColor(8, 4, 2, 245));
        painter.fillRect(image.rect(), burst);
    }
    drawTop(painter, side.key, centreX, stringsOf(side.key));
    QLinearGradient gloss(0, 0, SideWidth, SideHeight);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 46));
    gloss.setColorAt(0.4, QColor(255, 255, 255, 6));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 50));
    painter.fillRect(image.rect(), gloss);
    // Binding along the edge; half of the stroke falls outside the clip.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(side.key == QLatin1String("Violin") ? QColor(40, 14, 4) : QColor(232, 222, 196), 18));
    painter.drawPath(outline);
    painter.restore();
    painter.end();
    return image;
}

} // namespace

void InstrumentSideArt::generate(ArtWriter& writer)
{
    for (const Side& side : kSides) {
        writer.addPicture(side.fileStem + QStringLiteral("left") + side.suffix, sidePicture(side, -30.0), 90, side.key);
        writer.addPicture(
            side.fileStem + QStringLiteral("right") + side.suffix, sidePicture(side, SideWidth + 30.0), 90, side.key);
    }
}
