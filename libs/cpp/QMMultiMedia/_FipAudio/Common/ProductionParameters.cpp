#include "ProductionParameters.h"

#include <QDebug>

namespace Audio {

ProductionParameters* ProductionParameters::instance()
{
    static ProductionParameters parameters;
    return &parameters;
}

float ProductionParameters::fps() const
{
    return m_fps;
}

void ProductionParameters::setFPS(float fps)
{
    m_fps = fps;
}

int ProductionParameters::sampleRate() const
{
    return m_sampleRate;
}

void ProductionParameters::setSampleRate(int sampleRate)
{
    m_sampleRate = sampleRate;
}

int ProductionParameters::bitsPerSample() const
{
    return m_bitsPerSample;
}

void ProductionParameters::setBitsPerSample(int bitsPerSample)
{
    m_bitsPerSample = bitsPerSample;
}

QString ProductionParameters::projectName() const
{
    return m_projectName;
}

void ProductionParameters::setProjectName(const QString& projectName)
{
    m_projectName = projectName;
}

void ProductionParameters::dump() const
{
    qDebug() << "FPS =" << m_fps;
    qDebug() << "Sample Rate =" << m_sampleRate;
    qDebug() << "Bits Per Sample =" << m_bitsPerSample;
    qDebug() << "Project Name =" << m_projectName;
}

} // namespace Audio
