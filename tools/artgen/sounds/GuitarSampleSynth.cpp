#include "GuitarSampleSynth.h"

#include "ArtWriter.h"
#include "NoteSpelling.h"
#include "PcmWave.h"

#include <QFile>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <cmath>
#include <memory>
#include <vector>

namespace {

const double Pi = 3.14159265358979323846;
const double LengthSeconds = 2.5;
const double FadeSeconds = 0.5;
const double PickPosition = 0.2; // fraction of the string from the bridge: warmer than near it
const double LoopFilterTap = 0.16; // outer taps of the loop's lowpass
const float PeakLevel = 0.7f;
const int ParallelEncoders = 4;

// Deterministic noise for the pluck: a linear congruential generator.
class NoiseSource
{
public:
    explicit NoiseSource(quint32 seed)
        : m_state(seed * 2654435761u + 12345u)
    {
    }
    float next()
    {
        m_state = m_state * 1664525u + 1013904223u;
        return static_cast<float>(m_state >> 8) / 8388608.0f - 1.0f;
    }

private:
    quint32 m_state = 1;
};

// Two-pole resonator (constant peak gain bandpass) for the body.
class Resonator
{
public:
    Resonator(double frequency, double q)
    {
        const double omega = 2.0 * Pi * frequency / GuitarSampleSynth::SampleRate;
        const double alpha = std::sin(omega) / (2.0 * q);
        const double a0 = 1.0 + alpha;
        m_b0 = alpha / a0;
        m_a1 = -2.0 * std::cos(omega) / a0;
        m_a2 = (1.0 - alpha) / a0;
    }
    double process(double x)
    {
        const double y = m_b0 * (x - m_x2) - m_a1 * m_y1 - m_a2 * m_y2;
        m_x2 = m_x1;
        m_x1 = x;
        m_y2 = m_y1;
        m_y1 = y;
        return y;
    }

private:
    double m_b0 = 0.0;
    double m_a1 = 0.0;
    double m_a2 = 0.0;
    double m_x1 = 0.0;
    double m_x2 = 0.0;
    double m_y1 = 0.0;
    double m_y2 = 0.0;
};

// Time for the string to fall by 60 dB: long for the low E, shorter at the
// top, as a nylon or steel string rings on a guitar's body.
double decaySeconds(int midiNote)
{
    const double t = double(midiNote - GuitarSampleSynth::LowestMidiNote)
        / (GuitarSampleSynth::HighestMidiNote - GuitarSampleSynth::LowestMidiNote);
    return 8.0 + t * (5.5 - 8.0);
}

} // namespace

