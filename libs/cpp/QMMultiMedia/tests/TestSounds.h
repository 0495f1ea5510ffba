#pragma once

#include <QAudioDeviceInfo>
#include <QFile>
#include <QString>
#include <QtEndian>

#include <cmath>

// Helpers shared by the audio tests: short wave files of known length and
// the question whether an output exists at all.
namespace TestSounds {

inline bool hasAudioOutput()
{
    return !QAudioDeviceInfo::defaultOutputDevice().isNull();
}

// Writes a 16-bit sine of the given length, the same in every channel;
// true on success.
inline bool writeSineWave(const QString& path, double seconds, double frequency = 440.0, int rate = 44100,
                          int channels = 1)
{
    const quint32 frames = static_cast<quint32>(std::lround(seconds * rate));
    const quint32 frameBytes = 2 * static_cast<quint32>(channels);
    QByteArray bytes("RIFF", 4);
    auto append32 = [&bytes](quint32 v) { char b[4]; qToLittleEndian(v, b); bytes.append(b, 4); };
    auto append16 = [&bytes](quint16 v) { char b[2]; qToLittleEndian(v, b); bytes.append(b, 2); };
    append32(36 + frames * frameBytes);
    bytes.append("WAVEfmt ", 8);
    append32(16);
    append16(1);
    append16(static_cast<quint16>(channels));
    append32(static_cast<quint32>(rate));
    append32(static_cast<quint32>(rate) * frameBytes);
    append16(static_cast<quint16>(frameBytes));
    append16(16);
    bytes.append("data", 4);
    append32(frames * frameBytes);
    for (quint32 n = 0; n < frames; ++n) {
        const double value = 0.5 * std::sin(2.0 * M_PI * frequency * n / rate);
        for (int c = 0; c < channels; ++c)
            append16(static_cast<quint16>(static_cast<qint16>(std::lround(value * 32767.0))));
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace TestSounds
