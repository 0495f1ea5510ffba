#include "PluckedStringSynth.h"

#include "NoiseSource.h"
#include "NoteSampleEncoder.h"
#include "Resonator.h"

#include <QtGlobal>

#include <cmath>
#include <vector>

namespace {

const double Pi = 3.14159265358979323846;

// Position of the note within the instrument's range, 0 at the lowest, 1 at the highest.
double rangePosition(int midiNote, const PluckedStringSynth::Parameters& p)
{
    return double(midiNote - p.lowestMidiNote) / (p.highestMidiNote - p.lowestMidiNote);
}

// Gain of the one-pole lowpass (1 - a) / (1 - a z^-1) at omega.
double onePoleGain(double a, double omega)
{
    return (1.0 - a) / std::sqrt(1.0 - 2.0 * a * std::cos(omega) + a * a);
}

// One string driven by the excitation, `length` samples of its vibration at
// the frequency f0, the fundamental falling by 60 dB in `decaySeconds`.
std::vector<double> ringString(const std::vector<double>& excitation, double f0, double decaySeconds,
    double loopFilterTap, double damping, int length)
{
    const double omega = 2.0 * Pi * f0 / PluckedStringSynth::SampleRate;
    const double period = PluckedStringSynth::SampleRate / f0;

    // Per-period gain for the wanted decay, shared between lowpass and loss.
    // A lowpass that alone would lose more than that is made gentler.
    const double wantedGain = std::pow(10.0, -3.0 / (f0 * decaySeconds));
    double tap = loopFilterTap;
    const double lowpassLossPerTap = 2.0 * (1.0 - std::cos(omega));
    if (1.0 - tap * lowpassLossPerTap < wantedGain)
        tap = 0.8 * (1.0 - wantedGain) / lowpassLossPerTap;
    const double centre = 1.0 - 2.0 * tap;
    const double tapGain = centre + 2.0 * tap * std::cos(omega);
    double a = damping;
    while (a > 0.0 && tapGain * onePoleGain(a, omega) < wantedGain)
        a *= 0.9;
    const double lowpassGain = a > 0.0 ? tapGain * onePoleGain(a, omega) : tapGain;
    const double loss = qMin(1.0, wantedGain / lowpassGain);
    // Phase delay of the one-pole lowpass at the fundamental.
    const double dampingDelay = a > 0.0 ? std::atan2(a * std::sin(omega), 1.0 - a * std::cos(omega)) / omega : 0.0;

    // Loop: delay line of N samples, symmetric three-tap lowpass (exactly one
    // sample of delay), the one-pole lowpass, allpass for the fraction.
    // N + 1 + one-pole delay + fraction = period.
    const double rest = period - 1.0 - dampingDelay;
    const int delayLength = static_cast<int>(std::floor(rest - 0.1));
    const double fraction = rest - delayLength;
    const double allpass = PluckedStringSynth::allpassCoefficient(fraction, omega);

    std::vector<double> string(static_cast<size_t>(length), 0.0);
    double v1 = 0.0, v2 = 0.0; // three-tap lowpass history
    double d1 = 0.0; // one-pole lowpass history
    double f1 = 0.0, u1 = 0.0; // allpass history
    for (int n = 0; n < length; ++n) {
        const double v = n >= delayLength ? string[static_cast<size_t>(n - delayLength)] : 0.0;
        double f = tap * v + centre * v1 + tap * v2;
        v2 = v1;
        v1 = v;
        if (a > 0.0) {
            f = (1.0 - a) * f + a * d1;
            d1 = f;
        }
        const double u = allpass * f + f1 - allpass * u1;
        f1 = f;
        u1 = u;
        const double e = n < static_cast<int>(excitation.size()) ? excitation[static_cast<size_t>(n)] : 0.0;
        string[static_cast<size_t>(n)] = e + loss * u;
    }
    return string;
}

} // namespace

double PluckedStringSynth::allpassCoefficient(double delay, double omega)
{
    // Phase delay of the allpass: 1 - (2 / omega) * atan2(C sin w, 1 + C cos w).
    const double theta = (1.0 - delay) * omega / 2.0;
    return std::sin(theta) / std::sin(omega - theta);
}

