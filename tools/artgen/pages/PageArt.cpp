#include "PageArt.h"

#include "ArtWriter.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <array>
#include <cmath>

namespace {

constexpr int SideWidth = 600;
constexpr int SideHeight = 1033;

// A small deterministic generator, so that every run writes the same bytes.
class Lcg
{
public:
    explicit Lcg(quint32 seed)
        : m_state(seed)
    {
    }
    // 0 <= value < 1
    double next()
    {
        m_state = m_state * 1664525u + 1013904223u;
        return (m_state >> 8) / double(1u << 24);
    }

private:
    quint32 m_state;
};

// The outline of a guitar top, centre line at centreX: upper bout 560 wide,
// waist 430, lower bout 760, from y 26 to 1006.
QPainterPath bodyOutline(double centreX)
{
    QPainterPath path(QPointF(centreX, 26));
    const auto side = [&](double sign) {
        const auto at = [&](double x, double y) { return QPointF(centreX + sign * x, y); };
        return std::array<QPointF, 12> { at(150, 26), at(280, 90), at(280, 250), at(280, 360), at(215, 385),
            at(215, 470), at(215, 550), at(380, 560), at(380, 730), at(380, 900), at(230, 1006), at(0, 1006) };
    };
    const std::array<QPointF, 12> right = side(1.0);
    for (int i = 0; i < 12; i += 3)
        path.cubicTo(right[i], right[i + 1], right[i + 2]);
    // Back up the other side: the same curves mirrored and reversed.
    const std::array<QPointF, 12> left = side(-1.0);
    const QPointF top(centreX, 26);
    const std::array<QPointF, 13> chain { top, left[0], left[1], left[2], left[3], left[4], left[5], left[6], left[7],
        left[8], left[9], left[10], left[11] };
    for (int i = 12; i >= 3; i -= 3)
        path.cubicTo(chain[i - 1], chain[i - 2], chain[i - 3]);
    path.closeSubpath();
    return path;
}

// Quarter-sawn spruce: fine straight grain along the body with slow changes
// of colour across it.
QImage spruceTexture(const QSize& size, quint32 seed)
{
    Lcg random(seed);
    QVector<double> grain(size.width());
    double position = 0.0;
    double phase = random.next() * 6.28;
    for (int x = 0; x < size.width(); ++x) {
        position += 0.08 + 0.3 * random.next();
        const double line = 0.5 + 0.5 * std::cos(position * 2.0 * M_PI / 3.0);
        grain[x] = std::pow(line, 8.0) * (0.35 + 0.3 * std::sin(x * 0.011 + phase));
    }
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* scan = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double flame = 0.03 * std::sin(y * 0.021) + 0.02 * std::sin(y * 0.0057 + 1.3);
        for (int x = 0; x < size.width(); ++x) {
            const double band = 0.5 + 0.5 * std::sin(x * 0.007 + y * 0.0004);
            const double dark = grain[x] * 0.35 + band * 0.08 - flame;
            const double r = 236.0 - 70.0 * dark;
            const double g = 204.0 - 80.0 * dark;
            const double b = 142.0 - 80.0 * dark;
            scan[x] = qRgb(qBound(0, int(r), 255), qBound(0, int(g), 255), qBound(0, int(b), 255));
        }
    }
    return image;
}

void drawGround(QPainter& painter)
{
    QLinearGradient ground(0, 0, 0, SideHeight);
    ground.setColorAt(0.0, QColor(38, 34, 36));
    ground.setColorAt(0.5, QColor(27, 24, 26));
    ground.setColorAt(1.0, QColor(16, 14, 16));
    painter.fillRect(QRect(0, 0, SideWidth, SideHeight), ground);
}

