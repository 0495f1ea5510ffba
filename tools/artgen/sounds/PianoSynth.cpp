#include "PianoSynth.h"

#include "NoiseSource.h"
#include "NoteSampleEncoder.h"
#include "Resonator.h"

#include <QtGlobal>

#include <cmath>
#include <vector>

namespace {

const double Pi = 3.14159265358979323846;

// Position of the note on the keyboard, 0 at the lowest, 1 at the highest.
double keyPosition(int midiNote, const PianoSynth::Parameters& p)
{
    return double(midiNote - p.lowestMidiNote) / (p.highestMidiNote - p.lowestMidiNote);
}

// From `low` at the lowest note to `high` at the highest, by the same factor every semitone.
double alongKeyboard(double low, double high, double position)
{
    return low * std::pow(high / low, position);
}

// Amplitude factor per sample of a fall of `dbPerSecond`.
double fallPerSample(double dbPerSecond)
{
    return std::pow(10.0, -dbPerSecond / (20.0 * PianoSynth::SampleRate));
}

struct PianoString
{
    double ratio; // frequency beside the note's
    double level;
};

// The note's strings: the middle one on the note and the outer ones as far
// sharp as flat, so that together they sound on the note.
std::vector<PianoString> unison(int midiNote, double f0, const PianoSynth::Parameters& p)
{
    const double cents = qMin(p.unisonDetuneCents, 1200.0 * std::log2(1.0 + p.unisonDetuneHz / f0));
    const double ratio = std::pow(2.0, cents / 1200.0);
    if (midiNote < p.lowestTwoStringNote)
        return { { 1.0, 1.0 } };
    if (midiNote < p.lowestThreeStringNote)
        return { { ratio, 1.0 }, { 1.0 / ratio, 1.0 } };
    return { { 1.0, 1.0 }, { ratio, p.outerStringLevel }, { 1.0 / ratio, p.outerStringLevel } };
}

// Adds one decaying partial to `out`: a sine from phase 0 whose amplitude is
// the sum of the prompt sound and the aftersound, each falling at its rate.
void addPartial(std::vector<double>& out, double frequency, double amplitude, double aftersound, double promptFall,
    double afterFall)
{
    const double omega = 2.0 * Pi * frequency / PianoSynth::SampleRate;
    const double c = std::cos(omega);
    const double s = std::sin(omega);
    double x = 1.0, y = 0.0; // cos and sin of the phase
    double prompt = amplitude;
    double after = amplitude * aftersound;
    const double inaudible = 1e-7 * amplitude;
    const int length = static_cast<int>(out.size());
    for (int start = 0; start < length && prompt + after > inaudible; start += 1024) {
        const int end = qMin(length, start + 1024);
        for (int n = start; n < end; ++n) {
            out[static_cast<size_t>(n)] += (prompt + after) * y;
            prompt *= promptFall;
            after *= afterFall;
            const double next = x * c - y * s;
            y = x * s + y * c;
            x = next;
        }
        // Keep the phasor on the unit circle against rounding.
        const double norm = 1.0 / std::sqrt(x * x + y * y);
        x *= norm;
        y *= norm;
    }
}

} // namespace

double PianoSynth::inharmonicity(int midiNote, const Parameters& p)
{
    const double octavesUp = (midiNote - p.lowestMidiNote) / 12.0;
    const double octavesDown = (p.highestMidiNote - midiNote) / 12.0;
    return p.bassInharmonicity * std::pow(2.0, -octavesUp)
        + p.trebleInharmonicity * std::pow(p.trebleInharmonicityPerOctave, -octavesDown);
}

