// Writes the seed inputs of the audio file library's fuzzing targets with the writers
// the tests use: the wave writer (with and without broadcast info and comment; its
// files end in a peak envelope), libsndfile for AIFF, the broadcast info's and the
// envelope's own side files, and an "LTCC" file. One folder per target
// below the folder given as the argument.
#include "Common/EBUEnvelope.h"
#include "Common/EBUInfo.h"
#include "Output/WaveOutput.h"

#include <QDataStream>
#include <QDir>
#include <QString>

#include <sndfile.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace {

std::vector<float> tone(int frames, int channels)
{
    std::vector<float> samples(static_cast<size_t>(frames * channels));
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = 0.8f * std::sin(static_cast<float>(i) * 0.05f);
    return samples;
}

void writeWave(const QString& path, int bits, int channels, bool broadcast, const QString& comment)
{
    MTools::Handle<Audio::EBUInfo> info;
    if (broadcast) {
        info = MTools::Handle<Audio::EBUInfo>(new Audio::EBUInfo(48000LL * 3600, 25.0f));
        info->updateHistory(8000, bits, channels);
    }
    Audio::WaveOutput output(QFile::encodeName(path).constData(),
        Audio::Settings(8000, static_cast<short>(channels), 0, static_cast<short>(bits)), comment, info);
    std::vector<float> samples = tone(33, channels);
    output.write(samples.data(), static_cast<int>(samples.size()));
}

void writeAiff(const QString& path, int subtype, int channels)
{
    SF_INFO format;
    std::memset(&format, 0, sizeof format);
    format.samplerate = 8000;
    format.channels = channels;
    format.format = SF_FORMAT_AIFF | subtype;
    SNDFILE* file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &format);
    if (!file)
        return;
    std::vector<float> samples = tone(33, channels);
    sf_writef_float(file, samples.data(), 33);
    sf_close(file);
}

// Ten words of 25 frames a second, 1920 samples apart, in the "LTCC" layout.
void writeLtcc(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("LTCC", 4);
    out << quint32(10);
    for (int n = 0; n < 10; ++n)
        out << quint8(1) << quint32(1920 * (n + 1)) << quint8(10) << quint8(0) << quint8(n / 25) << quint8(n % 25)
            << quint8(0) << quint8(n) << quint8(0) << quint8(0) << quint8(0);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    const QDir root(QString::fromLocal8Bit(argv[1]));
    for (const char* folder : { "WaveInput", "AiffInput", "GeneralFileInput", "EBUInfo", "EnvelopeFile", "LTCFile" })
        root.mkpath(QLatin1String(folder));
    for (const char* folder : { "WaveInput", "GeneralFileInput" }) {
        const QDir dir(root.filePath(QLatin1String(folder)));
        writeWave(dir.filePath(QStringLiteral("u8-mono.wav")), 8, 1, false, QString());
        writeWave(dir.filePath(QStringLiteral("16-stereo-comment.wav")), 16, 2, false, QStringLiteral("odd"));
        writeWave(dir.filePath(QStringLiteral("24-mono-bext.wav")), 24, 1, true, QStringLiteral("even"));
    }
    for (const char* folder : { "AiffInput", "GeneralFileInput" }) {
        const QDir dir(root.filePath(QLatin1String(folder)));
        writeAiff(dir.filePath(QStringLiteral("8-mono.aiff")), SF_FORMAT_PCM_S8, 1);
        writeAiff(dir.filePath(QStringLiteral("16-stereo.aiff")), SF_FORMAT_PCM_16, 2);
        writeAiff(dir.filePath(QStringLiteral("24-mono.aiff")), SF_FORMAT_PCM_24, 1);
    }
    Audio::PeakVector peaks;
    for (int x = 0; x < 12; ++x)
        peaks.addPeak(-0.01f * x, 0.02f * x, x % 3);
    Audio::EBUEnvelope envelope;
    envelope.save(QFile::encodeName(root.filePath(QStringLiteral("EnvelopeFile/16.bef"))).constData(), peaks,
        Audio::EBUEnvelope::UnsignedShort);
    envelope.save(QFile::encodeName(root.filePath(QStringLiteral("EnvelopeFile/8.bef"))).constData(), peaks,
        Audio::EBUEnvelope::UnsignedByte);
    writeLtcc(root.filePath(QStringLiteral("LTCFile/words.ltcc")));
    Audio::EBUInfo info(1234567, 29.97f);
    info.updateHistory(48000, 24, 2);
    info.save(QFile::encodeName(root.filePath(QStringLiteral("EBUInfo/history.bext"))).constData());
    return 0;
}
