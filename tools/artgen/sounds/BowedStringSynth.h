#pragma once

#include <QVector>

// A bowed string held for about two seconds: the bow drives the string into
// the Helmholtz motion, whose force on the bridge is a sawtooth. Here that
// sawtooth is summed harmonic by harmonic below a band limit, so the pitch is
// exact and nothing aliases; the high harmonics come in a little after the
// low ones while the bow bites, a little bow noise rides on each slip, and the
// body's resonances colour it all. No vibrato: the pitch stays on the note.
class BowedStringSynth
{
public:
    static constexpr int SampleRate = 44100;

    // One resonance of the body: frequency, sharpness, and its share in the sound.
    struct BodyMode
    {
        double frequency;
        double q;
        double gain;
    };

    struct Parameters
    {
        // A4 in Hz, from which the note is tuned in equal temperament.
        double concertPitch = 440.0;
        // Time for the bow to bring the string to its full level (the low
        // harmonics; the high ones take up to half as long again).
        double attackSeconds = 0.1;
        // When the bow leaves the string, and how long the sound takes to die.
        double releaseStartSeconds = 2.0;
        double releaseSeconds = 0.42;
        double lengthSeconds = 2.5;
        // The highest harmonic summed, in Hz.
        double bandLimit = 10000.0;
        // Harmonics above this fall off faster than the sawtooth's 1/k.
        double rolloffFrequency = 5000.0;
        // Level of the bow's noise, relative to the sawtooth's fundamental.
        double bowNoise = 0.04;
        // Depth of the slow unevenness of the bow's pressure, as a fraction of the level.
        double pressureWander = 0.04;
        QVector<BodyMode> body;
        // Share of the bridge's force that reaches the listener without a resonance.
        double direct = 0.15;
        float peakLevel = 0.7f;
    };

    // The note's samples, normalised to the peak level.
    static QVector<float> bow(int midiNote, const Parameters& parameters);
};
