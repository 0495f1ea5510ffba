#include "RecordingWriter.h"

#include "AacRecordingWriter.h"
#include "SndfileRecordingWriter.h"

namespace QMMultiMedia {

std::unique_ptr<RecordingWriter> RecordingWriter::create(const QString& path, const MAudioFormat& format)
{
    if (format.channels < 1 || format.sampleRate < 1)
        return nullptr;
    if (MAudioFormat::codecIDFromString(format.codec) == MAudioFormat::MPEG4ACC)
        return AacRecordingWriter::open(path, format);
    return SndfileRecordingWriter::open(path, format);
}

} // namespace QMMultiMedia
