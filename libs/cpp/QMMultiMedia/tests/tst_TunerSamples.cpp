#include "AudioFileDecoder.h"

#include <QtTest>

#include <cmath>
#include <complex>
#include <vector>

using namespace QMMultiMedia;

namespace {

const int Rate = 44100;

// A stretch of a sound under a Hann window, whose spectrum can be read at
// any frequency: the transform of the stretch padded with zeros without end.
class WindowedStretch
{
public:
    WindowedStretch(const QVector<float>& x, double startSeconds, double seconds)
    {
        const int start = static_cast<int>(std::lround(startSeconds * Rate));
        const int count = static_cast<int>(std::lround(seconds * Rate));
        m_values.reserve(static_cast<size_t>(count));
        for (int n = 0; n < count; ++n)
            m_values.push_back((0.5 - 0.5 * std::cos(2.0 * M_PI * n / (count - 1))) * x.at(start + n));
    }

    double magnitudeAt(double frequency) const
    {
        const std::complex<double> step = std::polar(1.0, -2.0 * M_PI * frequency / Rate);
        std::complex<double> phasor(1.0, 0.0);
        std::complex<double> sum(0.0, 0.0);
        for (size_t n = 0; n < m_values.size(); ++n) {
            sum += phasor * m_values[n];
            phasor *= step;
            if ((n & 1023) == 0)
                phasor /= std::abs(phasor);
        }
        return std::abs(sum);
    }

private:
    std::vector<double> m_values;
};

// The fundamental in cents from `expected`. Only the 60 cents either side
// are searched, so that a strong harmonic is never taken for it: a coarse
// scan over half a second finds the peak's lobe, and a golden-section search
// over the sounding part, from 0.2 s to half a second before the end, pins it
// down to a thousandth of a cent.
double centsOff(const QVector<float>& x, double expected)
{
    const WindowedStretch coarse(x, 0.5, 0.5);
    const double from = expected * std::pow(2.0, -60.0 / 1200.0);
    const double to = expected * std::pow(2.0, 60.0 / 1200.0);
    double best = from;
    double bestValue = -1.0;
    for (double f = from; f <= to; f += 0.25) {
        const double value = coarse.magnitudeAt(f);
        if (value > bestValue)
            bestValue = value, best = f;
    }

    const WindowedStretch fine(x, 0.2, double(x.size()) / Rate - 0.7);
    const double golden = (std::sqrt(5.0) - 1.0) / 2.0;
    double low = best - 0.3;
    double high = best + 0.3;
    double left = high - golden * (high - low);
    double right = low + golden * (high - low);
    double leftValue = fine.magnitudeAt(left);
    double rightValue = fine.magnitudeAt(right);
    while (high - low > expected * 1e-6) {
        if (leftValue > rightValue) {
            high = right;
            right = left;
            rightValue = leftValue;
            left = high - golden * (high - low);
            leftValue = fine.magnitudeAt(left);
        } else {
            low = left;
            left = right;
            leftValue = rightValue;
            right = low + golden * (high - low);
            rightValue = fine.magnitudeAt(right);
        }
    }
    return 1200.0 * std::log2((low + high) / 2.0 / expected);
}

// The open strings each tuner page plays (the viola plays the violin's files).
struct Page
{
    const char* prefix;
    const char* notes;
};

const Page Pages[] = {
    { "guitar", "E2 A2 D3 G3 B3 E4" },
    { "bassguitar", "B0 E1 A1 D2 G2" },
    { "ukulele", "G4 C4 E4 A4" },
    { "banjo", "G4 C3 G3 B3 D4" },
    { "violine", "G3 D4 A4 E5" },
    { "violine", "C3 G3 D4 A4" },
    { "cello", "C2 G2 D3 A3" },
    { "doublebass", "E1 A1 D2 G2" },
    { "balalaika", "E4 E4 A4" },
    { "mandolin", "G3 D4 A4 E5" },
    { "dombra", "G3 D3" },
};

const int ConcertPitches[] = { 415, 430, 435, 439, 440, 442, 443, 445, 452, 460 };

// The finders' samples, "<key>_440_<stem>.mp3", 2.5 s long: at 440 some of
// them are the tuners' files.
struct FinderRange
{
    const char* key;
    int lowestMidiNote;
    int highestMidiNote;
};

const FinderRange FinderRanges[] = {
    { "guitar", 40, 86 },
    { "ukulele", 60, 84 },
    { "banjo", 50, 85 },
    { "balalaika", 64, 88 },
    { "mandolin", 55, 93 },
};

// The MIDI number of a natural note, "E2".
int midiNote(const QString& note)
{
    static const QString letters = QStringLiteral("C D EF G A B");
    return letters.indexOf(note.at(0)) + 12 * (note.midRef(1).toInt() + 1);
}

bool isFinderSample(const char* prefix, int concertPitch, const QString& note)
{
    if (concertPitch != 440)
        return false;
    for (const FinderRange& range : FinderRanges) {
        if (qstrcmp(range.key, prefix) == 0)
            return midiNote(note) >= range.lowestMidiNote && midiNote(note) <= range.highestMidiNote;
    }
    return false;
}

} // namespace

