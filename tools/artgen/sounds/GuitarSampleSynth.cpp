#include "GuitarSampleSynth.h"

#include "NoteSampleEncoder.h"

PluckedStringSynth::Parameters GuitarSampleSynth::parameters()
{
    PluckedStringSynth::Parameters p;
    p.lowestMidiNote = GuitarSampleSynth::LowestMidiNote;
    p.highestMidiNote = GuitarSampleSynth::HighestMidiNote;
    // A long ring on the low E, shorter at the top, as a nylon or steel
    // string rings on a guitar's body.
    p.decayLowSeconds = 8.0;
    p.decayHighSeconds = 5.5;
    // Plucked a fifth of the string from the bridge: warmer than near it,
    // with a soft pick, the softer on the low strings.
    p.pickPosition = 0.2;
    p.softness = 0.12;
    p.softnessRise = 0.3;
    p.loopFilterTap = 0.16;
    // The body: the air cavity, the top and its first overtone, which give
    // the low notes their warmth.
    p.body = { { 98.0, 12.0, 0.5 }, { 205.0, 15.0, 0.35 }, { 410.0, 18.0, 0.15 } };
    return p;
}

QVector<float> GuitarSampleSynth::pluck(int midiNote)
{
    return PluckedStringSynth::pluck(midiNote, parameters());
}

void GuitarSampleSynth::generate(ArtWriter& writer)
{
    NoteSampleEncoder encoder(writer);
    for (int note = LowestMidiNote; note <= HighestMidiNote; ++note)
        encoder.encode(QStringLiteral("Guitar"), note, pluck(note));
}
