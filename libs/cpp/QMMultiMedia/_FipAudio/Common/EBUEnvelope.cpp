#include "EBUEnvelope.h"

#include "FileUtil.h"
#include "Util.h"

#include <QDateTime>
#include <QDebug>

#include <cmath>
#include <cstring>
#include <vector>

namespace Audio {

namespace {

// Peak values written in one go, and read.
constexpr int valuesPerBlock = 2048;
constexpr int readValues = 65536;

} // namespace

EBUEnvelope::EBUEnvelope()
{
    setTimeStamp(QString());
}

EBUEnvelope::~EBUEnvelope() = default;

int EBUEnvelope::version() const
{
    return m_version;
}

void EBUEnvelope::setVersion(int version)
{
    m_version = version;
}

int EBUEnvelope::format() const
{
    return m_format;
}

void EBUEnvelope::setFormat(int format)
{
    m_format = format;
}

int EBUEnvelope::pointsPerValue() const
{
    return m_pointsPerValue;
}

void EBUEnvelope::setPointsPerValue(int pointsPerValue)
{
    m_pointsPerValue = pointsPerValue;
}

int EBUEnvelope::blockSize() const
{
    return m_blockSize;
}

void EBUEnvelope::setBlockSize(int blockSize)
{
    m_blockSize = blockSize;
}

int EBUEnvelope::peakChannels() const
{
    return m_peakChannels;
}

void EBUEnvelope::setPeakChannels(int peakChannels)
{
    m_peakChannels = peakChannels;
}

int EBUEnvelope::numPeakFrames() const
{
    return m_numPeakFrames;
}

void EBUEnvelope::setNumPeakFrames(int numPeakFrames)
{
    m_numPeakFrames = numPeakFrames;
}

int EBUEnvelope::posPeakOfPeaks() const
{
    return m_posPeakOfPeaks;
}

void EBUEnvelope::setPosPeakOfPeaks(int posPeakOfPeaks)
{
    m_posPeakOfPeaks = posPeakOfPeaks;
}

int EBUEnvelope::offsetToPeaks() const
{
    return m_offsetToPeaks;
}

void EBUEnvelope::setOffsetToPeaks(int offsetToPeaks)
{
    m_offsetToPeaks = offsetToPeaks;
}

int EBUEnvelope::chunkSize() const
{
    return m_chunkSize;
}

void EBUEnvelope::setChunkSize(int chunkSize)
{
    m_chunkSize = chunkSize;
}

QString EBUEnvelope::timeStamp() const
{
    return m_timeStamp;
}

void EBUEnvelope::setTimeStamp(const QString& timeStamp)
{
    m_timeStamp = timeStamp.leftJustified(timeStampWidth, QLatin1Char(' '));
}

QString EBUEnvelope::createTimeStamp()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy:MM:dd:hh:mm:ss:zzz"));
}

void EBUEnvelope::initFromHeader(FILE* file)
{
    m_version = static_cast<int>(FileUtil::readL(file, false));
    m_format = static_cast<int>(FileUtil::readL(file, false));
    m_pointsPerValue = static_cast<int>(FileUtil::readL(file, false));
    m_blockSize = static_cast<int>(FileUtil::readL(file, false));
    m_peakChannels = static_cast<int>(FileUtil::readL(file, false));
    m_numPeakFrames = static_cast<int>(FileUtil::readL(file, false));
    m_posPeakOfPeaks = static_cast<int>(FileUtil::readL(file, false));
    m_offsetToPeaks = static_cast<int>(FileUtil::readL(file, false));
    char stamp[timeStampWidth] = {};
    if (std::fread(stamp, 1, sizeof stamp, file) == sizeof stamp)
        m_timeStamp = QString::fromLatin1(stamp, timeStampWidth);
    if (std::fread(m_reserved, 1, sizeof m_reserved, file) != sizeof m_reserved)
        std::memset(m_reserved, 0, sizeof m_reserved);
}

bool EBUEnvelope::readPeaks(FILE* file, long position, PeakVector& peaks) const
{
    if (m_format != UnsignedShort && m_format != UnsignedByte) {
        qWarning("FileInput::buildPeakVector() Error: Unknown EBU Envelope format");
        return false;
    }
    const int width = m_format == UnsignedShort ? 2 : 1;
    const long long values = static_cast<long long>(m_peakChannels) * m_numPeakFrames * 2;
    fseeko(file, 0, SEEK_END);
    const long long size = ftello(file);
    // The peaks must start inside the file: a negative offset would make
    // any claimed count look as if the file held it.
    const long long available = position >= 0 && position <= size ? size - position : -1;
    if (m_peakChannels < 0 || m_peakChannels >= PeakVector::maximumChannels || m_numPeakFrames < 0 || available < 0
        || values * width > available) {
        qWarning("It is not a valid EBUEnvelope file");
        return false;
    }
    fseeko(file, position, SEEK_SET);
    peaks.clear();
    for (int ch = 0; ch < m_peakChannels; ++ch)
        peaks.peakInfoVector(ch).reserve(static_cast<size_t>(m_numPeakFrames));
    // Whole peak frames a read, so that a read never splits the values of one frame.
    const int frameValues = std::max(1, m_peakChannels * 2);
    const int framesPerRead = std::max(1, readValues / frameValues);
    std::vector<char> raw(static_cast<size_t>(framesPerRead * frameValues) * 2);
    std::vector<int> ints(static_cast<size_t>(framesPerRead * frameValues));
    const float scale = m_format == UnsignedShort ? 1.0f / 65535.0f : 1.0f / 255.0f;
    for (int frame = 0; frame < m_numPeakFrames && m_peakChannels > 0; frame += framesPerRead) {
        const int frames = std::min(framesPerRead, m_numPeakFrames - frame);
        const int count = frames * frameValues;
        if (std::fread(raw.data(), static_cast<size_t>(width), static_cast<size_t>(count), file)
            != static_cast<size_t>(count)) {
            qWarning("It is not a valid EBUEnvelope file");
            peaks.clear();
            return false;
        }
        if (width == 2)
            Util::convertRawTo16U(raw.data(), ints.data(), count, true);
        else
            Util::convertRawTo8U(raw.data(), ints.data(), count);
        const int* value = ints.data();
        for (int f = 0; f < frames; ++f) {
            for (int ch = 0; ch < m_peakChannels; ++ch, value += 2)
                peaks.addPeak(value[0] * scale, -(value[1] * scale), ch);
        }
    }
    return true;
}

