#pragma once

#include "BowedStringSynth.h"
#include "PluckedStringSynth.h"

#include <QString>
#include <QVector>

class ArtWriter;

// The samples of the string instruments besides the guitar, one
// "<key>_440_<stem>.mp3" for every semitone of each one's range: the plucked
// ones from the Karplus-Strong string, the violin from the bowed string.
class InstrumentSampleSynth
{
public:
    struct Instrument
    {
        QString key;
        int lowestMidiNote;
        int highestMidiNote;
        bool bowed;
        PluckedStringSynth::Parameters plucked;
        BowedStringSynth::Parameters bowing;
    };

    // Every instrument with its key, range and sound.
    static QVector<Instrument> instruments();
    static QVector<float> synthesise(const Instrument& instrument, int midiNote);
    static void generate(ArtWriter& writer);
};
