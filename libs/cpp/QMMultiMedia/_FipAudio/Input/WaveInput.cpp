#include "WaveInput.h"

#include "Common/FileUtil.h"

namespace Audio {

namespace {

// A chunk body with its pad byte.
long long padded(unsigned int size)
{
    return (static_cast<long long>(size) + 1) & ~1LL;
}

} // namespace

bool WaveInput::open(const char* path)
{
    m_fileInfo.setComment(QString());
    m_fileInfo.setDataOffset(0);
    m_formatTag = 0;
    m_file = std::fopen(path, "r");
    if (!m_file)
        return false;
    if (!walkChunks()) {
        dropFile();
        return false;
    }
    return true;
}

bool WaveInput::walkChunks()
{
    Chunk chunk;
    char wave[4] = {};
    if (readChunk(&chunk, 0) != 8 || !chunk.is("RIFF") || std::fread(wave, 1, 4, m_file) != 4
        || std::memcmp(wave, "WAVE", 4) != 0)
        return false;
    m_fileInfo.setFileSize(static_cast<unsigned int>(padded(chunk.size)));
    long long remaining = padded(chunk.size) - 4;
    bool dataFound = false;
    while (remaining >= 8) {
        if (readChunk(&chunk, 0) != 8)
            return false;
        remaining -= (static_cast<long long>(chunk.size) + 9) & ~1LL;
        if (chunk.is("LIST")) {
            if (!readListChunk(chunk.size))
                return false;
        } else if (chunk.is("fmt ") && m_formatTag == 0) {
            if (!readFmtChunk(chunk.size))
                return false;
        } else if (chunk.is("data") && !dataFound) {
            initDataChunk(chunk.size);
            dataFound = true;
        } else if (chunk.is("bext")) {
            readEbuInfoChunk(chunk.size);
        } else if (chunk.is("levl")) {
            readEbuEnvelopeChunk(chunk.size);
        } else {
            skip(padded(chunk.size));
        }
    }
    // Audio without a usable "fmt " has no sample width to count it by.
    if (!dataFound || m_formatTag == 0)
        return false;
    const Settings current = settings();
    m_fileInfo.setNumSamples(m_fileInfo.dataSize() / static_cast<unsigned int>(current.bitsPerSample() / 8));
    setSettings(Settings(current.sampleRate(), current.channels(), fmt(), current.bitsPerSample()));
    return true;
}

bool WaveInput::readListChunk(unsigned int size)
{
    char id[4];
    if (std::fread(id, 1, 4, m_file) != 4)
        return false;
    if (std::memcmp(id, "INFO", 4) != 0) {
        skip(padded(size) - 4);
        return true;
    }
    long long left = static_cast<long long>(size) - 4;
    while (left != 0) {
        Chunk sub;
        if (readChunk(&sub, 0) != 8)
            return false;
        if (sub.is("ICMT")) {
            const QByteArray text = readText(sub.size);
            m_fileInfo.setComment(
                QString::fromLocal8Bit(text.left(text.indexOf('\0') < 0 ? text.size() : text.indexOf('\0'))));
            if (sub.size % 2 != 0)
                skip(1);
        } else {
            skip(padded(sub.size));
        }
        left -= (static_cast<long long>(sub.size) + 9) & ~1LL;
    }
    return true;
}

bool WaveInput::readFmtChunk(unsigned int size)
{
    const int tag = FileUtil::readS(m_file, false);
    const short channels = static_cast<short>(FileUtil::readS(m_file, false));
    const unsigned int sampleRate = FileUtil::readL(m_file, false);
    FileUtil::readL(m_file, false);
    FileUtil::readS(m_file, false);
    if (tag != 1)
        return false;
    const short bits = static_cast<short>(FileUtil::readS(m_file, false));
    skip((static_cast<long long>(size) - 15) & ~1LL);
    // Without channels or whole bytes per sample nothing can be counted or read.
    if (channels < 1 || bits < 8)
        return false;
    m_formatTag = tag;
    setSettings(Settings(sampleRate, channels, settings().fmt(), bits));
    return true;
}

void WaveInput::initDataChunk(unsigned int size)
{
    const long long start = ftello(m_file);
    long long dataSize = size;
    fseeko(m_file, 0, SEEK_END);
    const long long end = ftello(m_file);
    if (start + padded(size) <= end)
        fseeko(m_file, start + padded(size), SEEK_SET);
    else
        dataSize = end - start;
    m_fileInfo.setDataSize(static_cast<unsigned int>(dataSize));
    m_fileInfo.setDataOffset(static_cast<unsigned int>(start - 8));
}

void WaveInput::readEbuInfoChunk(unsigned int size)
{
    const long long start = ftello(m_file);
    m_ebuInfo = MTools::Handle<EBUInfo>(new EBUInfo);
    m_ebuInfo->setChunkSize(static_cast<int>(size));
    m_ebuInfo->initFromHeader(m_file);
    // A chunk shorter than its fixed part leaves the stream where the fields ended.
    if (size >= static_cast<unsigned int>(EBUInfo::fixedSize))
        fseeko(m_file, start + padded(size), SEEK_SET);
}

void WaveInput::readEbuEnvelopeChunk(unsigned int size)
{
    m_envelope = MTools::Handle<EBUEnvelope>(new EBUEnvelope);
    m_envelope->setChunkSize(static_cast<int>(padded(size)));
    m_envelope->initFromHeader(m_file);
    // An envelope is the last chunk of a file: the walk goes on past its end.
    skip((static_cast<long long>(m_envelope->chunkSize()) + 57) & ~1LL);
}

void WaveInput::skip(long long bytes)
{
    fseeko(m_file, bytes, SEEK_CUR);
}

short WaveInput::fmt() const
{
    if (m_formatTag == 1) {
        switch (bitsPerSample()) {
        case 8:
            return Settings::Unsigned8;
        case 16:
            return Settings::LittleEndianSigned16;
        case 24:
            return Settings::Signed24Normal;
        default:
            return Settings::Query;
        }
    }
    switch (m_formatTag) {
    case 257:
        return Settings::MuLaw;
    case 258:
        return Settings::ALaw;
    case 259:
        return Settings::ImaAdpcm;
    default:
        return Settings::Query;
    }
}

QString WaveInput::name() const
{
    return QStringLiteral("WaveInput");
}

QString WaveInput::extentions() const
{
    return QStringLiteral("wav wave bwf");
}

} // namespace Audio
