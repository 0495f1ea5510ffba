#include "FingerboardDesign.h"

#include <QHash>

#include <cmath>

namespace QMMusic {

namespace {

using Rule = FingerboardDesign::BoxRule;

// MIDI numbers of the notes that the tables name.
enum Note
{
    E1 = 28,
    G2 = 43,
    D2 = 38,
    A1 = 33,
    G3 = 55,
    D3 = 50,
    B3 = 59,
    C4 = 60,
    D4 = 62,
    E4 = 64,
    G4 = 67,
    A4 = 69,
    E5 = 76,
    Dd4 = 63,
    B5 = 83,
    C6 = 84,
    Cd6 = 85,
    E6 = 88,
    A6 = 93,
};

// A soprano ukulele in re-entrant tuning, 15 frets and the sound hole
// beyond. The far end of the G string answers C5# and one of its four
// columns has no box; the C string's open box sits right of the others.
FingerboardDesign ukulele()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Ukulele");
    d.openNotes = { A4, E4, C4, G4 };
    d.frets = 15;
    d.farEndX = { 612, 642, 672, 702 };
    d.lowestNote = C4;
    d.highestNote = C6;
    d.nutX = 120;
    d.lastWireX = 560;
    d.bridgeX = 860;
    d.perspective = 13;
    d.openOffset = 22;
    d.topAtNut = 70;
    d.bottomAtNut = 124;
    d.topAtBridge = 50;
    d.bottomAtBridge = 146;
    d.rules = {
        { Rule::Shifted, 3, 0, 0, QString(), 16 },
        { Rule::Named, 4, 16, 19, QStringLiteral("C5#"), 0 },
        { Rule::Missing, 4, 18, 18, QString(), 0 },
    };
    return d;
}

// The violin's fingerboard has no frets: the seven columns after the open
// one are the places a semitone apart in first position, so neighbouring
// strings share notes. The scroll is on the left, the body starts under
// the picture's right half.
FingerboardDesign violin()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Violin");
    d.openNotes = { E5, A4, D4, G3 };
    d.frets = 7;
    d.fretted = false;
    d.lowestNote = G3;
    d.highestNote = B5;
    d.nutX = 130;
    d.lastWireX = 540;
    d.bridgeX = 1363;
    d.openOffset = 24;
    d.topAtNut = 78;
    d.bottomAtNut = 116;
    d.topAtBridge = 52;
    d.bottomAtBridge = 142;
    return d;
}

// A four-string bass guitar, 20 frets; fret 1 of the E string has no box,
// so F1 is asked in training and shown from the staff but never pressed.
FingerboardDesign bass()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Bass");
    d.openNotes = { G2, D2, A1, E1 };
    d.frets = 20;
    d.farEndX = { 742 };
    d.lowestNote = E1;
    d.highestNote = Dd4;
    d.nutX = 100;
    d.lastWireX = 690;
    d.bridgeX = 1000;
    d.perspective = 16;
    d.openOffset = 22;
    d.topAtNut = 66;
    d.bottomAtNut = 128;
    d.topAtBridge = 46;
    d.bottomAtBridge = 150;
    d.rules = { { Rule::Missing, 4, 1, 1, QString(), 0 } };
    return d;
}

// A prima balalaika: three strings, the two lower in unison, 19 frets on a
// narrow neck that opens into the triangular body.
FingerboardDesign balalaika()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Balalaika");
    d.openNotes = { A4, E4, E4 };
    d.frets = 19;
    d.farEndX = { 702 };
    d.lowestNote = E4;
    d.highestNote = E6;
    d.nutX = 110;
    d.lastWireX = 640;
    d.bridgeX = 900;
    d.perspective = 15;
    d.openOffset = 22;
    d.topAtNut = 80;
    d.bottomAtNut = 114;
    d.topAtBridge = 62;
    d.bottomAtBridge = 132;
    return d;
}

// A five-string banjo in open G, 22 frets and the drum head beyond. The
// short fifth string starts at its peg by fret 5 and every one of its boxes
// answers its open G4; the G string has no box at fret 4.
FingerboardDesign banjo()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Banjo");
    d.openNotes = { D4, B3, G3, D3, G4 };
    d.frets = 22;
    d.farEndX = { 746 };
    d.lowestNote = D3;
    d.highestNote = Cd6;
    d.nutX = 95;
    d.lastWireX = 690;
    d.bridgeX = 1000;
    d.perspective = 20;
    d.openOffset = 22;
    d.topAtNut = 64;
    d.bottomAtNut = 128;
    d.topAtBridge = 44;
    d.bottomAtBridge = 150;
    d.firstColumns = { 0, 0, 0, 0, 5 };
    d.rules = {
        { Rule::Named, 5, 5, 23, QStringLiteral("G4"), 0 },
        { Rule::Missing, 3, 4, 4, QString(), 0 },
    };
    return d;
}

