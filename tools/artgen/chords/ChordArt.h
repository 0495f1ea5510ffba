#pragma once

#include <QImage>
#include <QString>
#include <QVector>

class ArtWriter;

namespace QMMusic {
class ChordTable;
}

// The chord pages' pictures, one for every row of every table under the
// name that the views ask for: the photo of the hand on the instrument (the
// neck seen from the front in warm light, a round fingertip on each pressed
// place, a small cross over each muted string, a ring over each open one),
// and the piano's two-octave keyboards with the chord's pitch classes marked,
// "a_" in colour for the neck view and "b_" with dots for the tablature.
class ChordArt
{
public:
    static void generate(ArtWriter& writer);

    static QImage photo(const QMMusic::ChordTable& table, const QVector<int>& tab);
    // The piano's photo: one octave, C to B, with fingertips on the classes.
    static QImage pianoPhoto(const QString& code);
    static QImage keyboard(const QString& code, bool tablature);
};
