#include "AudioFileDecoder.h"

#include <QtTest>

#include <cmath>
#include <complex>

using namespace QMMultiMedia;

namespace {

// Root mean square of x[start .. start + count), in decibels.
double levelDb(const QVector<float>& x, int start, int count)
{
    double sum = 0.0;
    for (int n = start; n < start + count; ++n)
        sum += double(x.at(n)) * x.at(n);
    return 10.0 * std::log10(sum / count + 1e-20);
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

} // namespace

// The generated samples as the player decodes them: length, level, and for the
// guitar a fundamental within a cent of the note (A4 = 440 Hz) and a string
// that still rings after a second and a half.
class tst_GuitarSamples : public QObject
{
    Q_OBJECT

private slots:
    void sample_data();
    void sample();
};

void tst_GuitarSamples::sample_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("frequency"); // 0: no pitch to check
    QTest::addColumn<qint64>("minFrames");
    QTest::addColumn<qint64>("maxFrames");

    static const char* const names[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    // The guitar's range on the board, E2 to D6; 2.5 s exactly, the encoder's padding dropped.
    for (int midi = 40; midi <= 86; ++midi) {
        const QString stem = QLatin1String(names[midi % 12]) + QString::number(midi / 12 - 1);
        QTest::newRow(qPrintable(stem)) << QStringLiteral("guitar_440_%1.mp3").arg(stem)
                                        << 440.0 * std::pow(2.0, (midi - 69) / 12.0) << qint64(110250)
                                        << qint64(110250);
    }
    QTest::newRow("tick") << QStringLiteral("tick.wav") << 0.0 << qint64(882) << qint64(6615);
    QTest::newRow("bell") << QStringLiteral("bell.wav") << 0.0 << qint64(13230) << qint64(66150);
}

void tst_GuitarSamples::sample()
{
    QFETCH(QString, file);
    QFETCH(double, frequency);
    QFETCH(qint64, minFrames);
    QFETCH(qint64, maxFrames);

    DecodedSound sound;
    QVERIFY2(AudioFileDecoder::decode(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/") + file, &sound), qPrintable(file));
    QCOMPARE(sound.sampleRate, 44100);
    QCOMPARE(sound.channels, 1);
    QVERIFY2(sound.frames() >= minFrames && sound.frames() <= maxFrames, qPrintable(QString::number(sound.frames())));
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    QVERIFY2(peak > 0.3f && peak < 1.0f, qPrintable(QString::number(peak)));
    if (frequency == 0.0) {
        // Nothing left sounding at the end that would click when cut off.
        QVERIFY(std::abs(sound.samples.last()) < 0.01f);
        return;
    }
    // A second and a bit of the ringing string, after the pluck's noise.
    const double cents = centsOff(sound.samples, 2205, 52920, frequency, sound.sampleRate);
    QVERIFY2(std::abs(cents) < 1.0, qPrintable(QStringLiteral("%1 cents off").arg(cents, 0, 'f', 2)));
    // A plucked string fades slowly: 1.5 s after the pluck less than 32 dB
    // below its first tenths of a second (the high notes' overtones die first).
    const double drop = levelDb(sound.samples, 4410, 8820) - levelDb(sound.samples, 61740, 8820);
    QVERIFY2(drop < 32.0, qPrintable(QStringLiteral("%1 dB down after 1.5 s").arg(drop, 0, 'f', 1)));
}

QTEST_GUILESS_MAIN(tst_GuitarSamples)
#include "tst_GuitarSamples.moc"