// A mandolin: four doubled courses tuned as a violin, 17 frets and three
// columns over the body; the D course has no box at frets 14, 16 and 17.
FingerboardDesign mandolin()
{
    FingerboardDesign d;
    d.key = QStringLiteral("Mandolin");
    d.openNotes = { E5, A4, D4, G3 };
    d.frets = 17;
    d.farEndX = { 642, 672, 702 };
    d.lowestNote = G3;
    d.highestNote = A6;
    d.nutX = 110;
    d.lastWireX = 600;
    d.bridgeX = 900;
    d.perspective = 14;
    d.openOffset = 22;
    d.topAtNut = 72;
    d.bottomAtNut = 120;
    d.topAtBridge = 52;
    d.bottomAtBridge = 142;
    d.rules = {
        { Rule::Missing, 3, 14, 14, QString(), 0 },
        { Rule::Missing, 3, 16, 17, QString(), 0 },
    };
    return d;
}

const char* const kPitchClasses[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };

} // namespace

QStringList FingerboardDesign::keys()
{
    return { QStringLiteral("Ukulele"), QStringLiteral("Violin"), QStringLiteral("Bass"), QStringLiteral("Balalaika"),
        QStringLiteral("Banjo"), QStringLiteral("Mandolin") };
}

const FingerboardDesign& FingerboardDesign::forKey(const QString& key)
{
    static const QHash<QString, FingerboardDesign> designs = [] {
        QHash<QString, FingerboardDesign> all;
        for (const FingerboardDesign& design : { ukulele(), violin(), bass(), balalaika(), banjo(), mandolin() })
            all.insert(design.key, design);
        return all;
    }();
    static const FingerboardDesign empty;
    const auto found = designs.constFind(key);
    return found == designs.cend() ? empty : *found;
}

int FingerboardDesign::stringCount() const
{
    return openNotes.size();
}

int FingerboardDesign::columnCount() const
{
    return 1 + frets + farEndX.size();
}

bool FingerboardDesign::isFarEnd(int column) const
{
    return column > frets && column < columnCount();
}

double FingerboardDesign::wireX(int fret) const
{
    // Equal temperament, foreshortened: the distance to the bridge halves
    // every `perspective` semitones, scaled so the last wire lands where
    // the design puts it.
    const double full = (lastWireX - nutX) / (1.0 - std::pow(2.0, -frets / perspective));
    return nutX + full * (1.0 - std::pow(2.0, -fret / perspective));
}

double FingerboardDesign::columnX(int column) const
{
    if (column <= 0)
        return nutX - openOffset;
    if (isFarEnd(column))
        return farEndX.at(column - frets - 1);
    // A finger presses just behind its fret; on a board without frets the
    // place itself is the column.
    if (!fretted)
        return wireX(column);
    return wireX(column - 1) + 0.6 * (wireX(column) - wireX(column - 1));
}

double FingerboardDesign::stringY(int string, double x) const
{
    if (openNotes.size() < 2)
        return (topAtNut + bottomAtNut) / 2.0;
    const double across = double(string - 1) / (openNotes.size() - 1);
    const double along = (x - nutX) / (bridgeX - nutX);
    const double atNut = topAtNut + across * (bottomAtNut - topAtNut);
    const double atBridge = topAtBridge + across * (bottomAtBridge - topAtBridge);
    return atNut + along * (atBridge - atNut);
}

double FingerboardDesign::spacing(double x) const
{
    if (openNotes.size() < 2)
        return 0.0;
    return (stringY(openNotes.size(), x) - stringY(1, x)) / (openNotes.size() - 1);
}

int FingerboardDesign::noteAt(int string, int column) const
{
    const int open = openNotes.value(string - 1);
    return isFarEnd(column) ? open : open + column;
}

QVector<QString> FingerboardDesign::stems() const
{
    QVector<QString> result;
    for (int note = lowestNote; note <= highestNote && note > 0; ++note)
        result.append(QLatin1String(kPitchClasses[note % 12]) + QString::number(note / 12 - 1));
    return result;
}

} // namespace QMMusic
