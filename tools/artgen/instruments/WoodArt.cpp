#include "WoodArt.h"

#include <QConicalGradient>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

// Deterministic lattice noise: a hash of the lattice point, smoothly blended.
double WoodArt::hash(int x, int y, int seed)
{
    quint32 h = quint32(x) * 374761393u + quint32(y) * 668265263u + quint32(seed) * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h ^= h >> 16;
    return (h & 0xffffff) / double(0xffffff);
}

double WoodArt::valueNoise(double x, double y, int seed)
{
    const int xi = int(std::floor(x));
    const int yi = int(std::floor(y));
    const double fx = x - xi;
    const double fy = y - yi;
    const double ux = fx * fx * (3 - 2 * fx);
    const double uy = fy * fy * (3 - 2 * fy);
    const double a = hash(xi, yi, seed);
    const double b = hash(xi + 1, yi, seed);
    const double c = hash(xi, yi + 1, seed);
    const double d = hash(xi + 1, yi + 1, seed);
    return (a + (b - a) * ux) + ((c + (d - c) * ux) - (a + (b - a) * ux)) * uy;
}

double WoodArt::fbm(double x, double y, int seed)
{
    double sum = 0, amplitude = 0.5, total = 0;
    for (int octave = 0; octave < 4; ++octave) {
        sum += amplitude * valueNoise(x, y, seed + octave * 17);
        total += amplitude;
        x *= 2.03;
        y *= 2.03;
        amplitude *= 0.5;
    }
    return sum / total;
}

QRgb WoodArt::mix(const QColor& a, const QColor& b, double t, double light)
{
    t = qBound(0.0, t, 1.0);
    auto channel = [&](int ca, int cb) { return qBound(0, int((ca + (cb - ca) * t) * light), 255); };
    return qRgb(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

// A flat wood texture, grain running along its width; darker towards the
// long edges, where the board curves away from the light.
QImage WoodArt::woodTexture(const QSize& size, const QColor& dark, const QColor& light, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int v = 0; v < size.height(); ++v) {
        QRgb* line = reinterpret_cast<QRgb*>(image.scanLine(v));
        const double across = double(v) / (size.height() - 1);
        const double edge = 0.72 + 0.28 * std::sin(M_PI * across);
        for (int u = 0; u < size.width(); ++u) {
            const double warp = 40.0 * valueNoise(u * 0.0025, v * 0.012, seed + 3);
            const double vv = v + warp;
            const double streak = fbm(u * 0.0022, vv * 0.07, seed);
            const double fine = valueNoise(u * 0.03, vv * 0.55, seed + 7);
            double t = 0.65 * streak + 0.35 * fine;
            t = std::pow(qBound(0.0, (t - 0.25) / 0.55, 1.0), 1.4);
            double shade = edge;
            const double pore = valueNoise(u * 0.09, vv * 1.3, seed + 11);
            if (pore > 0.8)
                shade *= 0.62 + (1.0 - pore) * 1.2;
            line[u] = mix(dark, light, t, shade);
        }
    }
    return image;
}

// Fills the quad (picture coordinates) with the texture in perspective.
void WoodArt::mapTexture(QPainter& painter, const QImage& texture, const QPolygonF& quad)
{
    const double w = texture.width();
    const double h = texture.height();
    const QPolygonF flat({ QPointF(0, 0), QPointF(w, 0), QPointF(w, h), QPointF(0, h) });
    QTransform transform;
    if (!QTransform::quadToQuad(flat, quad, transform))
        return;
    painter.save();
    QPainterPath clip;
    clip.addPolygon(quad);
    painter.setClipPath(clip);
    painter.setTransform(transform);
    painter.drawImage(QPointF(0, 0), texture);
    painter.restore();
}

void WoodArt::drawBackdrop(QPainter& painter, const QSize& size)
{
    QLinearGradient ground(0, 0, 0, size.height());
    ground.setColorAt(0.0, QColor(38, 34, 36));
    ground.setColorAt(0.5, QColor(27, 24, 26));
    ground.setColorAt(1.0, QColor(16, 14, 16));
    painter.fillRect(QRect(QPoint(0, 0), size), ground);

    QRadialGradient glow(QPointF(size.width() * 0.55, size.height() * 0.45), size.width() * 0.6);
    glow.setColorAt(0.0, QColor(90, 70, 55, 60));
    glow.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.fillRect(QRect(QPoint(0, 0), size), glow);
}

void WoodArt::drawPearl(QPainter& painter, const QPointF& centre, double radius, int seed)
{
    QRadialGradient base(centre - QPointF(radius * 0.3, radius * 0.35), radius * 1.3);
    base.setColorAt(0.0, QColor(252, 250, 244));
    base.setColorAt(0.6, QColor(226, 228, 222));
    base.setColorAt(1.0, QColor(178, 182, 190));
    painter.setPen(QPen(QColor(60, 40, 30, 160), 1.0));
    painter.setBrush(base);
    painter.drawEllipse(centre, radius, radius);

    // The play of colours of mother-of-pearl.
    QConicalGradient shimmer(centre, seed * 47 % 360);
    shimmer.setColorAt(0.0, QColor(255, 190, 210, 70));
    shimmer.setColorAt(0.25, QColor(190, 255, 220, 60));
    shimmer.setColorAt(0.5, QColor(180, 210, 255, 75));
    shimmer.setColorAt(0.75, QColor(255, 240, 190, 55));
    shimmer.setColorAt(1.0, QColor(255, 190, 210, 70));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shimmer);
    painter.drawEllipse(centre, radius * 0.92, radius * 0.92);

    painter.setBrush(QColor(255, 255, 255, 150));
    painter.drawEllipse(centre - QPointF(radius * 0.35, radius * 0.35), radius * 0.28, radius * 0.2);
}
