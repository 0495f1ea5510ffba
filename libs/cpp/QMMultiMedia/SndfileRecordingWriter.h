#pragma once

#include "RecordingWriter.h"

struct sf_private_tag;

namespace QMMultiMedia {

// 16-bit linear PCM in a wave, AIFF or CAF file through libsndfile. The
// header is brought up to date with every write, so that the file is whole
// at any moment, also when the disk fills up or the program dies.
class SndfileRecordingWriter : public RecordingWriter
{
public:
    ~SndfileRecordingWriter() override;

    static std::unique_ptr<RecordingWriter> open(const QString& path, const MAudioFormat& format);

    qint64 write(const qint16* samples, qint64 frames) override;
    void close() override;

private:
    SndfileRecordingWriter() = default;

    sf_private_tag* m_file = nullptr;
    int m_channels = 0;
    bool m_failed = false;
};

} // namespace QMMultiMedia
