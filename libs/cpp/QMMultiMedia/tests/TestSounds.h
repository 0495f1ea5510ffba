#pragma once

#include <QAudioDeviceInfo>
#include <QDataStream>
#include <QFile>
#include <QString>

#include <cmath>

// Helpers shared by the audio tests: short wave files of known length and
// the question whether an output exists at all.
namespace TestSounds {

inline bool hasAudioOutput()
{
    return !QAudioDeviceInfo::defaultOutputDevice().isNull();
}

// Writes a 16-bit sine at half scale, the same in every channel; true on success.
inline bool writeSineWave(
    const QString& path, double seconds, double frequency = 440.0, int rate = 44100, int channels = 1)
{
    const quint32 frames = static_cast<quint32>(std::lround(seconds * rate));
    const quint32 frameBytes = 2 * static_cast<quint32>(channels);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + frames * frameBytes);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(channels) << quint32(rate) << quint32(rate * frameBytes)
        << quint16(frameBytes) << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(frames * frameBytes);
    for (quint32 n = 0; n < frames; ++n)
        for (int c = 0; c < channels; ++c)
            out << qint16(std::lround(0.5 * std::sin(2.0 * M_PI * frequency * n / rate) * 32767.0));
    return out.status() == QDataStream::Ok;
}

} // namespace TestSounds
