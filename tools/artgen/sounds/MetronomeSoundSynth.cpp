#include "MetronomeSoundSynth.h"

#include "ArtWriter.h"
#include "PcmWave.h"

#include <cmath>

namespace {

const double Pi = 3.14159265358979323846;

struct Partial
{
    double frequency;
    double amplitude;
    double decaySeconds; // time constant
};

QVector<float> sumOfPartials(const Partial* partials, int count, double seconds, double peak)
{
    const int length = static_cast<int>(std::lround(seconds * MetronomeSoundSynth::SampleRate));
    QVector<double> sum(length, 0.0);
    for (int p = 0; p < count; ++p) {
        const Partial& partial = partials[p];
        for (int n = 0; n < length; ++n) {
            const double t = double(n) / MetronomeSoundSynth::SampleRate;
            sum[n]
                += partial.amplitude * std::exp(-t / partial.decaySeconds) * std::sin(2.0 * Pi * partial.frequency * t);
        }
    }
    double highest = 0.0;
    for (double value : qAsConst(sum))
        highest = qMax(highest, std::abs(value));
    QVector<float> out(length);
    // A 1 ms rise keeps the start free of a click; the end is already silent.
    const int rise = MetronomeSoundSynth::SampleRate / 1000;
    for (int n = 0; n < length; ++n) {
        const double envelope = n < rise ? double(n) / rise : 1.0;
        out[n] = static_cast<float>(highest > 0.0 ? sum[n] * envelope * peak / highest : 0.0);
    }
    return out;
}

} // namespace

QVector<float> MetronomeSoundSynth::tick()
{
    static const Partial partials[] = {
        { 1850.0, 1.0, 0.008 },
        { 3120.0, 0.5, 0.005 },
        { 820.0, 0.35, 0.012 },
    };
    return sumOfPartials(partials, 3, 0.06, 0.8);
}

QVector<float> MetronomeSoundSynth::bell()
{
    static const Partial partials[] = {
        { 1320.0, 1.0, 0.28 },
        { 2640.0, 0.45, 0.18 },
        { 3643.0, 0.35, 0.12 },
        { 7128.0, 0.15, 0.06 },
        { 660.0, 0.25, 0.3 },
    };
    return sumOfPartials(partials, 5, 0.8, 0.8);
}

void MetronomeSoundSynth::generate(ArtWriter& writer)
{
    writer.addBundleFile(QStringLiteral("tick.wav"), PcmWave::monoWaveFile(tick(), SampleRate));
    writer.addBundleFile(QStringLiteral("bell.wav"), PcmWave::monoWaveFile(bell(), SampleRate));
}
