#pragma once

#include <QString>

namespace Audio {

// The description of an audio stream: sample rate, channels, sample format, bits per sample.
class Settings
{
public:
    // Sample formats; each is a single bit.
    enum Format : short
    {
        Query = 0,
        MuLaw = 1,
        ALaw = 2,
        ImaAdpcm = 4,
        Unsigned8 = 8,
        LittleEndianSigned16 = 16,
        BigEndianSigned16 = 32,
        Signed8 = 64,
        LittleEndianUnsigned16 = 128,
        BigEndianUnsigned16 = 256,
        Mpeg = 512,
        Ac3 = 1024,
        Signed24Normal = 2048,
        Signed24Swapped = 4096,
    };

    Settings(unsigned int sampleRate = 0, short channels = 0, short fmt = Query, short bitsPerSample = 0);
    Settings(const Settings& other) = default;
    Settings& operator=(const Settings& other) = default;
    virtual ~Settings();

    bool operator==(const Settings& other) const;
    bool operator!=(const Settings& other) const;

    unsigned int sampleRate() const;
    void setSampleRate(unsigned int sampleRate);
    short channels() const;
    void setChannels(short channels);
    short fmt() const;
    void setFmt(short fmt);
    short bitsPerSample() const;
    void setBitsPerSample(short bitsPerSample);

    // The name of a format value, "Unknown" for anything that is not one of them.
    static QString formatName(short fmt);
    // Writes the four values to the debug log.
    void dump() const;

private:
    unsigned int m_sampleRate = 0;
    short m_channels = 0;
    short m_fmt = Query;
    short m_bitsPerSample = 0;
};

} // namespace Audio
