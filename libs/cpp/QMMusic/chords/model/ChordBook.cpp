#include "ChordBook.h"

#include "ChordName.h"

namespace QMMusic {

ChordBook::ChordBook(const ChordTable& table, const QString& resourcePath)
    : m_table(table)
    , m_chordNotes(ChordName::ChordCount)
    , m_chordTabs(ChordName::ChordCount)
{
    const auto path = [&](int entry, int value) {
        return resourcePath + table.samplePrefix + QStringLiteral("_440_") + table.stemAt(entry, value)
            + QStringLiteral(".mp3");
    };
    for (int entry = 0; entry < table.entryCount(); ++entry) {
        QStringList paths;
        if (table.isPiano)
            paths.append(path(entry, 0));
        else {
            for (int position = 0; position <= table.lastPositions.value(entry); ++position)
                paths.append(path(entry, position));
        }
        m_samples.append(paths);
    }
}

void ChordBook::initChords()
{
    for (int chord = 0; chord < ChordName::ChordCount; ++chord)
        setChord(chord, m_table.row(chord));
}

void ChordBook::setChord(int chord, const QVector<int>& row)
{
    if (!ChordName::isValid(chord))
        return;
    QStringList notes;
    for (int entry = 0; entry < row.size(); ++entry) {
        const int value = row.at(entry);
        // On the piano only 0, a key that is down, sounds; on a string an
        // entry is the place in the string's chromatic list of samples.
        const int place = m_table.isPiano ? (value == 0 ? 0 : -1) : value;
        notes.append(place < 0 ? QString() : m_samples.value(entry).value(place));
    }
    m_chordNotes[chord] = notes;
    m_chordTabs[chord] = row;
}

QStringList ChordBook::chordNotes(int chord) const
{
    return m_chordNotes.value(chord);
}

QVector<int> ChordBook::chordTab(int chord) const
{
    return m_chordTabs.value(chord);
}

QStringList ChordBook::samples(int entry) const
{
    return m_samples.value(entry);
}

} // namespace QMMusic
