#pragma once

#include "FileInput.h"

namespace Audio {

// Reader of AIFF files: "COMM", "SSND" and "COMT" chunks, big-endian samples of 8, 16
// and 24 bits.
//
// The audio of "SSND" is placed by fixed constants that readers of this library have
// always used: it starts 20 bytes before the byte behind the chunk's offset and block
// size fields, so the first samples read are made of header bytes, and it ends 20
// bytes before the true end. Files written by other programs therefore read shifted
// by 20 bytes (10 samples at 16 bits); the walk still finds every chunk behind it.
class AiffInput : public FileInput
{
public:
    bool open(const char* path) override;
    // 64, 32 and 4096 for 8, 16 and 24 bits.
    short fmt() const override;
    QString name() const override;
    QString extentions() const override;

private:
    bool walkChunks();
};

} // namespace Audio
