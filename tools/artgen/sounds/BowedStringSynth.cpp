#include "BowedStringSynth.h"

#include "NoiseSource.h"
#include "NoteSampleEncoder.h"
#include "Resonator.h"

#include <QtGlobal>

#include <cmath>
#include <vector>

namespace {

const double Pi = 3.14159265358979323846;

// Half a cosine from 0 to 1 over `duration`, starting at `start`.
double rise(double t, double start, double duration)
{
    if (t <= start)
        return 0.0;
    if (t >= start + duration)
        return 1.0;
    return 0.5 - 0.5 * std::cos(Pi * (t - start) / duration);
}

} // namespace

QVector<float> BowedStringSynth::bow(int midiNote, const Parameters& p)
{
    const int length = static_cast<int>(std::lround(p.lengthSeconds * SampleRate));
    const double f0 = NoteSampleEncoder::frequency(midiNote, p.concertPitch);
    const int harmonics = qMax(1, static_cast<int>(std::floor(qMin(p.bandLimit, 0.45 * SampleRate) / f0)));

    // The sawtooth's harmonics, 1/k, and beyond the roll-off a further fall;
    // each comes in over its own attack, the higher ones a little later.
    std::vector<double> amplitude(static_cast<size_t>(harmonics + 1), 0.0);
    std::vector<double> attack(static_cast<size_t>(harmonics + 1), 0.0);
    for (int k = 1; k <= harmonics; ++k) {
        const double ratio = k * f0 / p.rolloffFrequency;
        amplitude[static_cast<size_t>(k)] = 1.0 / (k * std::sqrt(1.0 + ratio * ratio));
        attack[static_cast<size_t>(k)] = p.attackSeconds * (1.0 + 0.5 * qMin(1.0, k * f0 / 4000.0));
    }
    const double longestAttack = p.attackSeconds * 1.5;

    NoiseSource noise(static_cast<quint32>(midiNote) + 7919u);
    // The bow noise: a broad band around the bridge's hill.
    Resonator noiseBand(2500.0, 0.7, SampleRate);
    // The pressure's unevenness: three slow swells that never line up, in
    // another phase on every note.
    const double wanderPhase = 2.39996 * midiNote;

    std::vector<Resonator> modes;
    for (const BodyMode& mode : p.body)
        modes.emplace_back(mode.frequency, mode.q, SampleRate);
    // The body radiates little of the highest harmonics: two gentle one-pole lowpasses at 7 kHz.
    const double lowpass = std::exp(-2.0 * Pi * 7000.0 / SampleRate);
    double low1 = 0.0, low2 = 0.0;

    const double step = 2.0 * Pi * f0 / SampleRate;
    std::vector<double> out(static_cast<size_t>(length), 0.0);
    double peak = 0.0;
    for (int n = 0; n < length; ++n) {
        const double t = double(n) / SampleRate;
        // The phase from the sample's index, so that no error accumulates.
        const double theta = std::fmod(step * n, 2.0 * Pi);
        // sin(k theta) for every k by the Chebyshev recurrence.
        const double twoCos = 2.0 * std::cos(theta);
        double previous = 0.0;
        double current = std::sin(theta);
        double saw = 0.0;
        const bool attacking = t < longestAttack;
        for (int k = 1; k <= harmonics; ++k) {
            double a = amplitude[static_cast<size_t>(k)];
            if (attacking)
                a *= rise(t, 0.0, attack[static_cast<size_t>(k)]);
            saw += a * current;
            const double next = twoCos * current - previous;
            previous = current;
            current = next;
        }
        // The slip: once a period, where the sawtooth jumps (theta = 0), the
        // bow's hair lets go and grips again with a little noise.
        const double slip2 = 0.5 + 0.5 * std::cos(theta);
        const double slip4 = slip2 * slip2;
        const double slip8 = slip4 * slip4;
        const double bowNoise = p.bowNoise * (0.3 + 0.7 * slip8 * slip8) * noiseBand.process(noise.next());
        const double wander = 0.5 * std::sin(2.0 * Pi * 0.7 * t + wanderPhase)
            + 0.3 * std::sin(2.0 * Pi * 1.3 * t + 2.0 * wanderPhase)
            + 0.2 * std::sin(2.0 * Pi * 2.9 * t + 3.0 * wanderPhase);
        const double pressure = 1.0 + p.pressureWander * wander;
        // The harmonics have their own attacks; the bow's noise follows the bow's stroke.
        const double release = 1.0 - rise(t, p.releaseStartSeconds, p.releaseSeconds);
        const double envelope = rise(t, 0.0, p.attackSeconds) * release;
        const double bridge = pressure * release * saw + pressure * envelope * bowNoise;

        double value = p.direct * bridge;
        for (int m = 0; m < static_cast<int>(modes.size()); ++m)
            value += p.body[m].gain * modes[static_cast<size_t>(m)].process(bridge);
        low1 = (1.0 - lowpass) * value + lowpass * low1;
        low2 = (1.0 - lowpass) * low1 + lowpass * low2;
        out[static_cast<size_t>(n)] = low2;
        peak = qMax(peak, std::abs(low2));
    }

    QVector<float> samples(length);
    const double scale = peak > 0.0 ? p.peakLevel / peak : 0.0;
    for (int n = 0; n < length; ++n)
        samples[n] = static_cast<float>(out[static_cast<size_t>(n)] * scale);
    return samples;
}
