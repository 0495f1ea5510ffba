#pragma once

#include "InstrumentSampleSynth.h"

#include <QString>
#include <QStringList>
#include <QVector>

class ArtWriter;

// The tuners' samples: every open string of the tuner pages at every concert
// pitch, "<prefix>_<pitch>_<note>.mp3" ("violine_442_G3.mp3"), tuned in equal
// temperament from A4 at that pitch. Each lasts 4 s, so that a repeat every
// second overlaps the sound still ringing. The fretted instruments have the
// finders' plucked strings; violin (whose files the viola plays too), cello and
// double bass a bowed string held without vibrato; the dombra a warm gut string.
// At 440 the guitar's, ukulele's, banjo's, balalaika's and mandolin's strings
// are the finders' samples of those names, 2.5 s long, which stay as they are.
class TunerSampleSynth
{
public:
    static constexpr double LengthSeconds = 4.0;

    struct Tuner
    {
        // The start of the file names, "guitar".
        QString prefix;
        // The open strings' notes, "E2".
        QStringList notes;
        InstrumentSampleSynth::Instrument sound;
    };

    // The concert pitches the tuners offer, A4 in Hz.
    static QVector<int> concertPitches();
    static QVector<Tuner> tuners();

    // The MIDI number of a natural note such as "E2" (40).
    static int midiNote(const QString& note);
    static QString fileName(const QString& prefix, int concertPitch, const QString& note);
    static QVector<float> synthesise(const Tuner& tuner, const QString& note, int concertPitch);
    // Writes every file but those the finders write.
    static void generate(ArtWriter& writer);
};
