#include "Common/PeakInfoCache.h"
#include "Input/WaveInput.h"
#include "Output/WaveOutput.h"

#include <QtTest>

#include <sndfile.h>

#include <cmath>
#include <cstring>
#include <random>

using Audio::EBUEnvelope;
using Audio::PeakInfo;
using Audio::PeakInfoCache;
using Audio::Settings;
using Audio::WaveInput;
using Audio::WaveOutput;

namespace {

std::vector<float> noise(int frames, int channels, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> amplitude(-0.9f, 0.9f);
    std::vector<float> samples(static_cast<size_t>(frames * channels));
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = amplitude(random) * static_cast<float>((i / 300) % 4 + 1) / 4.0f;
    return samples;
}

// Minimum and maximum, both starting from 0, of `count` frames of a channel.
PeakInfo bruteForce(const std::vector<float>& samples, int channels, int ch, int from, int count)
{
    float minimum = 0.0f;
    float maximum = 0.0f;
    const int frames = static_cast<int>(samples.size()) / channels;
    for (int f = from; f < std::min(frames, from + count); ++f) {
        minimum = std::min(minimum, samples[static_cast<size_t>(f * channels + ch)]);
        maximum = std::max(maximum, samples[static_cast<size_t>(f * channels + ch)]);
    }
    return PeakInfo(minimum, maximum);
}

// The sample as the 16-bit file holds it.
float stored16(float x)
{
    return std::trunc(x * 32768.0f) / 32768.0f;
}

} // namespace

// Peak envelopes: built while writing, kept in "levl" or a ".bef" file, recalled at any
// zoom, and damaged ".bef" files refused.
class tst_PeakEnvelope : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writerPeaksAndLevlRoundTrip_data();
    void writerPeaksAndLevlRoundTrip();
    void sideFileBesideAFileWithoutLevl();
    void peaksAtEveryZoom_data();
    void peaksAtEveryZoom();
    void cacheKeepsOneZoom();
    void badSideFiles_data();
    void badSideFiles();

private:
    QTemporaryDir m_dir;
};

void tst_PeakEnvelope::initTestCase()
{
    WaveInput::setTempPath(m_dir.path());
}

void tst_PeakEnvelope::writerPeaksAndLevlRoundTrip_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("format");

    QTest::newRow("mono, one block exactly") << 1 << 256 << 2;
    QTest::newRow("stereo, last block partial") << 2 << 1000 << 2;
    QTest::newRow("three channels, 8-bit values") << 3 << 3 * 256 + 1 << 1;
    QTest::newRow("six channels, under one block") << 6 << 17 << 2;
}

void tst_PeakEnvelope::writerPeaksAndLevlRoundTrip()
{
    QFETCH(int, channels);
    QFETCH(int, frames);
    QFETCH(int, format);

    const std::vector<float> samples = noise(frames, channels, static_cast<unsigned>(frames));
    const QByteArray path = m_dir.filePath(QStringLiteral("levl.wav")).toLocal8Bit();
    std::vector<PeakInfo> written;
    {
        WaveOutput output(path.constData(), Settings(48000, static_cast<short>(channels), 0, 16));
        output.setEnvelopeFormat(static_cast<EBUEnvelope::Format>(format));
        // Pieces that end inside frames as well as on their borders.
        std::vector<float> copy = samples;
        for (int done = 0, piece = 7; done < static_cast<int>(copy.size()); done += piece, piece = piece * 2 + 1)
            output.write(copy.data() + done, std::min(piece, static_cast<int>(copy.size()) - done));
        // The frame of the loudest sample, the first in the order of the stream.
        int loudest = 0;
        for (size_t i = 0; i < samples.size(); ++i) {
            if (std::fabs(samples[i]) > std::fabs(samples[static_cast<size_t>(loudest)]))
                loudest = static_cast<int>(i);
        }
        QCOMPARE(output.ebuEnvelope()->posPeakOfPeaks(), loudest / channels);
        QVERIFY(output.close());
        // Every started block is a peak; a file that ends on a block border gets one more, empty.
        const int peaks = frames / 256 + 1;
        QCOMPARE(output.peakVector().numPeakFrames(), peaks);
        QCOMPARE(output.peakVector().peakChannels(), channels);
        for (int x = 0; x < peaks; ++x) {
            for (int ch = 0; ch < channels; ++ch) {
                const PeakInfo expected = bruteForce(samples, channels, ch, x * 256, 256);
                QCOMPARE(output.peakVector().peakInfo(x, ch), expected);
                written.push_back(expected);
            }
        }
    }

    // libsndfile still reads the audio of a file with "levl" behind it.
    SF_INFO info;
    std::memset(&info, 0, sizeof info);
    SNDFILE* file = sf_open(path.constData(), SFM_READ, &info);
    QVERIFY(file);
    QCOMPARE(static_cast<int>(info.frames), frames);
    sf_close(file);

    WaveInput input;
    QVERIFY(input.load(path.constData()));
    QVERIFY(!input.ebuEnvelope().isNull());
    QCOMPARE(input.ebuEnvelope()->blockSize(), 256);
    input.createPeakVector();
    QCOMPARE(input.peakVector()->numPeakFrames(), frames / 256 + 1);
    // Read back, a peak holds the sizes of the two values, the second negated.
    const float scale = format == 2 ? 65535.0f : 255.0f;
    for (size_t i = 0; i < written.size(); ++i) {
        const PeakInfo read
            = input.peakVector()->peakInfo(static_cast<int>(i) / channels, static_cast<int>(i) % channels);
        QCOMPARE(read.first(), std::trunc(std::fabs(written[i].first()) * scale) / scale);
        QCOMPARE(read.second(), -(std::trunc(std::fabs(written[i].second()) * scale) / scale));
    }
    // The audio is untouched by reading the peaks.
    float first = 0.0f;
    input.rewind();
    QCOMPARE(input.read(&first, 1), 1);
    QCOMPARE(first, stored16(samples[0]));
}

