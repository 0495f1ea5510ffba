#pragma once

#include "ChordTable.h"

#include <QStringList>
#include <QVector>

namespace QMMusic {

// The two tables of a chord page: for each chord index the samples that its
// row sounds (one path per entry, empty where nothing sounds) and the row as
// it was set. Every sample path is built once, when the book is made, from
// the folder of the samples and the instrument's table; setting a chord only
// looks them up.
class ChordBook
{
public:
    // The sample paths are resourcePath + prefix + "_440_" + stem + ".mp3".
    ChordBook(const ChordTable& table, const QString& resourcePath);

    // Sets every chord of the instrument's table.
    void initChords();
    // Stores a row and the samples it sounds at a chord's place, replacing
    // what was there. An index outside 0 to 131 changes nothing.
    void setChord(int chord, const QVector<int>& row);

    // Empty for an index outside 0 to 131.
    QStringList chordNotes(int chord) const;
    QVector<int> chordTab(int chord) const;
    // The sample paths of one entry, from the open string (or the key) up
    // to its last position.
    QStringList samples(int entry) const;

private:
    const ChordTable& m_table;
    QVector<QStringList> m_samples;
    QVector<QStringList> m_chordNotes;
    QVector<QVector<int>> m_chordTabs;
};

} // namespace QMMusic
