#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace QMMusic {

// How each of the 132 chords is played on one instrument of the chord pages:
// one row per chord index, one entry per string in the order of the page's
// strings (lowest string first on guitar and bass, the banjo's short fifth
// string first). -1 is a muted string, 0 an open one, above 0 the fret. The
// piano's row has 24 entries, the keys C3 to B4, and there 0 means the key
// is down and -1 that it is not. The rows are written by hand in the source
// of this class, one table per instrument.
class ChordTable
{
public:
    enum
    {
        PianoKeyCount = 24,
        PianoLowestNote = 48, // C3
    };

    // "guitar", "bass", "bass2", "ukulele", "mandolin", "banjo",
    // "balalaika", "piano".
    static QStringList keys();
    // The table of an instrument key; an empty table (no strings, no rows)
    // for an unknown key.
    static const ChordTable& forKey(const QString& key);

    // The key that the pages and pictures use ("bass2").
    QString key;
    // The word in front of the samples' names ("bass" for both basses).
    QString samplePrefix;
    // MIDI notes of the open strings in row order; empty for the piano.
    QVector<int> openNotes;
    // The highest position of each string that has a sample.
    QVector<int> lastPositions;
    // The page's delay value.
    int delay = 0;
    bool isPiano = false;
    // The diagram's frets: 6 cells numbered from 1, or 8 numbered from 5
    // for the high bass voicings.
    int fretCells = 6;
    int firstFret = 1;

    // Entries of a row: the strings, or 24 on the piano.
    int entryCount() const;
    // The row of a chord; empty outside 0 to 131.
    QVector<int> row(int chord) const;
    // The file stem ("Ad4") that sounds at one entry of a row, or an empty
    // string where nothing sounds: a muted string, a fret above the last
    // position with a sample, a key that is not down.
    QString stemAt(int entry, int value) const;
    // The MIDI note of an entry, or -1 where nothing sounds.
    int noteAt(int entry, int value) const;

    // The file stem of a MIDI note: "A4", "Cd3".
    static QString stem(int midiNote);

private:
    QVector<QVector<int>> m_rows;

    friend class ChordTableBuilder;
};

} // namespace QMMusic
