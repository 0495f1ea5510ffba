#pragma once

#include "MAudioFormat.h"

#include <QString>

#include <memory>

namespace QMMultiMedia {

// Writes a recording to its file as the samples arrive: nothing of it is
// held in memory beyond one encoder frame.
class RecordingWriter
{
    Q_DISABLE_COPY(RecordingWriter)

public:
    RecordingWriter() = default;
    virtual ~RecordingWriter() = default;

    // A writer for the format's codec with the file already created, or null
    // when the file cannot be made.
    static std::unique_ptr<RecordingWriter> create(const QString& path, const MAudioFormat& format);

    // Appends interleaved 16-bit frames in the format's channels and returns
    // how many the file took. Fewer than given means the disk is full: the
    // file stays readable up to what it took, and the writer takes nothing more.
    virtual qint64 write(const qint16* samples, qint64 frames) = 0;
    // Completes the file and closes it; later calls do nothing.
    virtual void close() = 0;
};

} // namespace QMMultiMedia
