#pragma once

#include <QImage>
#include <QString>

class ArtWriter;
namespace QMMusic {
class NeckGeometry;
}

// Draws the guitar neck ("Guitar_0") and one overlay per note that marks
// every place of the note ("Guitar_<stem>"), each at 2048 px and 800 px wide.
class NeckArt
{
public:
    static void generate(ArtWriter& writer);

    static QImage drawNeck(const QMMusic::NeckGeometry& geometry);
    // Transparent picture with a light blue mark on each place of the stem.
    static QImage drawOverlay(const QString& stem, const QSize& size);
};
