#pragma once

#include <QImage>
#include <QString>

class ArtWriter;
namespace QMMusic {
class FingerboardDesign;
}

// Draws the fingerboard of an instrument beside the guitar from its design
// ("<Key>_0") and one overlay per stem that marks every place whose press
// answers that note ("<Key>_<stem>"), each at 2048 px and 800 px wide. The
// frets, strings and marks are placed by the same geometry as the hit boxes.
class FingerboardArt
{
public:
    static void generate(ArtWriter& writer);

    static QImage drawBoard(const QMMusic::FingerboardDesign& design);
    // Transparent picture with a light blue mark on each place of the stem.
    static QImage drawOverlay(const QMMusic::FingerboardDesign& design, const QString& stem, const QSize& size);
};
