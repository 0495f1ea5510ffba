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

    // Appends interleaved 16-bit frames in the format's channels. False when
    // they could not all be written (the disk is full): the file stays
    // readable up to what was written, and the writer takes nothing more.
    virtual bool write(const qint16* samples, qint64 frames) = 0;
    // Completes the file and closes it; later calls do nothing.
    virtual void close() = 0;
};

} // namespace QMMultiMedia
