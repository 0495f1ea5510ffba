#include "AudioFileDecoder.h"

#include <QtTest>

#include <algorithm>

#include <cmath>
#include <complex>

using namespace QMMultiMedia;

namespace {

const int Rate = 44100;

// Root mean square of x[start .. start + count), in decibels; the encoder
// drops what falls below hearing, and that silence counts as -100 dB.
double levelDb(const QVector<float>& x, int start, int count)
{
    double sum = 0.0;
    for (int n = start; n < start + count; ++n)
        sum += double(x.at(n)) * x.at(n);
    return qMax(-100.0, 10.0 * std::log10(sum / count + 1e-20));
}

// Level of the 0.2 s around `seconds`.
double levelAround(const QVector<float>& x, double seconds)
{
    return levelDb(x, static_cast<int>(std::lround((seconds - 0.1) * Rate)), Rate / 5);
}

// Magnitude of the Hann-windowed spectrum of x[start .. start + count) at one frequency.
double magnitudeAt(const QVector<float>& x, int start, int count, double frequency, int rate)
{
    const std::complex<double> step = std::polar(1.0, -2.0 * M_PI * frequency / rate);
    std::complex<double> phasor(1.0, 0.0);
    std::complex<double> sum(0.0, 0.0);
    for (int n = 0; n < count; ++n) {
        sum += phasor * ((0.5 - 0.5 * std::cos(2.0 * M_PI * n / (count - 1))) * x.at(start + n));
        phasor *= step;
        if ((n & 1023) == 0)
            phasor /= std::abs(phasor);
    }
    return std::abs(sum);
}

// The strongest frequency within 60 cents of `expected`, in cents from it, to 0.1 cent.
// Looking only near the note keeps a strong harmonic from being taken for it.
double centsOff(const QVector<float>& x, int start, int count, double expected, int rate)
{
    double best = 0.0;
    double bestValue = -1.0;
    auto scan = [&](double from, double to, double step) {
        for (double cents = from; cents <= to; cents += step) {
            const double value = magnitudeAt(x, start, count, expected * std::pow(2.0, cents / 1200.0), rate);
            if (value > bestValue)
                bestValue = value, best = cents;
        }
    };
    scan(-60.0, 60.0, 2.0);
    scan(best - 2.0, best + 2.0, 0.1);
    return best;
}

enum Family
{
    Plucked,
    Bowed,
    Struck,
    Unpitched
};

struct InstrumentRange
{
    const char* key;
    int lowestMidiNote;
    int highestMidiNote;
    Family family;
    double maxCents;
    // Two strings to a course, this many cents apart.
    double courseCents;
    // For a plucked string: how many dB it falls from 0.1-0.3 s to 1.4-1.6 s.
    double minDrop;
    double maxDrop;
};

} // namespace

Q_DECLARE_METATYPE(Family)

// The generated samples as the player decodes them: length, level, a
// fundamental on the note (A4 = 440 Hz), nothing left sounding at the end,
// and the shape in time of each kind of string: a plucked one decays at its
// instrument's pace, a bowed one swells in softly and holds, a struck piano
// string dies in two stages and its stiffness stretches its partials.
class tst_InstrumentSamples : public QObject
{
    Q_OBJECT

private slots:
    void sample_data();
    void sample();
};

void tst_InstrumentSamples::sample_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("frequency"); // 0: no pitch to check
    QTest::addColumn<qint64>("minFrames");
    QTest::addColumn<qint64>("maxFrames");
    QTest::addColumn<Family>("family");
    QTest::addColumn<double>("maxCents");
    QTest::addColumn<double>("courseCents");
    QTest::addColumn<double>("minDrop");
    QTest::addColumn<double>("maxDrop");

    // Each instrument's range on its board; every note 2.5 s exactly, the encoder's padding dropped.
    static const InstrumentRange ranges[] = {
        { "guitar", 40, 86, Plucked, 1.0, 0.0, 6.0, 32.0 }, // E2 to D6
        { "ukulele", 60, 84, Plucked, 2.0, 0.0, 20.0, 40.0 }, // C4 to C6
        { "violin", 55, 83, Bowed, 2.0, 0.0, 0.0, 0.0 }, // G3 to B5
        { "bass", 28, 63, Plucked, 2.0, 0.0, 6.0, 28.0 }, // E1 to D#4
        { "balalaika", 64, 88, Plucked, 2.0, 0.0, 25.0, 55.0 }, // E4 to E6
        { "banjo", 50, 85, Plucked, 2.0, 0.0, 36.0, 75.0 }, // D3 to C#6
        { "mandolin", 55, 93, Plucked, 2.0, 0.0, 25.0, 52.0 }, // G3 to A6
        { "piano", 21, 108, Struck, 2.0, 0.0, 0.0, 0.0 }, // A0 to C8
    };
    static const char* const names[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    for (const InstrumentRange& range : ranges) {
        for (int midi = range.lowestMidiNote; midi <= range.highestMidiNote; ++midi) {
            const QString stem = QLatin1String(names[midi % 12]) + QString::number(midi / 12 - 1);
            const QString file = QStringLiteral("%1_440_%2.mp3").arg(QLatin1String(range.key), stem);
            QTest::newRow(qPrintable(file))
                << file << 440.0 * std::pow(2.0, (midi - 69) / 12.0) << qint64(110250) << qint64(110250) << range.family
                << range.maxCents << range.courseCents << range.minDrop << range.maxDrop;
        }
    }
    QTest::newRow("tick") << QStringLiteral("tick.wav") << 0.0 << qint64(882) << qint64(6615) << Unpitched << 0.0 << 0.0
                          << 0.0 << 0.0;
    QTest::newRow("bell") << QStringLiteral("bell.wav") << 0.0 << qint64(13230) << qint64(66150) << Unpitched << 0.0
                          << 0.0 << 0.0 << 0.0;
}