QVector<float> PluckedStringSynth::pluck(int midiNote, const Parameters& p)
{
    const int length = static_cast<int>(std::lround(p.lengthSeconds * SampleRate));
    const double f0 = NoteSampleEncoder::frequency(midiNote, p.concertPitch);
    const double period = SampleRate / f0;
    const double t = rangePosition(midiNote, p);
    const double decay = p.decayLowSeconds + t * (p.decayHighSeconds - p.decayLowSeconds);
    const double damping = p.dampingLow + t * (p.dampingHigh - p.dampingLow);

    // Excitation: one period of softened noise through the pick-position comb.
    const int burstLength = static_cast<int>(std::lround(period));
    const int combDelay = qMax(1, static_cast<int>(std::lround(p.pickPosition * period)));
    NoiseSource noise(static_cast<quint32>(midiNote));
    std::vector<double> burst(static_cast<size_t>(burstLength), 0.0);
    // A soft pick smooths the burst, the more so on the low strings.
    const double softness
        = p.softness + p.softnessRise * (midiNote - p.lowestMidiNote) / double(p.highestMidiNote - p.lowestMidiNote);
    // A burst of pure noise may by chance carry little of the fundamental;
    // a share of a single kick, with the noise's energy, keeps every note's
    // fundamental strong.
    const double kick = p.noiseShare < 1.0 ? (1.0 - p.noiseShare) * std::sqrt(burstLength / 3.0) : 0.0;
    double smooth = 0.0;
    for (size_t n = 0; n < burst.size(); ++n) {
        double input = noise.next();
        if (p.noiseShare < 1.0)
            input = p.noiseShare * input + (n == 0 ? kick : 0.0);
        smooth += softness * (input - smooth);
        burst[n] = smooth;
    }
    std::vector<double> excitation(static_cast<size_t>(burstLength + combDelay), 0.0);
    for (int n = 0; n < burstLength + combDelay; ++n) {
        const double direct = n < burstLength ? burst[static_cast<size_t>(n)] : 0.0;
        const double reflected = n >= combDelay ? burst[static_cast<size_t>(n - combDelay)] : 0.0;
        excitation[static_cast<size_t>(n)] = direct - reflected;
    }

    // A course: the pick strikes both strings alike, one tuned a little
    // sharp, the other as much flat, so that they beat slowly around the note.
    std::vector<double> string;
    if (p.doubleCourse) {
        const double ratio = std::pow(2.0, p.courseDetuneCents / 1200.0);
        string = ringString(excitation, f0 * ratio, decay, p.loopFilterTap, damping, length);
        const std::vector<double> second = ringString(excitation, f0 / ratio, decay, p.loopFilterTap, damping, length);
        for (size_t n = 0; n < string.size(); ++n)
            string[n] += second[n];
    } else {
        string = ringString(excitation, f0, decay, p.loopFilterTap, damping, length);
    }

    std::vector<Resonator> modes;
    for (const BodyMode& mode : p.body)
        modes.emplace_back(mode.frequency, mode.q, SampleRate);
    double peak = 0.0;
    std::vector<double> body(static_cast<size_t>(length));
    for (int n = 0; n < length; ++n) {
        const double s = string[static_cast<size_t>(n)];
        double value = p.direct * s;
        for (int m = 0; m < static_cast<int>(modes.size()); ++m)
            value += p.body[m].gain * modes[static_cast<size_t>(m)].process(s);
        body[static_cast<size_t>(n)] = value;
        peak = qMax(peak, std::abs(value));
    }

    QVector<float> out(length);
    const int fadeStart = length - static_cast<int>(std::lround(p.fadeSeconds * SampleRate));
    const double scale = peak > 0.0 ? p.peakLevel / peak : 0.0;
    for (int n = 0; n < length; ++n) {
        double gain = scale;
        if (n >= fadeStart)
            gain *= 0.5 * (1.0 + std::cos(Pi * (n - fadeStart) / double(length - fadeStart)));
        out[n] = static_cast<float>(body[static_cast<size_t>(n)] * gain);
    }
    return out;
}
