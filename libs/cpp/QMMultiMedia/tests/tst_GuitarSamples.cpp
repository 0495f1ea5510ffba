#include "AudioFileDecoder.h"

#include <QtTest>

#include <cmath>
#include <complex>

using namespace QMMultiMedia;

// Checks the generated samples as the player decodes them: exact length and
// a fundamental within 5 cents of the note (A4 = 440 Hz).
class tst_GuitarSamples : public QObject
{
    Q_OBJECT

private slots:
    void guitarSample_data();
    void guitarSample();
    void metronomeSound_data();
    void metronomeSound();

private:
    static QString resource(const QString& name)
    {
        return QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/") + name;
    }
};

namespace {

// Magnitude of the Hann-windowed spectrum of `x` at one frequency.
double magnitudeAt(const QVector<float>& x, int start, int count, double frequency, int rate)
{
    const double omega = 2.0 * M_PI * frequency / rate;
    const std::complex<double> step = std::polar(1.0, -omega);
    std::complex<double> phasor(1.0, 0.0);
    std::complex<double> sum(0.0, 0.0);
    for (int n = 0; n < count; ++n) {
        const double window = 0.5 - 0.5 * std::cos(2.0 * M_PI * n / (count - 1));
        sum += phasor * (window * x.at(start + n));
        phasor *= step;
        if ((n & 1023) == 0)
            phasor /= std::abs(phasor);
    }
    return std::abs(sum);
}

// The strongest frequency within +-60 cents of `expected`, to 0.01 cent:
// a coarse scan, then a golden-section search around the best step. Looking
// only near the note keeps a strong harmonic from being taken for it.
double fundamentalNear(const QVector<float>& x, int start, int count, double expected, int rate)
{
    auto at = [&](double cents) { return magnitudeAt(x, start, count, expected * std::pow(2.0, cents / 1200.0), rate); };
    double best = -60.0;
    double bestValue = -1.0;
    for (double cents = -60.0; cents <= 60.0; cents += 2.0) {
        const double value = at(cents);
        if (value > bestValue) {
            bestValue = value;
            best = cents;
        }
    }
    double low = best - 2.0;
    double high = best + 2.0;
    const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
    while (high - low > 0.01) {
        const double a = high - ratio * (high - low);
        const double b = low + ratio * (high - low);
        if (at(a) < at(b))
            low = a;
        else
            high = b;
    }
    return (low + high) / 2.0;
}

} // namespace

void tst_GuitarSamples::guitarSample_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("frequency");

    static const char* const names[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    // The guitar's range on the board: low E (E2) to D6.
    for (int midi = 40; midi <= 86; ++midi) {
        const QString stem = QLatin1String(names[midi % 12]) + QString::number(midi / 12 - 1);
        QTest::newRow(qPrintable(stem)) << QStringLiteral("guitar_440_%1.mp3").arg(stem)
                                        << 440.0 * std::pow(2.0, (midi - 69) / 12.0);
    }
}

void tst_GuitarSamples::guitarSample()
{
    QFETCH(QString, file);
    QFETCH(double, frequency);

    DecodedSound sound;
    QVERIFY2(AudioFileDecoder::decode(resource(file), &sound), qPrintable(file));
    QCOMPARE(sound.sampleRate, 44100);
    QCOMPARE(sound.channels, 1);
    // 1.8 s exactly: the decoder drops the encoder's padding.
    QCOMPARE(sound.frames(), qint64(79380));

    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    QVERIFY2(peak > 0.3f && peak < 1.0f, qPrintable(QString::number(peak)));

    // A second and a bit of the ringing string, after the pluck's noise.
    const double cents = fundamentalNear(sound.samples, 2205, 52920, frequency, sound.sampleRate);
    QVERIFY2(std::abs(cents) < 5.0, qPrintable(QStringLiteral("%1 cents off").arg(cents, 0, 'f', 2)));
}

void tst_GuitarSamples::metronomeSound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("minimumSeconds");
    QTest::addColumn<double>("maximumSeconds");

    QTest::newRow("tick") << QStringLiteral("tick.wav") << 0.02 << 0.15;
    QTest::newRow("bell") << QStringLiteral("bell.wav") << 0.3 << 1.5;
}

void tst_GuitarSamples::metronomeSound()
{
    QFETCH(QString, file);
    QFETCH(double, minimumSeconds);
    QFETCH(double, maximumSeconds);

    DecodedSound sound;
    QVERIFY(AudioFileDecoder::decode(resource(file), &sound));
    QCOMPARE(sound.sampleRate, 44100);
    const double seconds = double(sound.frames()) / sound.sampleRate;
    QVERIFY(seconds >= minimumSeconds && seconds <= maximumSeconds);
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    QVERIFY(peak > 0.3f && peak < 1.0f);
    // Nothing left sounding at the end that would click when cut off.
    QVERIFY(std::abs(sound.samples.last()) < 0.01f);
}

QTEST_GUILESS_MAIN(tst_GuitarSamples)
#include "tst_GuitarSamples.moc"
