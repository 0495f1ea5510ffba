#pragma once

#include <QString>
#include <QUrl>

namespace Audio {

// What an audio file is known to hold: where it lies, its comment and the sizes and
// offsets of its audio data.
class FileInfo
{
public:
    FileInfo() = default;
    FileInfo(const FileInfo& other) = default;
    // Copies everything except the url: a reader sets the url itself after the copy.
    FileInfo& operator=(const FileInfo& other);

    QUrl url() const;
    void setUrl(const QUrl& url);
    QString comment() const;
    void setComment(const QString& comment);
    // File position of the chunk header that precedes the audio.
    unsigned int dataOffset() const;
    void setDataOffset(unsigned int dataOffset);
    // Samples over all channels.
    unsigned int numSamples() const;
    void setNumSamples(unsigned int numSamples);
    // Size as the container states it.
    unsigned int fileSize() const;
    void setFileSize(unsigned int fileSize);
    // Bytes of audio.
    unsigned int dataSize() const;
    void setDataSize(unsigned int dataSize);
    // Where a writer must later store the size.
    unsigned int sizeOffset() const;
    void setSizeOffset(unsigned int sizeOffset);
    unsigned int compression() const;
    void setCompression(unsigned int compression);

private:
    QUrl m_url;
    QString m_comment;
    unsigned int m_dataOffset = 0;
    unsigned int m_numSamples = 0;
    unsigned int m_fileSize = 0;
    unsigned int m_dataSize = 0;
    unsigned int m_sizeOffset = 0;
    unsigned int m_compression = 0;
};

} // namespace Audio
