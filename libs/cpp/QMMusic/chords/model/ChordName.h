#pragma once

#include <QString>
#include <QStringList>

namespace QMMusic {

// The names of the 132 chords: a chord index is root * 11 + type, with the
// roots A, A♭, B, B♭, C, D, D♭, E, E♭, F, G, G♭ and the types major, "m",
// "aug", "dim", "6", "m6", "7", "maj7", "m7", "9", "sus4" in that order.
class ChordName
{
public:
    enum
    {
        RootCount = 12,
        TypeCount = 11,
        ChordCount = RootCount * TypeCount,
        // What a name that is no chord stands for: G♭sus4.
        FallbackChord = ChordCount - 1,
    };

    static bool isValid(int chord) { return chord >= 0 && chord < ChordCount; }
    static int root(int chord) { return chord / TypeCount; }
    static int type(int chord) { return chord % TypeCount; }
    // The natural or flat name of a root ("A", "A♭"), empty outside 0 to 11.
    static QString rootName(int root);
    // Every spelling of a root: the natural or flat name first, then the
    // sharp one ("G #") or the other natural-or-flat one ("C♭") if it has one.
    static QStringList rootSpellings(int root);
    // The suffix of a type: "" for major, "m", ... "sus4".
    static QString suffix(int type);
    // Root name and suffix: "A", "B♭m7"; empty outside 0 to 131.
    static QString name(int chord);
    // The index of a name in any spelling ("C #maj7" gives 73), compared
    // whole and case-sensitively; a string that is no chord name gives
    // FallbackChord.
    static int indexOf(const QString& name);
    // The pitch class of a root, C = 0; -1 outside 0 to 11.
    static int rootPitchClass(int root);
    // "♭" and " #" as the names spell them.
    static QString flatSign();
    static QString sharpSign();
};

} // namespace QMMusic
