#pragma once

#include "BowedStringSynth.h"
#include "PianoSynth.h"
#include "PluckedStringSynth.h"

#include <QString>
#include <QVector>

class ArtWriter;

// The samples of the string instruments besides the guitar, one
// "<key>_440_<stem>.mp3" for every semitone of each one's range: the plucked
// ones from the Karplus-Strong string, the violin from the bowed string, the
// piano from its struck strings.
class InstrumentSampleSynth
{
public:
    // How the strings are set going, and so which synthesiser makes the sound.
    enum class Playing
    {
        Plucked,
        Bowed,
        Struck
    };

    struct Instrument
    {
        QString key;
        int lowestMidiNote;
        int highestMidiNote;
        Playing playing;
        PluckedStringSynth::Parameters plucked;
        BowedStringSynth::Parameters bowing;
        PianoSynth::Parameters striking;
    };

    // Every instrument with its key, range and sound.
    static QVector<Instrument> instruments();
    static QVector<float> synthesise(const Instrument& instrument, int midiNote);
    static void generate(ArtWriter& writer);
};
