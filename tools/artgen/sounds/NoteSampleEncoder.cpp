#include "NoteSampleEncoder.h"

#include "ArtWriter.h"
#include "NoteSpelling.h"
#include "PcmWave.h"

#include <QFile>
#include <QProcess>

#include <cmath>

NoteSampleEncoder::NoteSampleEncoder(ArtWriter& writer)
    : m_writer(writer)
{
}

NoteSampleEncoder::~NoteSampleEncoder()
{
    finish();
}

void NoteSampleEncoder::encode(const QString& instrumentKey, int midiNote, const QVector<float>& samples)
{
    encode(QMMusic::NoteSpelling::sampleFileName(instrumentKey, stem(midiNote)), samples);
}

void NoteSampleEncoder::encode(const QString& fileName, const QVector<float>& samples)
{
    if (!m_scratch.isValid())
        return;
    const QString wavePath = m_scratch.filePath(fileName + QStringLiteral(".wav"));
    QFile wave(wavePath);
    if (!wave.open(QIODevice::WriteOnly))
        return;
    wave.write(PcmWave::monoWaveFile(samples, SampleRate));
    wave.close();

    while (static_cast<int>(m_running.size()) >= ParallelEncoders) {
        m_running.front()->waitForFinished(30000);
        m_running.pop_front();
    }
    auto encoder = std::make_unique<QProcess>();
    encoder->setProcessChannelMode(QProcess::ForwardedChannels);
    encoder->start(QStringLiteral("lame"),
        { QStringLiteral("--quiet"), QStringLiteral("-m"), QStringLiteral("m"), QStringLiteral("-V"),
            QStringLiteral("7"), QStringLiteral("--resample"), QStringLiteral("44.1"), QStringLiteral("--noreplaygain"),
            wavePath, m_writer.bundlePath(fileName) });
    m_running.push_back(std::move(encoder));
}

void NoteSampleEncoder::finish()
{
    for (auto& encoder : m_running)
        encoder->waitForFinished(30000);
    m_running.clear();
}

QString NoteSampleEncoder::stem(int midiNote)
{
    static const char* const names[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    return QLatin1String(names[midiNote % 12]) + QString::number(midiNote / 12 - 1);
}

double NoteSampleEncoder::frequency(int midiNote, double concertPitch)
{
    return concertPitch * std::pow(2.0, (midiNote - 69) / 12.0);
}
