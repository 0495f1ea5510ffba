#pragma once

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QSize>

class QImage;
class QPainter;

// The materials that the drawn instruments share: deterministic noise, wood
// with its grain, a texture laid in perspective, the dark ground behind a
// neck and the mother-of-pearl of inlays.
class WoodArt
{
public:
    // Lattice noise in 0..1: a hash of the lattice point, smoothly blended.
    static double hash(int x, int y, int seed);
    static double valueNoise(double x, double y, int seed);
    // Four octaves of valueNoise.
    static double fbm(double x, double y, int seed);
    static QRgb mix(const QColor& a, const QColor& b, double t, double light);
    // A flat wood texture, grain running along its width.
    static QImage woodTexture(const QSize& size, const QColor& dark, const QColor& light, int seed);
    // Fills the quad (picture coordinates) with the texture in perspective.
    static void mapTexture(QPainter& painter, const QImage& texture, const QPolygonF& quad);
    // The dark, softly lit ground of a picture of this size.
    static void drawBackdrop(QPainter& painter, const QSize& size);
    // A round mother-of-pearl inlay.
    static void drawPearl(QPainter& painter, const QPointF& centre, double radius, int seed);
};
