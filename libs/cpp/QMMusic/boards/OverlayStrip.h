#pragma once

#include <QPixmap>

class QImage;

namespace QMMusic {

// Reduces an overlay that shows every place of a note to one place: the
// picture is searched for a mark and all but a strip around it is erased.
class OverlayStrip
{
public:
    // Column of the lowest row's first mark left of (or at) the start
    // column, walking leftwards; if that finds nothing above column 0, the
    // same walk rightwards. A mark has blue or red above 50. -1 for none.
    static int findMarkColumn(const QImage& image, int startColumn);
    // A copy of the overlay with a strip of 80 * ratio pixels kept around
    // the mark found from the start column; the copy's pixel ratio is 1 / ratio.
    static QPixmap keepStrip(const QPixmap& overlay, int startColumn, qreal ratio);
    // keepStrip from a start column drawn at random, seeded by the clock.
    static QPixmap keepRandomStrip(const QPixmap& overlay, qreal ratio);
};

} // namespace QMMusic