void tst_PeakEnvelope::sideFileBesideAFileWithoutLevl()
{
    const int frames = 5003;
    std::vector<float> samples = noise(frames, 2, 7);
    // The extremes of the last, partial block lie in its last three frames.
    samples[(frames - 3) * 2] = 0.95f;
    samples[(frames - 1) * 2 + 1] = -0.95f;
    const QByteArray path = m_dir.filePath(QStringLiteral("plain.file.wav")).toLocal8Bit();
    SF_INFO info;
    std::memset(&info, 0, sizeof info);
    info.samplerate = 44100;
    info.channels = 2;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(path.constData(), SFM_WRITE, &info);
    QVERIFY(file);
    std::vector<short> shorts(samples.size());
    for (size_t i = 0; i < samples.size(); ++i)
        shorts[i] = static_cast<short>(std::trunc(samples[i] * 32768.0f));
    sf_writef_short(file, shorts.data(), frames);
    sf_close(file);

    WaveInput first;
    QVERIFY(first.load(path.constData()));
    QVERIFY(first.ebuEnvelope().isNull());
    const QString side = first.envelopeLocation();
    QCOMPARE(side,
        m_dir.path() + QStringLiteral("/Envelopes/")
            + QString::fromLocal8Bit(path).replace(QRegularExpression(QStringLiteral("[/:.]")), QStringLiteral("_"))
            + QStringLiteral(".bef"));
    QVERIFY(!QFile::exists(side));
    first.createPeakVector();
    QVERIFY(QFile::exists(side));
    std::vector<float> stored(samples.size());
    std::transform(shorts.begin(), shorts.end(), stored.begin(), [](short v) { return v / 32768.0f; });
    QCOMPARE(first.peakVector()->numPeakFrames(), frames / 256 + 1);
    for (int x = 0; x < frames / 256 + 1; ++x) {
        for (int ch = 0; ch < 2; ++ch)
            QCOMPARE(first.peakVector()->peakInfo(x, ch), bruteForce(stored, 2, ch, x * 256, 256));
    }
    QCOMPARE(QFileInfo(side).size(), 128LL + 2 * 2 * 2 * (frames / 256 + 1));

    WaveInput second;
    QVERIFY(second.load(path.constData()));
    second.createPeakVector();
    QCOMPARE(second.peakVector()->numPeakFrames(), frames / 256 + 1);
    for (int x = 0; x < frames / 256 + 1; ++x) {
        for (int ch = 0; ch < 2; ++ch) {
            const PeakInfo computed = first.peakVector()->peakInfo(x, ch);
            const PeakInfo loaded = second.peakVector()->peakInfo(x, ch);
            QCOMPARE(loaded.first(), std::trunc(std::fabs(computed.first()) * 65535.0f) / 65535.0f);
            QCOMPARE(loaded.second(), -(std::trunc(std::fabs(computed.second()) * 65535.0f) / 65535.0f));
        }
    }
}

void tst_PeakEnvelope::peaksAtEveryZoom_data()
{
    QTest::addColumn<float>("zoom");
    QTest::newRow("two blocks a column") << 512.0f;
    QTest::newRow("one block a column") << 256.0f;
    QTest::newRow("37.5 frames a column, from the audio") << 37.5f;
    QTest::newRow("a frame a column") << 1.0f;
    QTest::newRow("half a frame a column") << 0.5f;
}