void drawRosette(QPainter& painter, const QPointF& centre)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(236, 226, 200));
    painter.drawEllipse(centre, 142.0, 142.0);
    // A ring of alternating rosewood and maple tiles.
    const int tiles = 72;
    for (int i = 0; i < tiles; ++i) {
        QPainterPath tile;
        tile.moveTo(centre);
        tile.arcTo(QRectF(centre.x() - 136, centre.y() - 136, 272, 272), i * 360.0 / tiles, 360.0 / tiles);
        tile.closeSubpath();
        painter.setBrush(i % 2 ? QColor(70, 36, 22) : QColor(214, 186, 134));
        painter.drawPath(tile);
    }
    painter.setBrush(QColor(28, 18, 14));
    painter.drawEllipse(centre, 118.0, 118.0);
    painter.setBrush(QColor(236, 226, 200));
    painter.drawEllipse(centre, 112.0, 112.0);
    painter.setBrush(QColor(40, 22, 16));
    painter.drawEllipse(centre, 106.0, 106.0);
    // The sound hole: the dark inside of the body.
    QRadialGradient hole(centre, 100.0);
    hole.setColorAt(0.0, QColor(4, 3, 3));
    hole.setColorAt(0.85, QColor(14, 10, 9));
    hole.setColorAt(1.0, QColor(40, 28, 22));
    painter.setBrush(hole);
    painter.drawEllipse(centre, 100.0, 100.0);
}

void drawBridgeAndStrings(QPainter& painter, double centreX)
{
    const double bridgeY = 770.0;
    QLinearGradient rosewood(0, bridgeY - 26, 0, bridgeY + 26);
    rosewood.setColorAt(0.0, QColor(92, 50, 32));
    rosewood.setColorAt(0.5, QColor(58, 30, 20));
    rosewood.setColorAt(1.0, QColor(34, 18, 12));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawRoundedRect(QRectF(centreX - 176, bridgeY - 22, 352, 56), 20, 20);
    painter.setBrush(rosewood);
    painter.drawRoundedRect(QRectF(centreX - 180, bridgeY - 28, 360, 56), 22, 22);
    painter.setBrush(QColor(242, 236, 218));
    painter.drawRect(QRectF(centreX - 96, bridgeY - 16, 192, 7));

    // Six strings from the saddle up over the sound hole, thick bass to thin treble.
    const double widths[6] = { 4.4, 3.6, 3.0, 2.4, 1.7, 1.3 };
    for (int s = 0; s < 6; ++s) {
        const double atBridge = centreX - 75.0 + s * 30.0;
        const double atTop = centreX - 57.0 + s * 22.8;
        QLinearGradient metal(atBridge - widths[s], 0, atBridge + widths[s], 0);
        const bool wound = s < 3;
        metal.setColorAt(0.0, wound ? QColor(120, 96, 60) : QColor(110, 110, 116));
        metal.setColorAt(0.45, wound ? QColor(236, 212, 160) : QColor(246, 246, 250));
        metal.setColorAt(1.0, wound ? QColor(96, 74, 44) : QColor(90, 90, 96));
        painter.setPen(QPen(QColor(0, 0, 0, 90), widths[s] + 1.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(atBridge + 4, bridgeY - 8), QPointF(atTop + 4, 0));
        painter.setPen(QPen(QBrush(metal), widths[s], Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(atBridge, bridgeY - 12), QPointF(atTop, 0));
    }
    // Bridge pins below the saddle.
    for (int s = 0; s < 6; ++s) {
        const QPointF pin(centreX - 75.0 + s * 30.0, bridgeY + 12);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(236, 230, 214));
        painter.drawEllipse(pin, 7.0, 7.0);
        painter.setBrush(QColor(30, 20, 16));
        painter.drawEllipse(pin, 2.5, 2.5);
    }
}

// The guitar top whose centre line lies at centreX, so only one side of it
// shows in the picture.
QImage sidePicture(double centreX, quint32 seed)
{
    QImage image(SideWidth, SideHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGround(painter);

    const QPainterPath outline = bodyOutline(centreX);
    const double towardsGround = centreX < SideWidth / 2 ? 1.0 : -1.0;

    // Shadow of the body on the ground, cast towards the picture's open side.
    painter.setPen(Qt::NoPen);
    for (int i = 6; i >= 1; --i) {
        painter.setBrush(QColor(0, 0, 0, 22));
        painter.drawPath(outline.translated(towardsGround * i * 4.0, i * 3.0));
    }

    painter.save();
    painter.setClipPath(outline);
    painter.drawImage(0, 0, spruceTexture(QSize(SideWidth, SideHeight), seed));
    drawRosette(painter, QPointF(centreX, 330.0));
    drawBridgeAndStrings(painter, centreX);
    // Lacquer: light from the upper left, falling off towards the edge.
    QLinearGradient gloss(0, 0, SideWidth, SideHeight);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 46));
    gloss.setColorAt(0.4, QColor(255, 255, 255, 6));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 50));
    painter.fillRect(image.rect(), gloss);
    QRadialGradient edge(QPointF(centreX, 600.0), 520.0);
    edge.setColorAt(0.6, QColor(0, 0, 0, 0));
    edge.setColorAt(1.0, QColor(40, 20, 0, 70));
    painter.fillRect(image.rect(), edge);
    // Bands along the edge, inside the outline: a black, cream and black
    // purfling, the ivory binding and the rosewood rim; each stroke is twice
    // the band's distance from the edge and half of it falls outside the clip.
    const struct
    {
        double inset;
        QColor colour;
    } bands[] = { { 24.0, QColor(20, 14, 12) }, { 21.0, QColor(232, 222, 196) }, { 18.0, QColor(20, 14, 12) },
        { 15.0, QColor(226, 212, 178) }, { 6.0, QColor(64, 34, 22) } };
    painter.setBrush(Qt::NoBrush);
    for (const auto& band : bands) {
        painter.setPen(QPen(band.colour, band.inset * 2.0));
        painter.drawPath(outline);
    }
    painter.restore();
    painter.end();
    return image;
}

