#include "Settings.h"

#include <QDebug>

namespace Audio {

Settings::Settings(unsigned int sampleRate, short channels, short fmt, short bitsPerSample)
    : m_sampleRate(sampleRate)
    , m_channels(channels)
    , m_fmt(fmt)
    , m_bitsPerSample(bitsPerSample)
{
}

Settings::~Settings() = default;

bool Settings::operator==(const Settings& other) const
{
    return m_sampleRate == other.m_sampleRate && m_channels == other.m_channels && m_fmt == other.m_fmt
        && m_bitsPerSample == other.m_bitsPerSample;
}

bool Settings::operator!=(const Settings& other) const
{
    return !(*this == other);
}

unsigned int Settings::sampleRate() const
{
    return m_sampleRate;
}

void Settings::setSampleRate(unsigned int sampleRate)
{
    m_sampleRate = sampleRate;
}

short Settings::channels() const
{
    return m_channels;
}

void Settings::setChannels(short channels)
{
    m_channels = channels;
}

short Settings::fmt() const
{
    return m_fmt;
}

void Settings::setFmt(short fmt)
{
    m_fmt = fmt;
}

short Settings::bitsPerSample() const
{
    return m_bitsPerSample;
}

void Settings::setBitsPerSample(short bitsPerSample)
{
    m_bitsPerSample = bitsPerSample;
}

QString Settings::formatName(short fmt)
{
    switch (fmt) {
    case Query:
        return QStringLiteral("Query");
    case MuLaw:
        return QStringLiteral("Mu-Law");
    case ALaw:
        return QStringLiteral("A-Law");
    case ImaAdpcm:
        return QStringLiteral("Ima ADPCM");
    case Unsigned8:
        return QStringLiteral("Unsigned 8");
    case LittleEndianSigned16:
        return QStringLiteral("Little endian signed 16");
    case BigEndianSigned16:
        return QStringLiteral("Big endian signed 16");
    case Signed8:
        return QStringLiteral("Signed 8");
    case LittleEndianUnsigned16:
        return QStringLiteral("Little endian unsigned 16");
    case BigEndianUnsigned16:
        return QStringLiteral("Big endian unsigned 16");
    case Mpeg:
        return QStringLiteral("MPEG");
    case Ac3:
        return QStringLiteral("AC3");
    case Signed24Normal:
        return QStringLiteral("Signed 24 Normal");
    case Signed24Swapped:
        return QStringLiteral("Signed 24 Swapped");
    default:
        return QStringLiteral("Unknown");
    }
}

void Settings::dump() const
{
    qDebug().noquote() << "---- Settings Info Begin -----";
    qDebug().noquote().nospace() << "Channels = " << m_channels;
    qDebug().noquote().nospace() << "Bits Per Sample = " << m_bitsPerSample;
    qDebug().noquote().nospace() << "Sample Rate = " << m_sampleRate;
    qDebug().noquote().nospace() << "Format = " << m_fmt << " (" << formatName(m_fmt) << ")";
    qDebug().noquote() << "---- Settings Info End-----";
}

} // namespace Audio
