#pragma once

#include <QString>

namespace QMMusic {

// The conversions between the three spellings of a note: note name with
// accidental ("F2", 1), position name ("F2#") and file stem ("Fd2").
// Flats exist only in the note name; the respelling table resolves them.
class NoteSpelling
{
public:
    // 1 when the position name ends in "#", else 0.
    static int positionAccidental(const QString& positionName);
    // Letter and octave of a position name: "F2#" gives "F2".
    static QString positionNoteName(const QString& positionName);
    // "F2#" gives "Fd2", "E2" gives "E2".
    static QString positionStem(const QString& positionName);
    // The respelling table: ("B3", 1) gives "C4", ("C4", -1) gives "B3",
    // ("A2", -1) gives "Gd2". Accidentals below 0 act as flat, from 1 up as sharp.
    static QString stem(const QString& noteName, int accidental);
    // The sample's file name: lower-case instrument key + "_440_" + stem + ".mp3".
    static QString sampleFileName(const QString& instrumentKey, const QString& stem);
};

} // namespace QMMusic
