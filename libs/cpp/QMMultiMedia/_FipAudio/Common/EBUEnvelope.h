#pragma once

#include "PeakVector.h"

#include <QString>

#include <cstdio>

namespace Audio {

// The peak envelope chunk "levl" of a broadcast wave file, also kept alone as a ".bef"
// side file: a 120-byte header and, per peak frame and channel, the sizes of the two
// values of a peak as unsigned 8 or 16-bit numbers.
class EBUEnvelope
{
public:
    enum Format
    {
        UnsignedByte = 1,
        UnsignedShort = 2,
    };
    static constexpr int headerSize = 120;
    static constexpr int timeStampWidth = 28;
    static constexpr int reservedSize = 60;

    EBUEnvelope();
    virtual ~EBUEnvelope();

    int version() const;
    void setVersion(int version);
    int format() const;
    void setFormat(int format);
    int pointsPerValue() const;
    void setPointsPerValue(int pointsPerValue);
    int blockSize() const;
    void setBlockSize(int blockSize);
    int peakChannels() const;
    void setPeakChannels(int peakChannels);
    int numPeakFrames() const;
    void setNumPeakFrames(int numPeakFrames);
    int posPeakOfPeaks() const;
    void setPosPeakOfPeaks(int posPeakOfPeaks);
    int offsetToPeaks() const;
    void setOffsetToPeaks(int offsetToPeaks);
    int chunkSize() const;
    void setChunkSize(int chunkSize);
    QString timeStamp() const;
    // Padded with blanks to 28 characters.
    void setTimeStamp(const QString& timeStamp);

    // Reads the header fields that follow the chunk's id and size.
    void initFromHeader(FILE* file);
    // Reads the peaks that start at `position` into `peaks` (first value the size of
    // the first, second value minus the size of the second). False, with a message,
    // for an unknown format, a channel count outside 0 to 31 or peaks the file does
    // not hold.
    bool readPeaks(FILE* file, long position, PeakVector& peaks) const;
    // A ".bef" file.
    bool load(const char* path, PeakVector& peaks);
    // Writes the chunk, header and peaks, at the stream's position.
    bool save(FILE* file, PeakVector& peaks, const Format& format);
    bool save(const char* path, PeakVector& peaks, const Format& format);
    void dump() const;

    // "yyyy:MM:dd:hh:mm:ss:zzz", the time of now.
    static QString createTimeStamp();

private:
    int m_version = 0;
    int m_format = UnsignedShort;
    int m_pointsPerValue = 2;
    int m_blockSize = 256;
    int m_peakChannels = 0;
    int m_numPeakFrames = 0;
    int m_posPeakOfPeaks = 0;
    int m_offsetToPeaks = 128;
    int m_chunkSize = 0;
    QString m_timeStamp;
    char m_reserved[reservedSize] = {};
};

} // namespace Audio
