#pragma once

#include <QPoint>
#include <QString>
#include <QVector>

namespace QMMusic {

// The hit boxes of the guitar neck in its 800 by 194 design space and the
// lookup from a point to the position name of the note pressed there.
class GuitarFretMap
{
public:
    static constexpr int DesignWidth = 800;
    static constexpr int DesignHeight = 194;
    static constexpr int StringCount = 6;
    // Open column, frets 1 to 22, and the far end of the strings.
    static constexpr int ColumnCount = 24;

    // Centre of a box in design units; string 1 (E4) to 6 (E2), column 0 to 23.
    static QPoint centre(int string, int column);
    // Position name of a box, e.g. string 6, column 2 gives "F2#".
    static QString positionName(int string, int column);
    // Whether p lies in the 32 by 10 box around (x, y), edges included.
    static bool boxContains(int x, int y, const QPoint& p);
    // The order in which notes are tested: naturals E2 to D6, then sharps
    // F2# to C6#. A point in two boxes belongs to the note that comes first.
    static const QVector<QString>& noteOrder();
    // Widget point to design point, truncating towards zero; false for an
    // empty widget.
    static bool toDesign(int x, int y, int width, int height, QPoint* design);
    // Position name at a design point, or an empty string in the gaps.
    static QString noteAtDesignPoint(const QPoint& design);
    // Position name at a widget point of a widget of the given size.
    static QString noteAt(int x, int y, int width, int height);
};

} // namespace QMMusic