bool EBUEnvelope::load(const char* path, PeakVector& peaks)
{
    FILE* file = std::fopen(path, "r");
    if (!file) {
        qWarning("EBUEnvelope:load: file open error");
        return false;
    }
    char header[8] = {};
    bool ok = std::fread(header, 1, sizeof header, file) == sizeof header && std::memcmp(header, "levl", 4) == 0;
    if (ok) {
        m_chunkSize = static_cast<int>(static_cast<unsigned char>(header[4])
            | (static_cast<unsigned char>(header[5]) << 8) | (static_cast<unsigned char>(header[6]) << 16)
            | (static_cast<unsigned int>(static_cast<unsigned char>(header[7])) << 24));
        initFromHeader(file);
        ok = readPeaks(file, m_offsetToPeaks, peaks);
    } else {
        qWarning("It is not a valid EBUEnvelope file");
    }
    std::fclose(file);
    return ok;
}

bool EBUEnvelope::save(FILE* file, PeakVector& peaks, const Format& format)
{
    if (format != UnsignedShort && format != UnsignedByte) {
        qWarning("Unknown envelopes creation format");
        return false;
    }
    m_version = 0;
    m_numPeakFrames = peaks.numPeakFrames();
    m_peakChannels = peaks.peakChannels();
    m_format = format;
    m_pointsPerValue = 2;
    m_offsetToPeaks = 128;
    const int width = format == UnsignedShort ? 2 : 1;
    m_chunkSize = headerSize + width * m_peakChannels * m_numPeakFrames * 2;
    setTimeStamp(createTimeStamp());

    bool ok = std::fwrite("levl", 4, 1, file) == 1;
    for (int value : { m_chunkSize, m_version, m_format, m_pointsPerValue, m_blockSize, m_peakChannels, m_numPeakFrames,
             m_posPeakOfPeaks, m_offsetToPeaks })
        ok = ok && FileUtil::writeL(static_cast<unsigned int>(value), file, false) != 0;
    const QByteArray stamp = m_timeStamp.toLatin1().leftJustified(timeStampWidth, ' ', true);
    ok = ok && std::fwrite(stamp.constData(), timeStampWidth, 1, file) == 1;
    ok = ok && std::fwrite(m_reserved, reservedSize, 1, file) == 1;

    const float scale = format == UnsignedShort ? 65535.0f : 255.0f;
    std::vector<unsigned char> block;
    block.reserve(static_cast<size_t>(valuesPerBlock) * 2);
    for (int x = 0; ok && x < m_numPeakFrames; ++x) {
        for (int ch = 0; ch < m_peakChannels; ++ch) {
            const PeakInfo peak = peaks.peakInfo(x, ch);
            for (float value : { peak.first(), peak.second() }) {
                const auto v = static_cast<unsigned int>(static_cast<long long>(std::fabs(value) * scale));
                block.push_back(static_cast<unsigned char>(v));
                if (width == 2)
                    block.push_back(static_cast<unsigned char>(v >> 8));
            }
        }
        if (block.size() >= static_cast<size_t>(valuesPerBlock) * static_cast<size_t>(width)
            || x == m_numPeakFrames - 1) {
            ok = std::fwrite(block.data(), block.size(), 1, file) == 1 || block.empty();
            block.clear();
            if (!ok)
                qWarning("EBUEnvelope::save: error while writing the peak data");
        }
    }
    return ok;
}

bool EBUEnvelope::save(const char* path, PeakVector& peaks, const Format& format)
{
    FILE* file = std::fopen(path, "w");
    if (!file) {
        qWarning("EBUEnvelope::save: file create error");
        return false;
    }
    const bool ok = save(file, peaks, format);
    return std::fclose(file) == 0 && ok;
}

void EBUEnvelope::dump() const
{
    qDebug() << "Version =" << m_version << "Format =" << m_format << "Points Per Value =" << m_pointsPerValue;
    qDebug() << "Block Size =" << m_blockSize << "Channels =" << m_peakChannels << "Frames =" << m_numPeakFrames;
    qDebug() << "Peak Of Peaks At =" << m_posPeakOfPeaks << "Offset To Peaks =" << m_offsetToPeaks;
    qDebug() << "Chunk Size =" << m_chunkSize << "Time Stamp =" << m_timeStamp;
}

} // namespace Audio
