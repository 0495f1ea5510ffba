#include "InstrumentSampleSynth.h"

#include "NoteSampleEncoder.h"

namespace {

InstrumentSampleSynth::Instrument plucked(
    const char* key, int lowestMidiNote, int highestMidiNote, PluckedStringSynth::Parameters sound)
{
    sound.lowestMidiNote = lowestMidiNote;
    sound.highestMidiNote = highestMidiNote;
    // A share of the same kick in every pluck, so that no note comes out weak.
    sound.noiseShare = 0.4;
    return { QLatin1String(key), lowestMidiNote, highestMidiNote, InstrumentSampleSynth::Playing::Plucked, sound, {},
        {} };
}

InstrumentSampleSynth::Instrument bowed(
    const char* key, int lowestMidiNote, int highestMidiNote, const BowedStringSynth::Parameters& sound)
{
    return { QLatin1String(key), lowestMidiNote, highestMidiNote, InstrumentSampleSynth::Playing::Bowed, {}, sound,
        {} };
}

InstrumentSampleSynth::Instrument struck(
    const char* key, int lowestMidiNote, int highestMidiNote, PianoSynth::Parameters sound)
{
    sound.lowestMidiNote = lowestMidiNote;
    sound.highestMidiNote = highestMidiNote;
    return { QLatin1String(key), lowestMidiNote, highestMidiNote, InstrumentSampleSynth::Playing::Struck, {}, {},
        sound };
}

// Nylon plucked with the thumb over the soundhole: a soft, round pluck whose
// overtones fade soon, on a small body.
PluckedStringSynth::Parameters ukulele()
{
    PluckedStringSynth::Parameters p;
    p.decayLowSeconds = 3.0;
    p.decayHighSeconds = 2.5;
    p.pickPosition = 0.27;
    p.softness = 0.1;
    p.softnessRise = 0.15;
    p.loopFilterTap = 0.2;
    p.dampingLow = 0.35;
    p.dampingHigh = 0.2;
    p.body = { { 250.0, 10.0, 0.5 }, { 500.0, 12.0, 0.35 }, { 1000.0, 8.0, 0.1 } };
    return p;
}

// Heavy round-wound strings plucked with a finger: a long ring of the
// fundamental, little high end, and that only at first.
PluckedStringSynth::Parameters bass()
{
    PluckedStringSynth::Parameters p;
    p.decayLowSeconds = 8.5;
    p.decayHighSeconds = 5.0;
    p.pickPosition = 0.22;
    p.softness = 0.04;
    p.softnessRise = 0.1;
    p.loopFilterTap = 0.25;
    p.dampingLow = 0.8;
    p.dampingHigh = 0.35;
    p.body = { { 90.0, 6.0, 0.4 }, { 180.0, 8.0, 0.25 } };
    return p;
}

// Thin steel strings struck with a pick near the bridge, on a small
// triangular body: bright, short and light in the bass.
PluckedStringSynth::Parameters balalaika()
{
    PluckedStringSynth::Parameters p;
    p.decayLowSeconds = 3.0;
    p.decayHighSeconds = 2.0;
    p.pickPosition = 0.12;
    p.softness = 0.5;
    p.softnessRise = 0.3;
    p.loopFilterTap = 0.1;
    p.body = { { 350.0, 12.0, 0.5 }, { 700.0, 10.0, 0.2 } };
    return p;
}

// Steel strings over a bridge standing on a drum head: bright, quickly gone,
// and the head's first modes (a membrane's 1 : 1.59 : 2.14) ring sharply with
// the pluck, which gives it the twang.
PluckedStringSynth::Parameters banjo()
{
    PluckedStringSynth::Parameters p;
    p.decayLowSeconds = 2.0;
    p.decayHighSeconds = 1.2;
    p.pickPosition = 0.1;
    p.softness = 0.7;
    p.softnessRise = 0.25;
    p.loopFilterTap = 0.06;
    p.body = { { 350.0, 25.0, 1.2 }, { 558.0, 25.0, 0.5 }, { 748.0, 25.0, 0.3 } };
    return p;
}

// Pairs of steel strings struck together with a pick: bright. The two
// strings of a course are tuned in unison: the open strings' samples are also
// the mandolin tuner's reference at 440, which must hold one pitch.
PluckedStringSynth::Parameters mandolin()
{
    PluckedStringSynth::Parameters p;
    p.decayLowSeconds = 3.0;
    p.decayHighSeconds = 2.0;
    p.pickPosition = 0.13;
    p.softness = 0.45;
    p.softnessRise = 0.35;
    p.loopFilterTap = 0.1;
    p.body = { { 330.0, 10.0, 0.4 }, { 580.0, 12.0, 0.25 } };
    p.doubleCourse = true;
    return p;
}

// A bowed note on a violin body: the air mode, the two main corpus modes,
// a few higher ones and the broad bridge hill near 3 kHz that makes it sing.
BowedStringSynth::Parameters violin()
{
    BowedStringSynth::Parameters p;
    p.attackSeconds = 0.1;
    p.bandLimit = 8000.0;
    p.rolloffFrequency = 4000.0;
    p.body = { { 280.0, 12.0, 1.0 }, { 460.0, 15.0, 1.2 }, { 550.0, 15.0, 0.8 }, { 700.0, 10.0, 0.5 },
        { 1000.0, 8.0, 0.4 }, { 1400.0, 8.0, 0.35 }, { 2000.0, 6.0, 0.4 }, { 3000.0, 2.5, 0.9 }, { 4500.0, 4.0, 0.2 } };
    return p;
}

} // namespace

QVector<InstrumentSampleSynth::Instrument> InstrumentSampleSynth::instruments()
{
    return {
        plucked("Ukulele", 60, 84, ukulele()), // C4 to C6
        bowed("Violin", 55, 83, violin()), // G3 to B5
        plucked("Bass", 28, 63, bass()), // E1 to D#4
        plucked("Balalaika", 64, 88, balalaika()), // E4 to E6
        plucked("Banjo", 50, 85, banjo()), // D3 to C#6
        plucked("Mandolin", 55, 93, mandolin()), // G3 to A6
        // The whole keyboard; PianoSynth's defaults are a grand's strings.
        struck("Piano", 21, 108, PianoSynth::Parameters()), // A0 to C8
    };
}

QVector<float> InstrumentSampleSynth::synthesise(const Instrument& instrument, int midiNote)
{
    switch (instrument.playing) {
    case Playing::Bowed:
        return BowedStringSynth::bow(midiNote, instrument.bowing);
    case Playing::Struck:
        return PianoSynth::strike(midiNote, instrument.striking);
    case Playing::Plucked:
        break;
    }
    return PluckedStringSynth::pluck(midiNote, instrument.plucked);
}

void InstrumentSampleSynth::generate(ArtWriter& writer)
{
    NoteSampleEncoder encoder(writer);
    for (const Instrument& instrument : instruments()) {
        for (int note = instrument.lowestMidiNote; note <= instrument.highestMidiNote; ++note)
            encoder.encode(instrument.key, note, synthesise(instrument, note));
    }
}
