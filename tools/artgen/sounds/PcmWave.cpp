#include "PcmWave.h"

#include <QtEndian>

#include <cmath>

namespace {

void appendLE32(QByteArray& bytes, quint32 value)
{
    char buffer[4];
    qToLittleEndian(value, buffer);
    bytes.append(buffer, 4);
}

void appendLE16(QByteArray& bytes, quint16 value)
{
    char buffer[2];
    qToLittleEndian(value, buffer);
    bytes.append(buffer, 2);
}

} // namespace

QByteArray PcmWave::monoWaveFile(const QVector<float>& samples, int sampleRate)
{
    const quint32 dataBytes = static_cast<quint32>(samples.size()) * 2;
    QByteArray bytes;
    bytes.reserve(static_cast<int>(44 + dataBytes));
    bytes.append("RIFF", 4);
    appendLE32(bytes, 36 + dataBytes);
    bytes.append("WAVE", 4);
    bytes.append("fmt ", 4);
    appendLE32(bytes, 16);
    appendLE16(bytes, 1); // PCM
    appendLE16(bytes, 1); // mono
    appendLE32(bytes, static_cast<quint32>(sampleRate));
    appendLE32(bytes, static_cast<quint32>(sampleRate) * 2);
    appendLE16(bytes, 2);
    appendLE16(bytes, 16);
    bytes.append("data", 4);
    appendLE32(bytes, dataBytes);
    for (float sample : samples) {
        const long value = std::lround(qBound(-1.0f, sample, 1.0f) * 32767.0f);
        appendLE16(bytes, static_cast<quint16>(static_cast<qint16>(value)));
    }
    return bytes;
}
