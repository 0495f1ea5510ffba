#include "TunerSampleSynth.h"

#include "GuitarSampleSynth.h"
#include "NoteSampleEncoder.h"
#include "NoteSpelling.h"

#include <QSet>

namespace {

// The time the sound of a plucked string fades out over at the end, and the
// bow's release, which ends just before the sample does.
const double PluckFadeSeconds = 1.0;
const double BowReleaseStartSeconds = 3.1;
const double BowReleaseSeconds = 0.75;

InstrumentSampleSynth::Instrument finderInstrument(const char* key)
{
    for (const InstrumentSampleSynth::Instrument& instrument : InstrumentSampleSynth::instruments()) {
        if (instrument.key == QLatin1String(key))
            return instrument;
    }
    return {};
}

InstrumentSampleSynth::Instrument plucked(const PluckedStringSynth::Parameters& sound)
{
    return { QString(), sound.lowestMidiNote, sound.highestMidiNote, InstrumentSampleSynth::Playing::Plucked, sound, {},
        {} };
}

InstrumentSampleSynth::Instrument bowed(const BowedStringSynth::Parameters& sound)
{
    return { QString(), 0, 0, InstrumentSampleSynth::Playing::Bowed, {}, sound, {} };
}

// The banjo's drum head outshines the fundamental of a low string, which
// soon falls below hearing; a tuner's banjo rings half as long again, so that
// there is a fundamental to tune to.
InstrumentSampleSynth::Instrument banjo()
{
    InstrumentSampleSynth::Instrument instrument = finderInstrument("Banjo");
    instrument.plucked.decayLowSeconds = 3.0;
    instrument.plucked.decayHighSeconds = 1.8;
    return instrument;
}

// Two gut or nylon strings plucked with the fingers on a long neck over a
// small pear-shaped body carved from one piece: a soft, round pluck whose
// overtones fade soon, and a body that warms the low strings.
PluckedStringSynth::Parameters dombra()
{
    PluckedStringSynth::Parameters p;
    p.lowestMidiNote = 50; // D3
    p.highestMidiNote = 74; // D5
    p.decayLowSeconds = 4.0;
    p.decayHighSeconds = 3.0;
    p.pickPosition = 0.24;
    p.softness = 0.07;
    p.softnessRise = 0.12;
    p.noiseShare = 0.4;
    p.loopFilterTap = 0.22;
    p.dampingLow = 0.45;
    p.dampingHigh = 0.3;
    p.body = { { 190.0, 10.0, 0.55 }, { 360.0, 12.0, 0.35 }, { 720.0, 8.0, 0.12 } };
    return p;
}

// The cello's body: the air mode, the main corpus modes around the lower
// strings, and a bridge hill lower and broader than the violin's.
BowedStringSynth::Parameters cello()
{
    BowedStringSynth::Parameters p;
    p.attackSeconds = 0.14;
    p.bandLimit = 6000.0;
    p.rolloffFrequency = 2500.0;
    p.body = { { 100.0, 10.0, 1.0 }, { 175.0, 12.0, 1.1 }, { 220.0, 12.0, 0.9 }, { 330.0, 10.0, 0.5 },
        { 560.0, 8.0, 0.4 }, { 900.0, 6.0, 0.3 }, { 1800.0, 2.5, 0.7 }, { 3000.0, 4.0, 0.15 } };
    return p;
}

// The double bass: a big, slow body, the air mode near its lowest notes,
// and little above a kilohertz and a half.
BowedStringSynth::Parameters doubleBass()
{
    BowedStringSynth::Parameters p;
    p.attackSeconds = 0.18;
    p.bandLimit = 4000.0;
    p.rolloffFrequency = 1500.0;
    p.bowNoise = 0.05;
    p.body = { { 58.0, 8.0, 1.0 }, { 105.0, 10.0, 1.1 }, { 140.0, 10.0, 0.8 }, { 230.0, 8.0, 0.5 },
        { 420.0, 6.0, 0.35 }, { 1000.0, 2.5, 0.5 }, { 1800.0, 4.0, 0.1 } };
    return p;
}

// The finders' samples, "<key>_440_<stem>.mp3": at 440 they bear the names
// of the tuners' files of the same strings, and are those files.
QSet<QString> finderSamples()
{
    QSet<QString> names;
    for (int note = GuitarSampleSynth::LowestMidiNote; note <= GuitarSampleSynth::HighestMidiNote; ++note)
        names.insert(QMMusic::NoteSpelling::sampleFileName(QStringLiteral("Guitar"), NoteSampleEncoder::stem(note)));
    for (const InstrumentSampleSynth::Instrument& instrument : InstrumentSampleSynth::instruments()) {
        for (int note = instrument.lowestMidiNote; note <= instrument.highestMidiNote; ++note)
            names.insert(QMMusic::NoteSpelling::sampleFileName(instrument.key, NoteSampleEncoder::stem(note)));
    }
    return names;
}

} // namespace

