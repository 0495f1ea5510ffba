#pragma once

#include <QString>

namespace Audio {

// The defaults of the current production: frame rate, sample rate, sample width and
// project name. One instance, made on first use.
class ProductionParameters
{
public:
    static ProductionParameters* instance();

    float fps() const;
    void setFPS(float fps);
    int sampleRate() const;
    void setSampleRate(int sampleRate);
    int bitsPerSample() const;
    void setBitsPerSample(int bitsPerSample);
    QString projectName() const;
    void setProjectName(const QString& projectName);
    // Writes the four values to the debug log.
    void dump() const;

private:
    ProductionParameters() = default;

    float m_fps = 30.0f;
    int m_sampleRate = 48000;
    int m_bitsPerSample = 24;
    QString m_projectName;
};

} // namespace Audio
