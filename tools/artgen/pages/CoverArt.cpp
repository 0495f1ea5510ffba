#include "CoverArt.h"

#include "ArtWriter.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr int Size = 512;

void paintCover(QPainter& p)
{
    const QRectF sleeve(0, 0, Size, Size);
    QLinearGradient ground(sleeve.topLeft(), sleeve.bottomRight());
    ground.setColorAt(0.0, QColor(196, 118, 62));
    ground.setColorAt(1.0, QColor(92, 46, 22));
    p.fillRect(sleeve, ground);

    const QPointF centre(Size * 0.5, Size * 0.5);
    const double radius = Size * 0.42;
    QRadialGradient vinyl(centre, radius);
    vinyl.setColorAt(0.0, QColor(40, 36, 34));
    vinyl.setColorAt(1.0, QColor(12, 11, 10));
    p.setPen(Qt::NoPen);
    p.setBrush(vinyl);
    p.drawEllipse(centre, radius, radius);

    // Grooves: fine rings, a little lighter than the disc.
    p.setBrush(Qt::NoBrush);
    for (double r = radius * 0.42; r < radius * 0.97; r += 5.0) {
        p.setPen(QPen(QColor(70, 64, 60, 90), 1.0));
        p.drawEllipse(centre, r, r);
    }
    // A sheen across the grooves.
    QLinearGradient sheen(centre - QPointF(radius, radius), centre + QPointF(radius, radius));
    sheen.setColorAt(0.35, QColor(255, 255, 255, 0));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 40));
    sheen.setColorAt(0.65, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(sheen);
    p.drawEllipse(centre, radius, radius);

    const double label = radius * 0.36;
    QRadialGradient paper(centre, label);
    paper.setColorAt(0.0, QColor(232, 168, 104));
    paper.setColorAt(1.0, QColor(176, 98, 48));
    p.setBrush(paper);
    p.drawEllipse(centre, label, label);
    p.setBrush(QColor(20, 18, 16));
    p.drawEllipse(centre, label * 0.1, label * 0.1);
}

} // namespace

void CoverArt::generate(ArtWriter& writer)
{
    QImage image(Size, Size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCover(painter);
    painter.end();
    writer.addPicture(QStringLiteral("pix/Wrenfield.png"), image);
}
