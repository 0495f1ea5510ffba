#pragma once

#include <QString>
#include <QStringList>

namespace QMMusic {

// Moves the chords of a song up or down by semitones. A chord of the song is
// the text of one tab: root, line feed, suffix ("F #\n7", "D\n" for D
// major). A chord spelled with a sharp stays in sharps; every other chord,
// the naturals too, goes to flats. A root that neither scale holds (C♭, F♭,
// "B #", "E #") stays as it is.
class ChordTransposition
{
public:
    // C, D♭, D, ... B, twice.
    static QStringList flatScale();
    // C, "C #", D, ... B, twice.
    static QStringList sharpScale();
    // The tab text `steps` semitones up (from the root's first place in its
    // scale) or down (from its last place); steps outside 0 to 11, or an
    // unknown root, give the text unchanged.
    static QString transpose(const QString& text, int steps, bool up);
    // The texts of the transpose menu: "11 #" ... "1 #" (up), then
    // "1 ♭" ... "11 ♭" (down).
    static QStringList menuTexts();
    // The semitones of a menu text: the part before the blank (up) or
    // before the flat sign (down), as a number (the blank before the flat
    // sign does not matter); -1 if it is none.
    static int steps(const QString& menuText, bool up);
    // A tab's text for a root and a suffix.
    static QString tabText(const QString& root, const QString& suffix);
};

} // namespace QMMusic
