#pragma once

#include <QVector>

// A struck piano note, summed partial by partial. The strings are stiff, so
// their partials are stretched, f_n = n F sqrt(1 + B n^2), with F chosen so
// that the fundamental itself is on the note; B is smallest in the low tenor
// and rises towards both ends (the wound bass strings, the short treble
// ones). The lowest notes have one string, the next two and the rest three,
// tuned a little apart around the note, so that they beat slowly yet sound on
// it together. The felt hammer, struck near the string's end, sets the
// partials' levels and a short knock; each partial dies in two stages, a fast
// prompt sound and a slow aftersound, the higher ones sooner.
class PianoSynth
{
public:
    static constexpr int SampleRate = 44100;

    struct Parameters
    {
        // The keyboard over which the per-note values below go from low to high.
        int lowestMidiNote = 21;
        int highestMidiNote = 108;
        // Stiffness B of the lowest note's string, halving every octave up...
        double bassInharmonicity = 3.0e-4;
        // ...plus that of the treble: B at the highest note, divided by this
        // factor for every octave down.
        double trebleInharmonicity = 1.0e-2;
        double trebleInharmonicityPerOctave = 2.5;
        // The first notes with two and with three strings.
        int lowestTwoStringNote = 33;
        int lowestThreeStringNote = 46;
        // The outer strings of a note lie this far either side of it: as many
        // Hz at the fundamental, but never more than as many cents.
        double unisonDetuneHz = 0.15;
        double unisonDetuneCents = 1.0;
        // Level of the outer strings beside the middle one (or of both of a pair).
        double outerStringLevel = 0.75;
        // Where the hammer strikes, as a fraction of the string's length.
        double strikePosition = 0.12;
        // The felt lets through partials up to this frequency at the lowest and
        // at the highest note; above it they fall by 12 dB an octave.
        double feltCutoffLow = 700.0;
        double feltCutoffHigh = 7000.0;
        // The soundboard radiates little below this (6 dB an octave), which
        // makes the lowest fundamentals weak, as on a real piano.
        double soundboardLowCut = 70.0;
        // How long the hammer stays on the string at the lowest and highest note.
        double contactLowSeconds = 0.004;
        double contactHighSeconds = 0.0008;
        // Fall of the fundamental in dB per second: the prompt sound at the
        // lowest and highest note, the aftersound likewise.
        double promptDecayLow = 25.0;
        double promptDecayHigh = 90.0;
        double afterDecayLow = 2.0;
        double afterDecayHigh = 14.0;
        // Level of the aftersound beside the prompt sound at the strike, in dB.
        double aftersoundDb = -12.0;
        // A partial this many kHz above the fundamental dies this much faster
        // (0.5: half as fast again per kHz).
        double upperDecayPerKiloHertz = 0.5;
        // The highest partial summed, in Hz.
        double highestPartial = 12000.0;
        // The hammer's knock beside the strings' peak: felt noise at the lowest
        // and highest note, and the soundboard's thump.
        double knockLow = 0.02;
        double knockHigh = 0.08;
        double thumpFrequency = 110.0;
        double thump = 0.3;
        float peakLevel = 0.7f;
        double lengthSeconds = 2.5;
        // The last part fades out with half a cosine, so nothing is cut off.
        double fadeSeconds = 0.5;
    };

    // The note's samples, normalised to the peak level.
    static QVector<float> strike(int midiNote, const Parameters& parameters);

    // The stiffness B of the note's strings.
    static double inharmonicity(int midiNote, const Parameters& parameters);
};