QVector<float> PianoSynth::strike(int midiNote, const Parameters& p)
{
    const int length = static_cast<int>(std::lround(p.lengthSeconds * SampleRate));
    const double f0 = NoteSampleEncoder::frequency(midiNote);
    const double position = keyPosition(midiNote, p);
    const double b = inharmonicity(midiNote, p);
    // The stiffness raises the fundamental too, by sqrt(1 + B); the string is
    // tuned so that the fundamental, not F, is on the note.
    const double base = f0 / std::sqrt(1.0 + b);
    const double felt = alongKeyboard(p.feltCutoffLow, p.feltCutoffHigh, position);
    const double promptDecay = alongKeyboard(p.promptDecayLow, p.promptDecayHigh, position);
    const double afterDecay = alongKeyboard(p.afterDecayLow, p.afterDecayHigh, position);
    const double aftersound = std::pow(10.0, p.aftersoundDb / 20.0);

    // The strings: every partial of every string, its level from the
    // hammer's place (sin(n pi x) / n), the felt and the soundboard.
    std::vector<double> strings(static_cast<size_t>(length), 0.0);
    const std::vector<PianoString> unisonStrings = unison(midiNote, f0, p);
    const double highest = qMin(p.highestPartial, 0.45 * SampleRate);
    for (int n = 1;; ++n) {
        const double frequency = n * base * std::sqrt(1.0 + b * n * n);
        if (frequency > highest)
            break;
        const double fromFelt = 1.0 / (1.0 + (frequency / felt) * (frequency / felt));
        const double lowCut = frequency / p.soundboardLowCut;
        const double radiated = lowCut / std::sqrt(1.0 + lowCut * lowCut);
        const double amplitude = std::abs(std::sin(Pi * n * p.strikePosition)) / n * fromFelt * radiated;
        if (amplitude < 1e-5)
            continue;
        const double faster = 1.0 + p.upperDecayPerKiloHertz * (frequency - f0) / 1000.0;
        const double promptFall = fallPerSample(promptDecay * faster);
        const double afterFall = fallPerSample(afterDecay * faster);
        for (const PianoString& string : unisonStrings)
            addPartial(strings, frequency * string.ratio, amplitude * string.level, aftersound, promptFall, afterFall);
    }

    // The hammer's contact: the strings come in over it with half a cosine.
    const int contact = qMax(1,
        static_cast<int>(std::lround(alongKeyboard(p.contactLowSeconds, p.contactHighSeconds, position) * SampleRate)));
    double stringPeak = 0.0;
    for (int n = 0; n < length; ++n) {
        if (n < contact)
            strings[static_cast<size_t>(n)] *= 0.5 - 0.5 * std::cos(Pi * n / contact);
        stringPeak = qMax(stringPeak, std::abs(strings[static_cast<size_t>(n)]));
    }

    // The knock: a burst of noise through the felt, dying within a few
    // milliseconds, and the soundboard's low thump that it sets off.
    NoiseSource noise(static_cast<quint32>(midiNote) * 31u + 17u);
    Resonator board(p.thumpFrequency, 2.0, SampleRate);
    const double feltPole = std::exp(-2.0 * Pi * felt / SampleRate);
    const double knockLevel = stringPeak * (p.knockLow + position * (p.knockHigh - p.knockLow));
    const double knockSeconds = 0.003;
    const int knockLength = qMin(length, static_cast<int>(0.1 * SampleRate));
    double smooth = 0.0;
    for (int n = 0; n < knockLength; ++n) {
        const double t = double(n) / SampleRate;
        const double burst = noise.next() * std::exp(-t / knockSeconds);
        smooth = (1.0 - feltPole) * burst + feltPole * smooth;
        strings[static_cast<size_t>(n)] += knockLevel * (smooth + p.thump * board.process(burst));
    }

    double peak = 0.0;
    for (double value : strings)
        peak = qMax(peak, std::abs(value));
    QVector<float> out(length);
    const int fadeStart = length - static_cast<int>(std::lround(p.fadeSeconds * SampleRate));
    const double scale = peak > 0.0 ? p.peakLevel / peak : 0.0;
    for (int n = 0; n < length; ++n) {
        double gain = scale;
        if (n >= fadeStart)
            gain *= 0.5 * (1.0 + std::cos(Pi * (n - fadeStart) / double(length - fadeStart)));
        out[n] = static_cast<float>(strings[static_cast<size_t>(n)] * gain);
    }
    return out;
}
