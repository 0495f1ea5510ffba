#include "AudioFileDecoder.h"
#include "PitchListener.h"
#include "PitchTracker.h"

#include <QAudioDeviceInfo>
#include <QAudioOutput>
#include <QBuffer>
#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>

using QMMultiMedia::PitchListener;
using QMMultiMedia::PitchTracker;

namespace {

constexpr int Rate = 44100;

// Plays mono samples into the default sink, which the monitor source hears again.
class SinkPlayer
{
public:
    explicit SinkPlayer(const QVector<float>& samples)
    {
        m_bytes.resize(samples.size() * 2);
        auto* out = reinterpret_cast<qint16*>(m_bytes.data());
        for (int i = 0; i < samples.size(); ++i)
            out[i] = qint16(std::lround(qBound(-1.0f, samples.at(i), 1.0f) * 32767.0f));
        m_buffer.setData(m_bytes);
        QAudioFormat format;
        format.setSampleRate(Rate);
        format.setChannelCount(1);
        format.setSampleSize(16);
        format.setSampleType(QAudioFormat::SignedInt);
        format.setByteOrder(QAudioFormat::LittleEndian);
        format.setCodec(QStringLiteral("audio/pcm"));
        m_output = std::make_unique<QAudioOutput>(format);
        m_buffer.open(QIODevice::ReadOnly);
        m_output->start(&m_buffer);
    }
    bool isDone() const { return m_output->state() != QAudio::ActiveState; }

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
    std::unique_ptr<QAudioOutput> m_output;
};

// A plucked string's outline: five harmonics that die away, as a string sounds.
QVector<float> plucked(double frequency, double seconds)
{
    QVector<float> samples(int(seconds * Rate));
    for (int n = 0; n < samples.size(); ++n) {
        const double t = double(n) / Rate;
        double value = 0.0;
        for (int k = 1; k <= 5; ++k)
            value += std::sin(2.0 * M_PI * k * frequency * t) / k;
        samples[n] = float(0.3 * value * std::exp(-1.5 * t));
    }
    return samples;
}

QVector<float> whiteNoise(double seconds)
{
    QVector<float> samples(int(seconds * Rate));
    for (float& sample : samples)
        sample = float(QRandomGenerator::global()->bounded(0.6) - 0.3);
    return samples;
}

QVector<float> monoOf(const QString& path)
{
    QMMultiMedia::DecodedSound sound;
    if (!QMMultiMedia::AudioFileDecoder::decode(path, &sound) || sound.sampleRate != Rate)
        return {};
    QVector<float> mono(int(sound.frames()));
    for (int i = 0; i < mono.size(); ++i)
        mono[i] = sound.samples.at(i * sound.channels);
    return mono;
}

// The first note heard and the median deviation of the readings of that note.
struct Heard
{
    int note = -1;
    double cents = 0.0;
};

} // namespace

class tst_PitchListener : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void samples_data();
    void samples();
    void detuned_data();
    void detuned();
    void noNoteWithoutTone_data();
    void noNoteWithoutTone();
    void stopClosesTheSource();

private:
    void listen(const QVector<float>& sound, double concertPitch, Heard* heard);

    int m_octaveErrors = 0;
    int m_samplesHeard = 0;
};

void tst_PitchListener::initTestCase()
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        QSKIP("no sound server");
}

void tst_PitchListener::cleanupTestCase()
{
    qInfo("samples heard: %d, octave errors: %d", m_samplesHeard, m_octaveErrors);
}

void tst_PitchListener::listen(const QVector<float>& sound, double concertPitch, Heard* heard)
{
    PitchListener listener;
    listener.setDeviceName(QStringLiteral("null.monitor"));
    listener.setConcertPitch(concertPitch);
    QSignalSpy played(&listener, &PitchListener::notePlayed);
    QVector<double> cents;
    int note = -1;
    connect(&listener, &PitchListener::notePlayed, this, [&note](int played) {
        if (note < 0)
            note = played;
    });
    connect(&listener, &PitchListener::pitchChanged, this, [&](double, int heard, double deviation) {
        if (note >= 0 && heard == note)
            cents.append(deviation);
    });
    listener.start();
    SinkPlayer player(sound);
    // Read once the pluck has settled: a tenth of a second after the note counts.
    QTRY_VERIFY_WITH_TIMEOUT(cents.size() >= 30 || player.isDone(), 5000);
    cents.remove(0, qMin(10, cents.size()));
    heard->note = note;
    if (note >= 0 && !cents.isEmpty()) {
        std::nth_element(cents.begin(), cents.begin() + cents.size() / 2, cents.end());
        heard->cents = cents.at(cents.size() / 2);
    }
}

