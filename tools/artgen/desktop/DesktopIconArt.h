#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QVector>

// A program's icon for the desktop's menus and docks: a rosewood neck with
// frets, the instrument's strings and one cyan mark on a copper-edged tile. One drawing in a
// 256-unit square gives both the SVG and the PNG of every size; below 32 px
// it keeps only three strings and three frets, with heavier lines, so that
// the neck still reads at 16 px.
class DesktopIconArt
{
public:
    // What tells the instruments apart at a glance.
    struct Motif
    {
        // 0: the keys of a keyboard instead of a neck; below 0 one of the
        // figures below.
        int strings;
        bool fretted;
    };
    // The guitar's.
    static constexpr Motif guitar() { return { 6, true }; }
    static constexpr Motif metronome() { return { -1, false }; }
    // The tuners': a tuning fork ringing over strings.
    static constexpr Motif tuningFork() { return { -2, false }; }
    // The chords': a chord's diagram, strings, frets and fingers.
    static constexpr Motif chordDiagram() { return { -3, false }; }

    // The sizes of the hicolor theme that get a PNG.
    static QVector<int> sizes();
    static QImage png(int size, const Motif& motif = guitar());
    static QByteArray svg(const Motif& motif = guitar());
    // Writes <dir>/hicolor/<n>x<n>/apps/<name>.png for every size and
    // <dir>/hicolor/scalable/apps/<name>.svg.
    static bool generate(const QString& dir, const QString& name, const Motif& motif = guitar());
};
