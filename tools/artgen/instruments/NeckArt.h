#pragma once

#include <QImage>
#include <QString>

class ArtWriter;
class QPainter;
class QPointF;
namespace QMMusic {
class NeckGeometry;
}

// Draws the guitar neck ("Guitar_0") and one overlay per note that marks
// every place of the note ("Guitar_<stem>"), each at 2048 px and 800 px wide.
class NeckArt
{
public:
    // The largest mark, glow included, in a 2048 px picture: training keeps
    // a strip of 80 px (at 1x) around a mark, and it must show a whole one.
    static constexpr double MarkMaxExtent = 37.0;

    static void generate(ArtWriter& writer);

    static QImage drawNeck(const QMMusic::NeckGeometry& geometry);
    // A ring around a string at its place, `outer` in radius glow included,
    // with a tinted, see-through middle so that the string shows through.
    static void drawMark(QPainter& painter, const QPointF& centre, double outer);
    // Transparent picture with a light blue mark on each place of the stem.
    static QImage drawOverlay(const QString& stem, const QSize& size);
};
