#pragma once

#include <QVector>

class ArtWriter;

// Synthesises the metronome's "tick.wav" (every beat) and "bell.wav" (the
// first beat of a bar) into the Resources folder.
class MetronomeSoundSynth
{
public:
    static const int SampleRate = 44100;

    static void generate(ArtWriter& writer);

    // A short wooden click, about 60 ms.
    static QVector<float> tick();
    // A small bell: inharmonic partials ringing out in about 0.8 s.
    static QVector<float> bell();
};
