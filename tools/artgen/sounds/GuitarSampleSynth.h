#pragma once

#include "PluckedStringSynth.h"

#include <QVector>

class ArtWriter;

// Synthesises the plucked-string samples "guitar_440_<stem>.mp3" of the
// guitar's range, E2 to D6, with an extended Karplus-Strong string model, and
// encodes them with lame into the Resources folder.
class GuitarSampleSynth
{
public:
    static const int LowestMidiNote = 40; // E2
    static const int HighestMidiNote = 86; // D6

    static void generate(ArtWriter& writer);

    // The guitar's string and body.
    static PluckedStringSynth::Parameters parameters();

    // 2.5 s of a plucked string at the note's pitch (A4 = 440 Hz).
    static QVector<float> pluck(int midiNote);
};