// Warm writing paper: a fine, even grain, a few faint fibres and slightly
// darker edges.
QImage paperPicture()
{
    const QSize size(1200, 700);
    QImage image(size, QImage::Format_RGB32);
    Lcg random(20231);
    for (int y = 0; y < size.height(); ++y) {
        auto* scan = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double dy = (y - size.height() * 0.5) / (size.height() * 0.5);
        for (int x = 0; x < size.width(); ++x) {
            const double dx = (x - size.width() * 0.5) / (size.width() * 0.5);
            const double vignette = 1.0 - 0.05 * (dx * dx + dy * dy);
            const double grain = (random.next() - 0.5) * 6.0;
            const double r = (251.0 + grain) * vignette;
            const double g = (248.0 + grain) * vignette;
            const double b = (238.0 + grain) * vignette;
            scan[x] = qRgb(qBound(0, int(r), 255), qBound(0, int(g), 255), qBound(0, int(b), 255));
        }
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 260; ++i) {
        const QPointF start(random.next() * size.width(), random.next() * size.height());
        const double angle = random.next() * 2.0 * M_PI;
        const double length = 8.0 + random.next() * 30.0;
        const QPointF bend(
            start.x() + std::cos(angle + 0.4) * length * 0.5, start.y() + std::sin(angle + 0.4) * length * 0.5);
        const QPointF end(start.x() + std::cos(angle) * length, start.y() + std::sin(angle) * length);
        QPainterPath fibre(start);
        fibre.quadTo(bend, end);
        painter.setPen(QPen(QColor(150, 130, 100, 18 + int(random.next() * 18)), 0.8));
        painter.drawPath(fibre);
    }
    painter.end();
    return image;
}

} // namespace

void PageArt::generate(ArtWriter& writer)
{
    writer.addPicture(QStringLiteral("guitarleft.jpg"), sidePicture(-30.0, 7), 90);
    writer.addPicture(QStringLiteral("guitarright.jpg"), sidePicture(SideWidth + 30.0, 13), 90);
    writer.addPicture(QStringLiteral("guitarpaper.jpg"), paperPicture(), 90);
}
