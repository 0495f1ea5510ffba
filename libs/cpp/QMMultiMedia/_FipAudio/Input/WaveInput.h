#pragma once

#include "FileInput.h"

namespace Audio {

// Reader of wave and broadcast wave files: walks the RIFF chunks ("fmt ", "data",
// "LIST"/"INFO"/"ICMT", "bext", "levl") and takes PCM audio of 8, 16, 24 and 32 bits.
class WaveInput : public FileInput
{
public:
    bool open(const char* path) override;
    // 8, 16 and 2048 for PCM of 8, 16 and 24 bits; 1, 2 and 4 for the tags 257 to 259.
    short fmt() const override;
    QString name() const override;
    QString extentions() const override;

private:
    bool walkChunks();
    bool readListChunk(unsigned int size);
    bool readFmtChunk(unsigned int size);
    void initDataChunk(unsigned int size);
    void readEbuInfoChunk(unsigned int size);
    void readEbuEnvelopeChunk(unsigned int size);
    // Moves the stream forward by `bytes`.
    void skip(long long bytes);

    int m_formatTag = 0;
};

} // namespace Audio