QString GuitarSampleSynth::stem(int midiNote)
{
    static const char* const names[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    return QLatin1String(names[midiNote % 12]) + QString::number(midiNote / 12 - 1);
}

double GuitarSampleSynth::frequency(int midiNote)
{
    return 440.0 * std::pow(2.0, (midiNote - 69) / 12.0);
}

double GuitarSampleSynth::allpassCoefficient(double delay, double omega)
{
    // Phase delay of the allpass: 1 - (2 / omega) * atan2(C sin w, 1 + C cos w).
    const double theta = (1.0 - delay) * omega / 2.0;
    return std::sin(theta) / std::sin(omega - theta);
}

QVector<float> GuitarSampleSynth::pluck(int midiNote)
{
    const int length = static_cast<int>(std::lround(LengthSeconds * SampleRate));
    const double f0 = frequency(midiNote);
    const double omega = 2.0 * Pi * f0 / SampleRate;
    const double period = SampleRate / f0;

    // Loop: delay line of N samples, symmetric three-tap lowpass (exactly one
    // sample of delay), allpass for the fraction. N + 1 + fraction = period.
    const int delayLength = static_cast<int>(std::floor(period - 1.0 - 0.1));
    const double fraction = period - 1.0 - delayLength;
    const double allpass = allpassCoefficient(fraction, omega);

    // Per-period gain for the wanted decay, shared between lowpass and loss.
    const double wantedGain = std::pow(10.0, -3.0 / (f0 * decaySeconds(midiNote)));
    double tap = LoopFilterTap;
    const double lowpassLossPerTap = 2.0 * (1.0 - std::cos(omega));
    if (1.0 - tap * lowpassLossPerTap < wantedGain)
        tap = 0.8 * (1.0 - wantedGain) / lowpassLossPerTap;
    const double centre = 1.0 - 2.0 * tap;
    const double lowpassGain = centre + 2.0 * tap * std::cos(omega);
    const double loss = qMin(1.0, wantedGain / lowpassGain);

    // Excitation: one period of softened noise through the pick-position comb.
    const int burstLength = static_cast<int>(std::lround(period));
    const int combDelay = qMax(1, static_cast<int>(std::lround(PickPosition * period)));
    NoiseSource noise(static_cast<quint32>(midiNote));
    std::vector<double> burst(static_cast<size_t>(burstLength), 0.0);
    // A soft pick: the burst is smoothed, the more so on the low strings.
    const double softness = 0.12 + 0.3 * (midiNote - LowestMidiNote) / double(HighestMidiNote - LowestMidiNote);
    double smooth = 0.0;
    for (double& value : burst) {
        smooth += softness * (noise.next() - smooth);
        value = smooth;
    }
    std::vector<double> excitation(static_cast<size_t>(burstLength + combDelay), 0.0);
    for (int n = 0; n < burstLength + combDelay; ++n) {
        const double direct = n < burstLength ? burst[static_cast<size_t>(n)] : 0.0;
        const double reflected = n >= combDelay ? burst[static_cast<size_t>(n - combDelay)] : 0.0;
        excitation[static_cast<size_t>(n)] = direct - reflected;
    }

    std::vector<double> string(static_cast<size_t>(length), 0.0);
    double v1 = 0.0, v2 = 0.0; // lowpass history
    double f1 = 0.0, u1 = 0.0; // allpass history
    for (int n = 0; n < length; ++n) {
        const double v = n >= delayLength ? string[static_cast<size_t>(n - delayLength)] : 0.0;
        const double f = tap * v + centre * v1 + tap * v2;
        v2 = v1;
        v1 = v;
        const double u = allpass * f + f1 - allpass * u1;
        f1 = f;
        u1 = u;
        const double e = n < static_cast<int>(excitation.size()) ? excitation[static_cast<size_t>(n)] : 0.0;
        string[static_cast<size_t>(n)] = e + loss * u;
    }

    // The body: the air cavity, the top and its first overtone, which give
    // the low notes their warmth.
    Resonator air(98.0, 12.0);
    Resonator top(205.0, 15.0);
    Resonator upper(410.0, 18.0);
    QVector<float> out(length);
    double peak = 0.0;
    std::vector<double> body(static_cast<size_t>(length));
    for (int n = 0; n < length; ++n) {
        const double s = string[static_cast<size_t>(n)];
        const double value = s + 0.5 * air.process(s) + 0.35 * top.process(s) + 0.15 * upper.process(s);
        body[static_cast<size_t>(n)] = value;
        peak = qMax(peak, std::abs(value));
    }
    const int fadeStart = length - static_cast<int>(std::lround(FadeSeconds * SampleRate));
    const double scale = peak > 0.0 ? PeakLevel / peak : 0.0;
    for (int n = 0; n < length; ++n) {
        double gain = scale;
        if (n >= fadeStart)
            gain *= 0.5 * (1.0 + std::cos(Pi * (n - fadeStart) / double(length - fadeStart)));
        out[n] = static_cast<float>(body[static_cast<size_t>(n)] * gain);
    }
    return out;
}

void GuitarSampleSynth::generate(ArtWriter& writer)
{
    // The waves go to a scratch folder; a few lame processes encode side by side.
    QTemporaryDir scratch;
    if (!scratch.isValid())
        return;
    QList<int> pending;
    for (int note = LowestMidiNote; note <= HighestMidiNote; ++note)
        pending.append(note);
    while (!pending.isEmpty()) {
        std::vector<std::unique_ptr<QProcess>> running;
        for (int i = 0; i < ParallelEncoders && !pending.isEmpty(); ++i) {
            const int note = pending.takeFirst();
            const QString wavePath = scratch.filePath(stem(note) + QStringLiteral(".wav"));
            QFile wave(wavePath);
            if (!wave.open(QIODevice::WriteOnly))
                continue;
            wave.write(PcmWave::monoWaveFile(pluck(note), SampleRate));
            wave.close();
            auto encoder = std::make_unique<QProcess>();
            encoder->setProcessChannelMode(QProcess::ForwardedChannels);
            encoder->start(QStringLiteral("lame"),
                { QStringLiteral("--quiet"), QStringLiteral("-m"), QStringLiteral("m"), QStringLiteral("-V"),
                    QStringLiteral("7"), QStringLiteral("--resample"), QStringLiteral("44.1"),
                    QStringLiteral("--noreplaygain"), wavePath,
                    writer.bundlePath(QMMusic::NoteSpelling::sampleFileName(QStringLiteral("Guitar"), stem(note))) });
            running.push_back(std::move(encoder));
        }
        for (auto& encoder : running)
            encoder->waitForFinished(30000);
    }
}