void tst_PeakEnvelope::peaksAtEveryZoom()
{
    QFETCH(float, zoom);

    const int frames = 3001;
    const std::vector<float> samples = noise(frames, 2, 11);
    const QByteArray path = m_dir.filePath(QStringLiteral("zoom.wav")).toLocal8Bit();
    {
        WaveOutput output(path.constData(), Settings(48000, 2, 0, 16));
        std::vector<float> copy = samples;
        output.write(copy.data(), static_cast<int>(copy.size()));
    }
    std::vector<float> stored(samples.size());
    std::transform(samples.begin(), samples.end(), stored.begin(), stored16);

    WaveInput input;
    QVERIFY(input.load(path.constData()));
    input.createPeakVector();
    const int columns = static_cast<int>(frames / zoom);
    for (int x = 0; x < columns; x += 7) {
        for (int ch = 0; ch < 2; ++ch) {
            const PeakInfo peak = input.peakInfo(x, ch, zoom);
            PeakInfo expected;
            if (zoom >= 256.0f) {
                const int block = static_cast<int>(x * (zoom / 256.0f));
                const PeakInfo written = bruteForce(samples, 2, ch, block * 256, 256);
                expected = PeakInfo(std::trunc(-written.first() * 65535.0f) / 65535.0f,
                    -(std::trunc(written.second() * 65535.0f) / 65535.0f));
            } else if (zoom > 1.0f) {
                expected = bruteForce(stored, 2, ch, static_cast<int>(x * zoom), static_cast<int>(zoom));
            } else {
                expected = PeakInfo(stored[static_cast<size_t>(static_cast<int>(x * zoom) * 2 + ch)], 0.0f);
            }
            QCOMPARE(peak, expected);
            QCOMPARE(input.peakMinimum(), expected.first());
            QCOMPARE(input.peakMaximum(), expected.second());
        }
    }
    QCOMPARE(input.calculateZoom(100), frames / 100.0f);
}

void tst_PeakEnvelope::cacheKeepsOneZoom()
{
    PeakInfoCache cache(3);
    for (int x = 0; x < 4; ++x)
        cache.insert(x, 0, 10.0f, PeakInfo(x, -x));
    QVERIFY(!cache.find(0, 0, 10.0f));
    QCOMPARE(*cache.find(3, 0, 10.0f), PeakInfo(3, -3));
    QVERIFY(!cache.find(3, 0, 11.0f));
    // Another zoom empties the cache at the first insert, not at the first find.
    QVERIFY(cache.find(1, 0, 10.0f));
    cache.insert(5, 1, 11.0f, PeakInfo(1, 1));
    QVERIFY(!cache.find(1, 0, 10.0f));
    QCOMPARE(cache.size(), 1);
}

void tst_PeakEnvelope::badSideFiles_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QString>("message");

    QTest::newRow("intact") << QByteArray() << QString();
    QTest::newRow("cut in the peaks") << QByteArray("cut") << QStringLiteral("It is not a valid EBUEnvelope file");
    QTest::newRow("cut in the header") << QByteArray("header") << QStringLiteral("It is not a valid EBUEnvelope file");
    QTest::newRow("wrong id") << QByteArray("id") << QStringLiteral("It is not a valid EBUEnvelope file");
    QTest::newRow("more frames than the file")
        << QByteArray("frames") << QStringLiteral("It is not a valid EBUEnvelope file");
    QTest::newRow("32 channels") << QByteArray("channels") << QStringLiteral("It is not a valid EBUEnvelope file");
    QTest::newRow("format 3") << QByteArray("format")
                              << QStringLiteral("FileInput::buildPeakVector() Error: Unknown EBU Envelope format");
    QTest::newRow("missing") << QByteArray("missing") << QStringLiteral("EBUEnvelope:load: file open error");
}

void tst_PeakEnvelope::badSideFiles()
{
    QFETCH(QByteArray, damage);
    QFETCH(QString, message);

    Audio::PeakVector peaks;
    for (int x = 0; x < 10; ++x)
        peaks.addPeak(-0.5f, 0.25f, x % 2);
    const QString path = m_dir.filePath(QStringLiteral("side.bef"));
    EBUEnvelope written;
    QVERIFY(written.save(path.toLocal8Bit().constData(), peaks, EBUEnvelope::UnsignedShort));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.size(), 128 + 5 * 2 * 2 * 2);
    const auto patch = [&file](qint64 at, quint32 value) {
        file.seek(at);
        file.write(reinterpret_cast<const char*>(&value), 4);
    };
    if (damage == "cut")
        file.resize(128 + 30);
    else if (damage == "header")
        file.resize(60);
    else if (damage == "id")
        file.write("LEVL");
    else if (damage == "frames")
        patch(28, 0x7fffffff);
    else if (damage == "channels")
        patch(24, 32);
    else if (damage == "format")
        patch(12, 3);
    file.close();
    if (damage == "missing")
        QFile::remove(path);

    if (!message.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qPrintable(message));
    WaveInput input;
    QCOMPARE(input.loadEnvelope(path.toLocal8Bit().constData()), message.isEmpty());
    if (message.isEmpty()) {
        QCOMPARE(input.peakVector()->numPeakFrames(), 5);
        QCOMPARE(input.peakVector()->peakInfo(4, 1),
            PeakInfo(std::trunc(0.5f * 65535.0f) / 65535.0f, -std::trunc(0.25f * 65535.0f) / 65535.0f));
    }
}

QTEST_GUILESS_MAIN(tst_PeakEnvelope)
#include "tst_PeakEnvelope.moc"
