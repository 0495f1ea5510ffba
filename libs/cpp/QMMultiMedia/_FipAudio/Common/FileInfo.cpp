#include "FileInfo.h"

namespace Audio {

FileInfo& FileInfo::operator=(const FileInfo& other)
{
    m_comment = other.m_comment;
    m_dataOffset = other.m_dataOffset;
    m_numSamples = other.m_numSamples;
    m_fileSize = other.m_fileSize;
    m_dataSize = other.m_dataSize;
    m_sizeOffset = other.m_sizeOffset;
    m_compression = other.m_compression;
    return *this;
}

QUrl FileInfo::url() const
{
    return m_url;
}

void FileInfo::setUrl(const QUrl& url)
{
    m_url = url;
}

QString FileInfo::comment() const
{
    return m_comment;
}

void FileInfo::setComment(const QString& comment)
{
    m_comment = comment;
}

unsigned int FileInfo::dataOffset() const
{
    return m_dataOffset;
}

void FileInfo::setDataOffset(unsigned int dataOffset)
{
    m_dataOffset = dataOffset;
}

unsigned int FileInfo::numSamples() const
{
    return m_numSamples;
}

void FileInfo::setNumSamples(unsigned int numSamples)
{
    m_numSamples = numSamples;
}

unsigned int FileInfo::fileSize() const
{
    return m_fileSize;
}

void FileInfo::setFileSize(unsigned int fileSize)
{
    m_fileSize = fileSize;
}

unsigned int FileInfo::dataSize() const
{
    return m_dataSize;
}

void FileInfo::setDataSize(unsigned int dataSize)
{
    m_dataSize = dataSize;
}

unsigned int FileInfo::sizeOffset() const
{
    return m_sizeOffset;
}

void FileInfo::setSizeOffset(unsigned int sizeOffset)
{
    m_sizeOffset = sizeOffset;
}

unsigned int FileInfo::compression() const
{
    return m_compression;
}

void FileInfo::setCompression(unsigned int compression)
{
    m_compression = compression;
}

} // namespace Audio