// Every sample a tuner page can ask for, at every concert pitch, as the
// player decodes it: there, 4 s long (or a finder's 2.5 s), at a sound
// level, fading out at the end, and its fundamental within a cent of the
// string's note.
class tst_TunerSamples : public QObject
{
    Q_OBJECT

private slots:
    void sample_data();
    void sample();
    void cleanupTestCase();

private:
    double m_worstCents = 0.0;
    QString m_worstFile;
};

void tst_TunerSamples::sample_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<qint64>("frames");

    QSet<QString> files;
    for (const Page& page : Pages) {
        for (const QString& note : QString::fromLatin1(page.notes).split(QLatin1Char(' '))) {
            for (int pitch : ConcertPitches) {
                const QString file
                    = QStringLiteral("%1_%2_%3.mp3").arg(QLatin1String(page.prefix)).arg(pitch).arg(note);
                if (files.contains(file))
                    continue;
                files.insert(file);
                const double frequency = pitch * std::pow(2.0, (midiNote(note) - 69) / 12.0);
                const double seconds = isFinderSample(page.prefix, pitch, note) ? 2.5 : 4.0;
                QTest::newRow(qPrintable(file)) << file << frequency << qint64(seconds * Rate);
            }
        }
    }
}

void tst_TunerSamples::sample()
{
    QFETCH(QString, file);
    QFETCH(double, frequency);
    QFETCH(qint64, frames);

    DecodedSound sound;
    QVERIFY2(AudioFileDecoder::decode(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/") + file, &sound), qPrintable(file));
    QCOMPARE(sound.sampleRate, Rate);
    QCOMPARE(sound.channels, 1);
    QCOMPARE(sound.frames(), frames);
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    QVERIFY2(peak > 0.3f && peak < 1.0f, qPrintable(QString::number(peak)));
    // Faded out, so that the end of the sample does not click: its last 10 ms
    // stay 60 dB below its peak.
    float last = 0.0f;
    for (int n = sound.samples.size() - 441; n < sound.samples.size(); ++n)
        last = qMax(last, std::abs(sound.samples.at(n)));
    const double endDb = 20.0 * std::log10(last / peak + 1e-9);
    QVERIFY2(endDb < -60.0, qPrintable(QStringLiteral("the last 10 ms at %1 dB").arg(endDb, 0, 'f', 1)));

    const double cents = centsOff(sound.samples, frequency);
    if (std::abs(cents) >= std::abs(m_worstCents))
        m_worstCents = cents, m_worstFile = file;
    QVERIFY2(std::abs(cents) < 1.0, qPrintable(QStringLiteral("%1 cents off").arg(cents, 0, 'f', 3)));
}

void tst_TunerSamples::cleanupTestCase()
{
    qInfo("furthest from its note: %s, %.3f cents", qPrintable(m_worstFile), m_worstCents);
}

QTEST_GUILESS_MAIN(tst_TunerSamples)
#include "tst_TunerSamples.moc"
