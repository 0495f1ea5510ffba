#pragma once

#include <QVector>

// A plucked string after Karplus and Strong, extended: the loop's lowpass has
// an exactly known delay and a first-order allpass supplies the fraction of a
// sample, so every note is in tune; the loss per period gives each note the
// wanted decay. The pick's position and softness shape the excitation, a few
// resonators the body, and a course of two slightly detuned strings can be
// plucked together.
class PluckedStringSynth
{
public:
    static constexpr int SampleRate = 44100;

    // One resonance of the body: frequency, sharpness, and its share added to the string.
    struct BodyMode
    {
        double frequency;
        double q;
        double gain;
    };

    struct Parameters
    {
        // The range over which the per-note values below go from low to high.
        int lowestMidiNote = 40;
        int highestMidiNote = 86;
        // A4 in Hz, from which the note is tuned in equal temperament.
        double concertPitch = 440.0;
        // Time for the fundamental to fall by 60 dB at the lowest and highest note.
        double decayLowSeconds = 8.0;
        double decayHighSeconds = 5.5;
        // Where the string is plucked, as a fraction of its length from the bridge.
        double pickPosition = 0.2;
        // Smoothing of the pick's noise burst (1: none, small: a soft finger)
        // at the lowest note, and how much it rises up to the highest.
        double softness = 0.12;
        double softnessRise = 0.3;
        // Share of noise in the pluck's burst (1: all noise); the rest is a
        // single kick that every note's burst has alike.
        double noiseShare = 1.0;
        // Outer taps of the loop's symmetric three-tap lowpass (0.25 darkest).
        double loopFilterTap = 0.16;
        // Pole of a one-pole lowpass in the loop at the lowest and highest note
        // (0: none): the overtones die much sooner than the fundamental, as on
        // a heavy or nylon string.
        double dampingLow = 0.0;
        double dampingHigh = 0.0;
        QVector<BodyMode> body;
        // Share of the string itself beside the body's resonances.
        double direct = 1.0;
        // Two strings to a course, tuned this many cents above and below the note.
        bool doubleCourse = false;
        double courseDetuneCents = 0.0;
        float peakLevel = 0.7f;
        double lengthSeconds = 2.5;
        // The last part fades out with half a cosine, so nothing is cut off.
        double fadeSeconds = 0.5;
    };

    // The note's samples, normalised to the peak level.
    static QVector<float> pluck(int midiNote, const Parameters& parameters);

    // Coefficient of the first-order allpass (C + z^-1) / (1 + C z^-1) whose
    // phase delay at `omega` (radians per sample) is exactly `delay` samples.
    static double allpassCoefficient(double delay, double omega);
};
