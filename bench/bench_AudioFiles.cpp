// Wave files of ten minutes, stereo, 24 bits at 48 kHz: read as float and written
// from float by the audio file library and by libsndfile in the same run.
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
    QTest::newRow("WaveInput") << false;
    QTest::newRow("libsndfile") << true;
    QTest::newRow("WaveInput again") << false;
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
    QCOMPARE(QFileInfo(QString::fromLocal8Bit(target)).size(), 44LL + frames * channels * 3);
}

QTEST_GUILESS_MAIN(bench_AudioFiles)
#include "bench_AudioFiles.moc"
