#pragma once

#include <QLine>
#include <QRect>
#include <QString>
#include <QVector>

namespace QMMusic {

// Where the parts of a chord's neck diagram and tablature lie in a widget of
// a given size: every length follows from the height H and width W, so the
// drawings scale with the window. Divisions cut towards zero.
class ChordDiagram
{
public:
    struct Mark
    {
        enum Kind
        {
            Dot, // a pressed fret: a filled circle in its cell
            Open, // an open string: a circle left of the nut
            Cross, // a muted string: the rectangle's two diagonals
        };
        Kind kind = Dot;
        QRect rect;
    };
    struct Text
    {
        QPoint at; // the base line's left end
        QString text;
    };

    // The neck diagram: strings across, frets upright, the nut on the left.
    // The high bass ("bass2") shows 8 frets numbered from 5 and no nut; the
    // banjo's frets stop above its short string, the lowest row.
    static ChordDiagram neck(const QSize& size, const QString& key, const QVector<int>& tab);
    // The tablature: one line per string, the last string on top, the fret
    // numbers on the lines, "TAB" at the left.
    static ChordDiagram tablature(const QSize& size, const QVector<int>& tab);

    // The chord name's font and the pen of the drawing.
    int headingPixelSize = 0;
    int penWidth = 0;
    // The font of the fret numbers (neck) or the string numbers (tablature).
    int textPixelSize = 0;
    QVector<QLine> strings;
    // The neck's fret lines, or the tablature's double bar.
    QVector<QLine> bars;
    QVector<Text> texts;
    QVector<Mark> marks;
    // The neck's nut, null where none is drawn, and its pen width.
    QLine nut;
    int nutWidth = 0;
    // The tablature's "T A B", right-aligned in this rectangle in its own size.
    QRect tabLetters;
    int tabLettersPixelSize = 0;
};

} // namespace QMMusic