void tst_PitchListener::samples_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("note");
    QTest::addColumn<int>("concertPitch");

    // The note finder's guitar samples, guitar_440_<stem>.mp3, the stem
    // being "E2", "Fd2" and so on; the tuners' samples are heard by their pages.
    const QRegularExpression name(QStringLiteral("^(guitar)_(440)_([A-G])(d?)(\\d)\\.mp3$"));
    const QDir resources(QStringLiteral(QM_BUNDLE_RESOURCES_DIR));
    int guitarSamples = 0;
    for (const QString& file : resources.entryList({ QStringLiteral("*.mp3") }, QDir::Files, QDir::Name)) {
        const QRegularExpressionMatch match = name.match(file);
        if (!match.hasMatch())
            continue;
        const int note
            = PitchTracker::noteNumber(match.captured(3) + match.captured(5), match.captured(4).isEmpty() ? 0 : 1);
        ++guitarSamples;
        QTest::newRow(qPrintable(file)) << resources.filePath(file) << note << match.captured(2).toInt();
    }
    QCOMPARE(guitarSamples, 47);
}

void tst_PitchListener::samples()
{
    QFETCH(QString, path);
    QFETCH(int, note);
    QFETCH(int, concertPitch);

    const QVector<float> sound = monoOf(path);
    QVERIFY(!sound.isEmpty());
    Heard heard;
    listen(sound, concertPitch, &heard);
    ++m_samplesHeard;
    if (heard.note >= 0 && heard.note != note && (heard.note - note) % 12 == 0)
        ++m_octaveErrors;
    QCOMPARE(PitchTracker::noteName(heard.note), PitchTracker::noteName(note));
    QVERIFY2(std::abs(heard.cents) <= 3.0, qPrintable(QString::number(heard.cents)));
}

void tst_PitchListener::detuned_data()
{
    QTest::addColumn<int>("note");
    QTest::addColumn<double>("cents");

    QTest::newRow("E2 10 cents sharp") << 40 << 10.0;
    QTest::newRow("E2 10 cents flat") << 40 << -10.0;
    QTest::newRow("A2 10 cents sharp") << 45 << 10.0;
    QTest::newRow("G3 10 cents flat") << 55 << -10.0;
    QTest::newRow("E4 10 cents sharp") << 64 << 10.0;
    QTest::newRow("E4 10 cents flat") << 64 << -10.0;
    QTest::newRow("A5 10 cents flat") << 81 << -10.0;
}

void tst_PitchListener::detuned()
{
    QFETCH(int, note);
    QFETCH(double, cents);

    const double frequency = PitchTracker::frequencyOf(note, 440.0) * std::pow(2.0, cents / 1200.0);
    Heard heard;
    listen(plucked(frequency, 1.5), 440.0, &heard);
    QCOMPARE(heard.note, note);
    QVERIFY2(std::abs(heard.cents - cents) <= 2.0, qPrintable(QString::number(heard.cents)));
}

void tst_PitchListener::noNoteWithoutTone_data()
{
    QTest::addColumn<QVector<float>>("sound");

    QTest::newRow("silence") << QVector<float>(Rate, 0.0f);
    QTest::newRow("white noise") << whiteNoise(1.5);
}

void tst_PitchListener::noNoteWithoutTone()
{
    QFETCH(QVector<float>, sound);

    PitchListener listener;
    listener.setDeviceName(QStringLiteral("null.monitor"));
    QSignalSpy played(&listener, &PitchListener::notePlayed);
    listener.start();
    {
        SinkPlayer player(sound);
        QTRY_VERIFY_WITH_TIMEOUT(player.isDone(), 5000);
    }
    QCOMPARE(played.count(), 0);
    // The listener was hearing all along: a tone right after is found.
    SinkPlayer tone(plucked(440.0, 1.0));
    QVERIFY(played.wait(3000));
    QCOMPARE(played.first().at(0).toInt(), 69);
}

void tst_PitchListener::stopClosesTheSource()
{
    PitchListener listener;
    listener.setDeviceName(QStringLiteral("null.monitor"));
    QSignalSpy listening(&listener, &PitchListener::listeningChanged);
    QSignalSpy pitches(&listener, &PitchListener::pitchChanged);
    listener.start();
    QVERIFY(listener.isListening());
    listener.stop();
    QVERIFY(!listener.isListening());
    QCOMPARE(listening.count(), 2);
    SinkPlayer tone(plucked(440.0, 0.5));
    QTRY_VERIFY_WITH_TIMEOUT(tone.isDone(), 5000);
    QCOMPARE(pitches.count(), 0);

    // A source that does not exist ends the listening quietly.
    QSignalSpy failed(&listener, &PitchListener::failed);
    listener.setDeviceName(QStringLiteral("no-such-source"));
    listener.start();
    QVERIFY(failed.wait(3000));
    QVERIFY(!listener.isListening());
}

QTEST_GUILESS_MAIN(tst_PitchListener)
#include "tst_PitchListener.moc"