QVector<int> TunerSampleSynth::concertPitches()
{
    return { 415, 430, 435, 439, 440, 442, 443, 445, 452, 460 };
}

QVector<TunerSampleSynth::Tuner> TunerSampleSynth::tuners()
{
    const auto notes = [](const char* list) { return QString::fromLatin1(list).split(QLatin1Char(' ')); };
    return {
        { QStringLiteral("guitar"), notes("E2 A2 D3 G3 B3 E4"), plucked(GuitarSampleSynth::parameters()) },
        { QStringLiteral("bassguitar"), notes("B0 E1 A1 D2 G2"), finderInstrument("Bass") },
        { QStringLiteral("ukulele"), notes("G4 C4 E4 A4"), finderInstrument("Ukulele") },
        { QStringLiteral("banjo"), notes("G4 C3 G3 B3 D4"), banjo() },
        // The viola's strings as well: its page plays these files.
        { QStringLiteral("violine"), notes("C3 G3 D4 A4 E5"), finderInstrument("Violin") },
        { QStringLiteral("cello"), notes("C2 G2 D3 A3"), bowed(cello()) },
        { QStringLiteral("doublebass"), notes("E1 A1 D2 G2"), bowed(doubleBass()) },
        { QStringLiteral("balalaika"), notes("E4 A4"), finderInstrument("Balalaika") },
        { QStringLiteral("mandolin"), notes("G3 D4 A4 E5"), finderInstrument("Mandolin") },
        { QStringLiteral("dombra"), notes("D3 G3"), plucked(dombra()) },
    };
}

int TunerSampleSynth::midiNote(const QString& note)
{
    static const QString letters = QStringLiteral("C D EF G A B");
    return letters.indexOf(note.at(0)) + 12 * (note.midRef(1).toInt() + 1);
}

QString TunerSampleSynth::fileName(const QString& prefix, int concertPitch, const QString& note)
{
    return QStringLiteral("%1_%2_%3.mp3").arg(prefix).arg(concertPitch).arg(note);
}

QVector<float> TunerSampleSynth::synthesise(const Tuner& tuner, const QString& note, int concertPitch)
{
    InstrumentSampleSynth::Instrument sound = tuner.sound;
    sound.plucked.concertPitch = concertPitch;
    sound.plucked.lengthSeconds = LengthSeconds;
    sound.plucked.fadeSeconds = PluckFadeSeconds;
    sound.bowing.concertPitch = concertPitch;
    sound.bowing.lengthSeconds = LengthSeconds;
    sound.bowing.releaseStartSeconds = BowReleaseStartSeconds;
    sound.bowing.releaseSeconds = BowReleaseSeconds;
    return InstrumentSampleSynth::synthesise(sound, midiNote(note));
}

void TunerSampleSynth::generate(ArtWriter& writer)
{
    const QSet<QString> shared = finderSamples();
    NoteSampleEncoder encoder(writer);
    for (const Tuner& tuner : tuners()) {
        for (const QString& note : tuner.notes) {
            for (int pitch : concertPitches()) {
                const QString name = fileName(tuner.prefix, pitch, note);
                if (!shared.contains(name))
                    encoder.encode(name, synthesise(tuner, note, pitch));
            }
        }
    }
}
