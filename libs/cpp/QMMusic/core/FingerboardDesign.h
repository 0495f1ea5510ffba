#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

namespace QMMusic {

// The drawn fingerboard of one instrument beside the guitar, in the boards'
// design space of 800 by 194 units: its strings and their tuning, where its
// frets (or, on the violin, its fingering places) lie, how the strings spread
// towards the body, and the boxes that are odd on purpose. The pictures are
// drawn from this geometry and the hit boxes are computed from it, so the two
// agree by construction. Each instrument's numbers live in one table, in the
// source of this class.
class FingerboardDesign
{
public:
    // A box that differs from the rule "one box per string and column, named
    // by the string's open note and the column's semitones".
    struct BoxRule
    {
        enum Kind
        {
            Missing, // no box at these columns of the string
            Named, // the boxes answer `name` whatever the column
            Shifted, // the boxes move right by `dx` units
        };
        Kind kind = Missing;
        int string = 0;
        int firstColumn = 0;
        int lastColumn = 0;
        QString name;
        double dx = 0.0;
    };

    // "Ukulele", "Violin", "Bass", "Balalaika", "Banjo", "Mandolin".
    static QStringList keys();
    // The design of an instrument key; an empty design (no strings) for an
    // unknown key.
    static const FingerboardDesign& forKey(const QString& key);

    QString key;
    // MIDI notes of the open strings, string 1 (top of the picture) first.
    QVector<int> openNotes;
    // Columns after the open one that are frets, or semitone places of a
    // fingerboard without frets.
    int frets = 0;
    bool fretted = true;
    // x of the columns beyond the last fret, where a press plays the open string.
    QVector<double> farEndX;
    // The chromatic range of the samples and of training, MIDI, inclusive.
    int lowestNote = 0;
    int highestNote = 0;

    // x of the nut, of the last fret's wire and of the bridge (may lie
    // beyond the picture).
    double nutX = 0.0;
    double lastWireX = 0.0;
    double bridgeX = 0.0;
    // Semitones that halve the distance to the bridge as drawn: 12 on a
    // board seen square on, more where the picture foreshortens the body end.
    double perspective = 12.0;
    // The open column lies this far before the nut.
    double openOffset = 0.0;
    // y of the first and the last string at the nut and at the bridge.
    double topAtNut = 0.0;
    double bottomAtNut = 0.0;
    double topAtBridge = 0.0;
    double bottomAtBridge = 0.0;
    // The first column of each string that has boxes (the banjo's short
    // string starts at its peg); empty for all from the open column.
    QVector<int> firstColumns;
    QVector<BoxRule> rules;

    int stringCount() const;
    // Open column, frets, far-end columns.
    int columnCount() const;
    bool isFarEnd(int column) const;
    // x of the nut (fret 0) and of the wires (or places) of frets 1 to `frets`.
    double wireX(int fret) const;
    // x where the boxes of a column sit, before any rule.
    double columnX(int column) const;
    // y of string 1 to stringCount() at x, on a straight line from nut to bridge.
    double stringY(int string, double x) const;
    // Distance between neighbouring strings at x.
    double spacing(double x) const;
    // MIDI note that sounds at a string and column, before any rule.
    int noteAt(int string, int column) const;
    // The file stems of the range, lowest first: "C4", "Cd4", ...
    QVector<QString> stems() const;
};

} // namespace QMMusic

Q_DECLARE_METATYPE(QMMusic::FingerboardDesign)
