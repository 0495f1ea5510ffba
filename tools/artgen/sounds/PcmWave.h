#pragma once

#include <QByteArray>
#include <QVector>

// Turns float samples (-1.0 to 1.0) into the bytes of a 16-bit mono wave file.
class PcmWave
{
public:
    static QByteArray monoWaveFile(const QVector<float>& samples, int sampleRate);
};
