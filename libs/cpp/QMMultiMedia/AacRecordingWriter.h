#pragma once

#include "RecordingWriter.h"

#include <QVector>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct AVStream;

namespace QMMultiMedia {

// AAC in an MPEG-4 audio file (.m4a) through FFmpeg's encoder. The file is
// written in fragments of half a second, so that what was written before
// a full disk or a crash stays readable. Such a file has no edit list: it
// reads back with the encoder's 1024 samples of priming in front and the
// last frame padded to 1024 samples, up to 2047 samples more than recorded.
class AacRecordingWriter : public RecordingWriter
{
public:
    ~AacRecordingWriter() override;

    static std::unique_ptr<RecordingWriter> open(const QString& path, const MAudioFormat& format);

    qint64 write(const qint16* samples, qint64 frames) override;
    void close() override;

    // The encoder's coder for a quality of 0 to 127: the fast one below 64.
    static const char* coderForQuality(int encoderQuality);

private:
    AacRecordingWriter() = default;
    bool setUp(const QString& path, const MAudioFormat& format);
    bool encodeFrame(const AVFrame* frame);
    void release();

    AVFormatContext* m_container = nullptr;
    AVCodecContext* m_encoder = nullptr;
    AVStream* m_stream = nullptr;
    AVFrame* m_frame = nullptr;
    AVPacket* m_packet = nullptr;
    bool m_headerWritten = false;
    bool m_failed = false;
    int m_channels = 0;
    // Interleaved samples waiting for a whole encoder frame.
    QVector<float> m_pending;
    qint64 m_nextPts = 0;
};

} // namespace QMMultiMedia
