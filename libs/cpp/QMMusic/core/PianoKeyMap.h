#pragma once

#include <QString>
#include <QVector>

namespace QMMusic {

// The drawn 88-key keyboard in the boards' design space of 800 by 194:
// the keys' numbers (A0 = 1 to C8 = 88) and the hit test by the intervals
// of the drawing. A key's top lies between y 69 and 135; below y 112 the
// black keys stand between the narrow upper parts of the white keys, from
// y 112 down only the white keys' wide lower parts. The intervals' small
// gaps and overlaps follow the drawing: where two overlap, the one listed
// first wins.
class PianoKeyMap
{
public:
    static constexpr int KeyCount = 88;
    static constexpr double UpperTop = 69.0;
    static constexpr double LowerTop = 112.0;
    static constexpr double LowerBottom = 135.0;

    // One key's stretch along x, low <= x < high, in design units.
    struct Interval
    {
        QString position;
        int low = 0;
        int high = 0;
    };

    // The wide lower parts of the 52 white keys, tested alone below y 112.
    static const QVector<Interval>& lowerWhiteKeys();
    // The 36 black keys, tested first above y 112.
    static const QVector<Interval>& blackKeys();
    // The narrow upper parts of the 52 white keys, tested after the black keys.
    static const QVector<Interval>& upperWhiteKeys();

    // The key of a note name and accidental: octave * 12 + the letter's
    // base + accidental - 12, at least 1. The accidental is added as it
    // stands; an unknown letter has base 0 and no accidental.
    static int keyNumber(const QString& noteName, int accidental);
    // "A0" for 1, "A0#" for 2, ..., "C8" for 88; empty outside.
    static QString positionName(int key);
    // The position name at a design point, in floating point; empty in a
    // gap, above y 69 and from y 135 down.
    static QString noteAtDesignPoint(double px, double py);
    // The same for a point of a widget of this size.
    static QString noteAt(int x, int y, int width, int height);
};

} // namespace QMMusic
