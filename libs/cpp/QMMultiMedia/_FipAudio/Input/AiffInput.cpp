#include "AiffInput.h"

#include "Common/FileUtil.h"
#include "Common/Util.h"

namespace Audio {

bool AiffInput::open(const char* path)
{
    m_fileInfo.setComment(QString());
    m_fileInfo.setDataOffset(0);
    m_file = std::fopen(path, "r");
    if (!m_file)
        return false;
    if (!walkChunks()) {
        dropFile();
        return false;
    }
    return true;
}

bool AiffInput::walkChunks()
{
    Chunk chunk;
    char aiff[4] = {};
    if (readChunk(&chunk, 1) != 8 || !chunk.is("FORM") || std::fread(aiff, 1, 4, m_file) != 4
        || std::memcmp(aiff, "AIFF", 4) != 0)
        return false;
    long long remaining = chunk.size;
    long long next = ftello(m_file);
    bool dataFound = false;
    short channels = 0;
    short bits = 0;
    unsigned int sampleRate = 0;
    while (remaining >= 9) {
        // Each chunk is read from where the previous one ends, whatever its reading
        // left the stream at (the audio constants of "SSND" stop 4 bytes short).
        fseeko(m_file, next, SEEK_SET);
        if (readChunk(&chunk, 1) != 8)
            return false;
        const long long body = (static_cast<long long>(chunk.size) + 1) & ~1LL;
        remaining -= 8 + body;
        next += 8 + body;
        if (chunk.is("COMM")) {
            channels = static_cast<short>(FileUtil::readS(m_file, true));
            const unsigned int frames = FileUtil::readL(m_file, true);
            m_fileInfo.setNumSamples(static_cast<unsigned int>(channels) * frames);
            bits = static_cast<short>(FileUtil::readS(m_file, true));
            setSettings(Settings(0, channels, Settings::Query, bits));
            char rate[10] = {};
            std::fread(rate, 1, sizeof rate, m_file);
            const double value = Util::convertFromIeeeExtended(rate);
            sampleRate = value >= 0.0 && value < 4294967296.0 ? static_cast<unsigned int>(value) : 0;
            setSettings(Settings(sampleRate, channels, fmt(), bits));
        } else if (chunk.is("SSND")) {
            const unsigned int offset = FileUtil::readL(m_file, true);
            const long long p = ftello(m_file);
            m_fileInfo.setDataOffset(static_cast<unsigned int>(offset + p - 24));
            m_fileInfo.setDataSize(chunk.size - 8);
            fseeko(m_file, ((static_cast<long long>(chunk.size) - 7) & ~1LL) + offset, SEEK_CUR);
            dataFound = true;
        } else if (chunk.is("COMT")) {
            const unsigned short count = FileUtil::readS(m_file, true);
            if (count != 0) {
                const unsigned short length = FileUtil::readS(m_file, true);
                m_fileInfo.setComment(QString::fromLocal8Bit(readText(length)));
            }
        }
    }
    if (!dataFound || channels < 1 || bits < 8)
        return false;
    m_fileInfo.setNumSamples(m_fileInfo.dataSize() / static_cast<unsigned int>(bits / 8));
    return true;
}

short AiffInput::fmt() const
{
    switch (bitsPerSample()) {
    case 8:
        return Settings::Signed8;
    case 16:
        return Settings::BigEndianSigned16;
    case 24:
        return Settings::Signed24Swapped;
    default:
        return Settings::Query;
    }
}

QString AiffInput::name() const
{
    return QStringLiteral("AiffInput");
}

QString AiffInput::extentions() const
{
    return QStringLiteral("aif aiff");
}

} // namespace Audio
