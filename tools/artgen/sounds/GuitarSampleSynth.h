#pragma once

#include <QString>
#include <QVector>

class ArtWriter;

// Synthesises the plucked-string samples "guitar_440_<stem>.mp3" of the
// guitar's range, E2 to D6, with an extended Karplus-Strong string model, and
// encodes them with lame into the Resources folder.
class GuitarSampleSynth
{
public:
    static const int SampleRate = 44100;
    static const int LowestMidiNote = 40; // E2
    static const int HighestMidiNote = 86; // D6

    static void generate(ArtWriter& writer);

    // The file stem of a MIDI note: letter, "d" for a sharp, octave ("Cd3").
    static QString stem(int midiNote);
    static double frequency(int midiNote);
    // About 1.8 s of a plucked string at the note's pitch (A4 = 440 Hz).
    static QVector<float> pluck(int midiNote);
    // Coefficient of the first-order allpass (C + z^-1) / (1 + C z^-1) whose
    // phase delay at `omega` (radians per sample) is exactly `delay` samples.
    static double allpassCoefficient(double delay, double omega);
};
