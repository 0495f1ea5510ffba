#include "PianoKeyMap.h"

#include <algorithm>

namespace QMMusic {

namespace {

const PianoKeyMap::Interval kLowerWhite[] = {
    { "A0", 20, 37 },
    { "B0", 37, 51 },
    { "C1", 51, 65 },
    { "D1", 65, 79 },
    { "E1", 79, 94 },
    { "F1", 94, 109 },
    { "G1", 109, 123 },
    { "A1", 123, 138 },
    { "B1", 138, 153 },
    { "C2", 153, 167 },
    { "D2", 167, 182 },
    { "E2", 182, 197 },
    { "F2", 197, 212 },
    { "G2", 212, 226 },
    { "A2", 226, 241 },
    { "B2", 241, 256 },
    { "C3", 256, 271 },
    { "D3", 271, 285 },
    { "E3", 285, 299 },
    { "F3", 299, 315 },
    { "G3", 315, 330 },
    { "A3", 330, 344 },
    { "B3", 344, 358 },
    { "C4", 358, 373 },
    { "D4", 373, 388 },
    { "E4", 388, 403 },
    { "F4", 403, 418 },
    { "G4", 418, 432 },
    { "A4", 432, 447 },
    { "B4", 447, 462 },
    { "C5", 462, 477 },
    { "D5", 477, 491 },
    { "E5", 491, 505 },
    { "F5", 505, 520 },
    { "G5", 520, 535 },
    { "A5", 535, 550 },
    { "B5", 550, 564 },
    { "C6", 564, 579 },
    { "D6", 579, 594 },
    { "E6", 594, 609 },
    { "F6", 609, 623 },
    { "G6", 623, 638 },
    { "A6", 638, 653 },
    { "B6", 653, 667 },
    { "C7", 667, 682 },
    { "D7", 682, 697 },
    { "E7", 697, 711 },
    { "F7", 711, 726 },
    { "G7", 726, 741 },
    { "A7", 741, 756 },
    { "B7", 756, 776 },
    { "C8", 776, 790 },
};

const PianoKeyMap::Interval kBlack[] = {
    { "A0#", 32, 42 },
    { "C1#", 60, 71 },
    { "D1#", 75, 85 },
    { "F1#", 105, 115 },
    { "G1#", 119, 129 },
    { "A1#", 134, 144 },
    { "C2#", 162, 172 },
    { "D2#", 178, 188 },
    { "F2#", 207, 217 },
    { "G2#", 222, 232 },
    { "A2#", 237, 247 },
    { "C3#", 266, 276 },
    { "D3#", 280, 290 },
    { "F3#", 311, 321 },
    { "G3#", 326, 336 },
    { "A3#", 340, 350 },
    { "C4#", 369, 379 },
    { "D4#", 382, 392 },
    { "F4#", 414, 424 },
    { "G4#", 428, 438 },
    { "A4#", 443, 453 },
    { "C5#", 472, 482 },
    { "D5#", 487, 497 },
    { "F5#", 516, 526 },
    { "G5#", 530, 540 },
    { "A5#", 545, 555 },
    { "C6#", 574, 584 },
    { "D6#", 589, 599 },
    { "F6#", 619, 629 },
    { "G6#", 634, 644 },
    { "A6#", 648, 658 },
    { "C7#", 678, 688 },
    { "D7#", 693, 703 },
    { "F7#", 722, 732 },
    { "G7#", 737, 747 },
    { "A7#", 752, 762 },
};

const PianoKeyMap::Interval kUpperWhite[] = {
    { "A0", 22, 32 },
    { "B0", 43, 50 },
    { "C1", 51, 61 },
    { "D1", 71, 74 },
    { "E1", 86, 93 },
    { "F1", 94, 104 },
    { "G1", 115, 119 },
    { "A1", 130, 133 },
    { "B1", 144, 152 },
    { "C2", 153, 162 },
    { "D2", 173, 177 },
    { "E2", 188, 196 },
    { "F2", 197, 206 },
    { "G2", 217, 221 },
    { "A2", 232, 236 },
    { "B2", 247, 255 },
    { "C3", 256, 266 },
    { "D3", 276, 280 },
    { "E3", 290, 298 },
    { "F3", 299, 310 },
    { "G3", 320, 325 },
    { "A3", 335, 339 },
    { "B3", 350, 357 },
    { "C4", 358, 368 },
    { "D4", 379, 383 },
    { "E4", 393, 402 },
    { "F4", 403, 413 },
    { "G4", 422, 428 },
    { "A4", 438, 442 },
    { "B4", 452, 461 },
    { "C5", 460, 472 },
    { "D5", 483, 487 },
    { "E5", 497, 504 },
    { "F5", 505, 515 },
    { "G5", 525, 530 },
    { "A5", 540, 544 },
    { "B5", 555, 563 },
    { "C6", 563, 573 },
    { "D6", 585, 589 },
    { "E6", 599, 608 },
    { "F6", 609, 618 },
    { "G6", 627, 634 },
    { "A6", 644, 647 },
    { "B6", 658, 666 },
    { "C7", 667, 678 },
    { "D7", 684, 692 },
    { "E7", 704, 710 },
    { "F7", 711, 721 },
    { "G7", 730, 736 },
    { "A7", 747, 757 },
    { "B7", 760, 770 },
    { "C8", 770, 784 },
};

template <size_t N> QVector<PianoKeyMap::Interval> toVector(const PianoKeyMap::Interval (&rows)[N])
{
    return QVector<PianoKeyMap::Interval>(std::begin(rows), std::end(rows));
}

// The first interval of the list that holds px, or an empty name.
QString firstHolding(const QVector<PianoKeyMap::Interval>& intervals, double px)
{
    const auto hit = std::find_if(intervals.cbegin(), intervals.cend(),
        [px](const PianoKeyMap::Interval& interval) { return interval.low <= px && px < interval.high; });
    return hit == intervals.cend() ? QString() : hit->position;
}

const char* const kPositionNames[12] = { "A", "A#", "B", "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#" };

} // namespace

const QVector<PianoKeyMap::Interval>& PianoKeyMap::lowerWhiteKeys()
{
    static const QVector<Interval> keys = toVector(kLowerWhite);
    return keys;
}

const QVector<PianoKeyMap::Interval>& PianoKeyMap::blackKeys()
{
    static const QVector<Interval> keys = toVector(kBlack);
    return keys;
}

const QVector<PianoKeyMap::Interval>& PianoKeyMap::upperWhiteKeys()
{
    static const QVector<Interval> keys = toVector(kUpperWhite);
    return keys;
}

int PianoKeyMap::keyNumber(const QString& noteName, int accidental)
{
    static const QString letters = QStringLiteral("CDEFGAB");
    static const int bases[] = { 4, 6, 8, 9, 11, 13, 15 };
    const int letter = letters.indexOf(noteName.left(1));
    const int base = letter < 0 || noteName.isEmpty() ? 0 : bases[letter];
    const int added = letter < 0 || noteName.isEmpty() ? 0 : accidental;
    const int octave = noteName.mid(1, 1).toInt();
    return qMax(1, octave * 12 + base + added - 12);
}

QString PianoKeyMap::positionName(int key)
{
    if (key < 1 || key > KeyCount)
        return QString();
    // Key 1 is A0; the octave number turns at each C (key 4, 16, ...).
    const int fromA0 = key - 1;
    const QString name = QLatin1String(kPositionNames[fromA0 % 12]);
    const int octave = (key + 8) / 12;
    return name.left(1) + QString::number(octave) + name.mid(1);
}

QString PianoKeyMap::noteAtDesignPoint(double px, double py)
{
    if (py >= LowerTop && py < LowerBottom)
        return firstHolding(lowerWhiteKeys(), px);
    if (py >= UpperTop && py < LowerTop) {
        const QString black = firstHolding(blackKeys(), px);
        return black.isEmpty() ? firstHolding(upperWhiteKeys(), px) : black;
    }
    return QString();
}

QString PianoKeyMap::noteAt(int x, int y, int width, int height)
{
    if (width <= 0 || height <= 0)
        return QString();
    return noteAtDesignPoint(x * 800.0 / width, y * 194.0 / height);
}

} // namespace QMMusic
