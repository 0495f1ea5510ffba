// Wave files of ten minutes, stereo, 24 bits at 48 kHz: read as float and written
// from float by the audio file library and by libsndfile in the same run; the peak
// envelope of such a file built from its audio, and recalled from its "levl" chunk.
#include "Input/WaveInput.h"
#include "Output/WaveOutput.h"

#include <QtTest>

#include <sndfile.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace {

constexpr int rate = 48000;
constexpr int channels = 2;
constexpr int frames = rate * 600;
constexpr int blockFrames = 8192;

std::vector<float> toneBlock()
{
    std::vector<float> block(static_cast<size_t>(blockFrames * channels));
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = 0.9f * std::sin(static_cast<float>(i) * 0.001f);
    return block;
}

} // namespace

class bench_AudioFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void read_data();
    void read();
    void write_data();
    void write();
    void envelope_data();
    void envelope();

private:
    QTemporaryDir m_dir;
    QByteArray m_source;
};

void bench_AudioFiles::initTestCase()
{
    m_source = m_dir.filePath(QStringLiteral("source.wav")).toLocal8Bit();
    SF_INFO format;
    std::memset(&format, 0, sizeof format);
    format.samplerate = rate;
    format.channels = channels;
    format.format = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
    SNDFILE* file = sf_open(m_source.constData(), SFM_WRITE, &format);
    QVERIFY(file);
    const std::vector<float> block = toneBlock();
    for (int done = 0; done < frames; done += blockFrames)
        sf_writef_float(file, block.data(), std::min(blockFrames, frames - done));
    sf_close(file);
}

void bench_AudioFiles::read_data()
{
    QTest::addColumn<bool>("libsndfile");
    QTest::newRow("FipAudio") << false;
    QTest::newRow("libsndfile") << true;
    QTest::newRow("FipAudio again") << false;
}

void bench_AudioFiles::read()
{
    QFETCH(bool, libsndfile);
    std::vector<float> block(static_cast<size_t>(blockFrames * channels));
    long long total = 0;
    QBENCHMARK
    {
        total = 0;
        if (libsndfile) {
            SF_INFO format;
            std::memset(&format, 0, sizeof format);
            SNDFILE* file = sf_open(m_source.constData(), SFM_READ, &format);
            for (sf_count_t got = 1; got > 0; total += got)
                got = sf_readf_float(file, block.data(), blockFrames);
            sf_close(file);
        } else {
            Audio::WaveInput input;
            input.load(m_source.constData());
            for (int got = 1; got > 0; total += got)
                got = input.read(block.data(), blockFrames * channels) / channels;
        }
    }
    QCOMPARE(total, static_cast<long long>(frames));
}

void bench_AudioFiles::write_data()
{
    read_data();
}

void bench_AudioFiles::write()
{
    QFETCH(bool, libsndfile);
    std::vector<float> block = toneBlock();
    const QByteArray target = m_dir.filePath(QStringLiteral("target.wav")).toLocal8Bit();
    QBENCHMARK
    {
        if (libsndfile) {
            SF_INFO format;
            std::memset(&format, 0, sizeof format);
            format.samplerate = rate;
            format.channels = channels;
            format.format = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
            SNDFILE* file = sf_open(target.constData(), SFM_WRITE, &format);
            for (int done = 0; done < frames; done += blockFrames)
                sf_writef_float(file, block.data(), std::min(blockFrames, frames - done));
            sf_close(file);
        } else {
            Audio::WaveOutput output(target.constData(), Audio::Settings(rate, channels, 0, 24));
            for (int done = 0; done < frames; done += blockFrames)
                output.write(block.data(), std::min(blockFrames, frames - done) * channels);
            output.close();
        }
    }
    QVERIFY(QFileInfo(QString::fromLocal8Bit(target)).size() >= 44LL + frames * channels * 3);
}

void bench_AudioFiles::envelope_data()
{
    QTest::addColumn<bool>("fromLevl");
    QTest::newRow("built from the audio") << false;
    QTest::newRow("recalled from levl") << true;
}

void bench_AudioFiles::envelope()
{
    QFETCH(bool, fromLevl);
    const QByteArray withLevl = m_dir.filePath(QStringLiteral("levl.wav")).toLocal8Bit();
    if (fromLevl && !QFile::exists(QString::fromLocal8Bit(withLevl))) {
        std::vector<float> block = toneBlock();
        Audio::WaveOutput output(withLevl.constData(), Audio::Settings(rate, channels, 0, 24));
        for (int done = 0; done < frames; done += blockFrames)
            output.write(block.data(), std::min(blockFrames, frames - done) * channels);
    }
    int peaks = 0;
    QBENCHMARK
    {
        Audio::WaveInput input;
        input.load(fromLevl ? withLevl.constData() : m_source.constData());
        if (fromLevl)
            input.createPeakVector();
        else
            input.buildPeakVectorFromAudioData();
        peaks = input.peakVector()->numPeakFrames();
    }
    QVERIFY(peaks >= frames / 256);
}

QTEST_GUILESS_MAIN(bench_AudioFiles)
#include "bench_AudioFiles.moc"
