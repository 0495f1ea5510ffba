#include "AudioIO.h"

#include <QDebug>

namespace Audio {

AudioIO::AudioIO(const Settings& settings)
    : m_settings(settings)
{
}

AudioIO::~AudioIO() = default;

Settings AudioIO::settings() const
{
    return m_settings;
}

void AudioIO::setSettings(const Settings& settings)
{
    m_settings = settings;
}

void AudioIO::dump() const
{
    qDebug().noquote() << name();
}

QString AudioIO::name() const
{
    return QStringLiteral("AudioIO");
}

} // namespace Audio
