#pragma once

#include <QString>
#include <QStringList>

#include <cstdio>

namespace Audio {

// The broadcast extension chunk "bext" of a broadcast wave file: who made the
// recording, when, and where it lies on the time line, with free text and a coding
// history. Text fields keep their chunk width, padded with zero characters.
class EBUInfo
{
public:
    // Widths of the fields in the chunk and of its fixed part.
    static constexpr int descriptionWidth = 256;
    static constexpr int originatorWidth = 32;
    static constexpr int originationRefWidth = 32;
    static constexpr int originationDateWidth = 10;
    static constexpr int originationTimeWidth = 8;
    static constexpr int umidSize = 64;
    static constexpr int reservedSize = 190;
    static constexpr int fixedSize = 602;

    EBUInfo();
    // Info of a stretch of the time line: "sSPEED=" and the rate as the description.
    EBUInfo(long long timeReference, float fps);
    virtual ~EBUInfo();

    QString description() const;
    void setDescription(const QString& description);
    QString originator() const;
    void setOriginator(const QString& originator);
    QString originationRef() const;
    void setOriginationRef(const QString& originationRef);
    QString originationDate() const;
    void setOriginationDate(const QString& originationDate);
    QString originationTime() const;
    void setOriginationTime(const QString& originationTime);
    unsigned int timeReferenceLow() const;
    void setTimeReferenceLow(unsigned int low);
    unsigned int timeReferenceHigh() const;
    void setTimeReferenceHigh(unsigned int high);
    // Sample count since midnight, both words joined.
    long long timeReference() const;
    void setTimeReference(const long long& timeReference);
    int version() const;
    void setVersion(int version);
    char umid(int index) const;
    // An index of 64 or above is ignored.
    void setUMID(int index, char value);
    const char* umidsData() const;
    const char* reservedData() const;
    // Eight lines of eight bytes in hexadecimal.
    QString umidsString() const;
    int chunkSize() const;
    void setChunkSize(int chunkSize);
    QString codingHistory() const;
    void setCodingHistory(const QString& codingHistory);
    float fps() const;
    void setFps(float fps);

    // Bytes of the chunk behind its header: the fixed part and the history.
    int size() const;

    // Writes the chunk, header included, at the stream's position.
    bool save(FILE* file) const;
    // A file that holds the chunk alone.
    bool save(const char* path) const;
    bool load(const char* path);
    // Reads the fields that follow the chunk header; the chunk size must be set.
    void initFromHeader(FILE* file);

    // The info of a new recording: originator, reference, version, the local date and
    // time, the description and a line of coding history.
    void fill(const QString& fileName, int sampleRate, int bitsPerSample, int channels);
    void fillDescription(const QString& fileName);
    void updateHistory(int sampleRate, int bitsPerSample, int channels);
    static QString replaceSpacesWith(const QString& text, char c);

    QString scene() const;
    QString take() const;
    QString userBits() const;
    // The text after the first of the keys found in the description; this version
    // searches nothing and answers an empty text.
    QString searchForTemplates(QStringList& keys) const;

    void dump() const;

private:
    static QString padded(const QString& value, int width);

    QString m_description;
    QString m_originator;
    QString m_originationRef;
    QString m_originationDate;
    QString m_originationTime;
    unsigned int m_timeReferenceLow = 0;
    unsigned int m_timeReferenceHigh = 0;
    int m_version = 0;
    char m_umid[umidSize] = {};
    char m_reserved[reservedSize] = {};
    int m_chunkSize = 0;
    QString m_codingHistory;
    float m_fps = -1.0f;
};

} // namespace Audio