void tst_InstrumentSamples::sample()
{
    QFETCH(QString, file);
    QFETCH(double, frequency);
    QFETCH(qint64, minFrames);
    QFETCH(qint64, maxFrames);
    QFETCH(Family, family);
    QFETCH(double, maxCents);
    QFETCH(double, courseCents);
    QFETCH(double, minDrop);
    QFETCH(double, maxDrop);

    DecodedSound sound;
    QVERIFY2(AudioFileDecoder::decode(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/") + file, &sound), qPrintable(file));
    QCOMPARE(sound.sampleRate, Rate);
    QCOMPARE(sound.channels, 1);
    QVERIFY2(sound.frames() >= minFrames && sound.frames() <= maxFrames, qPrintable(QString::number(sound.frames())));
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    QVERIFY2(peak > 0.3f && peak < 1.0f, qPrintable(QString::number(peak)));
    // Nothing left sounding at the end that would click when cut off: the
    // metronome's last sample, a string's last 10 ms.
    if (family == Unpitched) {
        QVERIFY2(std::abs(sound.samples.last()) < 0.01f, qPrintable(QString::number(sound.samples.last())));
        // The metronome's sounds start at once: what is heard falls on the beat.
        const auto onset = std::find_if(sound.samples.cbegin(), sound.samples.cend(),
            [peak](float value) { return std::abs(value) > 0.1f * peak; });
        const qint64 onsetFrame = (onset - sound.samples.cbegin()) / sound.channels;
        QVERIFY2(
            onsetFrame < sound.sampleRate / 1000, qPrintable(QStringLiteral("onset after %1 frames").arg(onsetFrame)));
        return;
    }
    const double end = levelDb(sound.samples, sound.samples.size() - 441, 441);
    QVERIFY2(end < -50.0, qPrintable(QStringLiteral("%1 dB at the end").arg(end, 0, 'f', 1)));

    // A second and a bit of the sounding string, after the pluck's noise or
    // the bow's first bite; two seconds below 60 Hz, to resolve a fraction of
    // a cent in the few periods of a low bass note.
    int count = frequency < 60.0 ? 2 * Rate : 52920;
    // The two strings of a course start together and drift apart; until half
    // a beat they sound as one string at their mean pitch, which is measured.
    if (courseCents > 0.0) {
        const double beat = frequency * (std::pow(2.0, courseCents / 1200.0) - 1.0);
        count = qMin(count, static_cast<int>(0.9 * Rate / (2.0 * beat)) - 2205);
    }
    const double cents = centsOff(sound.samples, 2205, count, frequency, sound.sampleRate);
    QVERIFY2(std::abs(cents) < maxCents, qPrintable(QStringLiteral("%1 cents off").arg(cents, 0, 'f', 2)));

    if (family == Plucked) {
        // A plucked string fades at its instrument's pace: from its first
        // tenths of a second to 1.5 s after the pluck it falls by so many dB
        // (the high notes' overtones die first).
        const double drop = levelAround(sound.samples, 0.2) - levelAround(sound.samples, 1.5);
        QVERIFY2(drop >= minDrop && drop <= maxDrop,
            qPrintable(QStringLiteral("%1 dB down after 1.5 s").arg(drop, 0, 'f', 1)));
    } else if (family == Struck) {
        // A piano note dies in two stages: the prompt sound falls fast over
        // its first tenths of a second, then the aftersound lingers, falling
        // from 0.8 s to 1.8 s at under 60 % of that pace (the unison's slow
        // beats included)...
        const double start = levelAround(sound.samples, 0.1);
        const double prompt = (start - levelAround(sound.samples, 0.4)) / 0.3;
        const double after = levelAround(sound.samples, 0.8) - levelAround(sound.samples, 1.8);
        QVERIFY2(prompt > 1.7 * after,
            qPrintable(QStringLiteral("%1 dB/s over the first 0.3 s, then %2 dB/s")
                           .arg(prompt, 0, 'f', 1)
                           .arg(after, 0, 'f', 1)));
        // ...and is still sounding after 1.8 s, within 60 dB of its start.
        const double left = levelAround(sound.samples, 1.8) - start;
        QVERIFY2(left > -60.0, qPrintable(QStringLiteral("%1 dB left after 1.8 s").arg(left, 0, 'f', 1)));
        // The stiff wound strings of the lowest octave stretch their partials:
        // with B between 1e-4 and 1e-3 the 6th lies 3 to 30 cents sharp of six
        // times the fundamental.
        if (frequency < 54.0) {
            const double sixth = centsOff(sound.samples, 2205, count, 6.0 * frequency, sound.sampleRate) - cents;
            QVERIFY2(sixth > 3.0 && sixth < 30.0,
                qPrintable(
                    QStringLiteral("the 6th partial %1 cents off six times the fundamental").arg(sixth, 0, 'f', 1)));
        }
    } else {
        // A bowed string holds its level while the bow moves...
        const double change = levelAround(sound.samples, 1.5) - levelAround(sound.samples, 0.5);
        QVERIFY2(
            std::abs(change) < 3.0, qPrintable(QStringLiteral("%1 dB from 0.5 s to 1.5 s").arg(change, 0, 'f', 1)));
        // ...and the bow takes its time to set it going: the first 20 ms stay far below the held level.
        const double onset = levelDb(sound.samples, 0, 882) - levelAround(sound.samples, 0.5);
        QVERIFY2(onset < -15.0, qPrintable(QStringLiteral("the first 20 ms at %1 dB").arg(onset, 0, 'f', 1)));
    }
}

QTEST_GUILESS_MAIN(tst_InstrumentSamples)
#include "tst_InstrumentSamples.moc"
