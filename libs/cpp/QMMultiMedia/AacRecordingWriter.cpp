#include "AacRecordingWriter.h"

#include <QFile>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
}

namespace QMMultiMedia {

AacRecordingWriter::~AacRecordingWriter()
{
    close();
}

std::unique_ptr<RecordingWriter> AacRecordingWriter::open(const QString& path, const MAudioFormat& format)
{
    std::unique_ptr<AacRecordingWriter> writer(new AacRecordingWriter());
    if (!writer->setUp(path, format)) {
        writer->release();
        QFile::remove(path);
        return nullptr;
    }
    return writer;
}

const char* AacRecordingWriter::coderForQuality(int encoderQuality)
{
    return encoderQuality < 64 ? "fast" : "twoloop";
}

bool AacRecordingWriter::setUp(const QString& path, const MAudioFormat& format)
{
    if (format.channels < 1 || format.sampleRate < 1)
        return false;
    m_channels = format.channels;
    const QByteArray fileName = QFile::encodeName(path);
    if (avformat_alloc_output_context2(&m_container, nullptr, "ipod", fileName.constData()) < 0)
        return false;
    const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
    if (!codec)
        return false;
    m_encoder = avcodec_alloc_context3(codec);
    if (!m_encoder)
        return false;
    m_encoder->sample_fmt = AV_SAMPLE_FMT_FLTP;
    m_encoder->sample_rate = format.sampleRate;
    av_channel_layout_default(&m_encoder->ch_layout, format.channels);
    m_encoder->bit_rate = format.bitRate;
    m_encoder->time_base = AVRational { 1, format.sampleRate };
    if (m_container->oformat->flags & AVFMT_GLOBALHEADER)
        m_encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_opt_set(m_encoder->priv_data, "aac_coder", coderForQuality(MAudioFormat::encoderQuality(format.quality)), 0);
    if (avcodec_open2(m_encoder, codec, nullptr) < 0)
        return false;

    m_stream = avformat_new_stream(m_container, nullptr);
    if (!m_stream || avcodec_parameters_from_context(m_stream->codecpar, m_encoder) < 0)
        return false;
    m_stream->time_base = m_encoder->time_base;
    if (avio_open(&m_container->pb, fileName.constData(), AVIO_FLAG_WRITE) < 0)
        return false;
    // Every finished fragment goes to the file at once.
    m_container->flush_packets = 1;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "movflags", "empty_moov+default_base_moof", 0);
    av_dict_set(&options, "frag_duration", "500000", 0);
    const int header = avformat_write_header(m_container, &options);
    av_dict_free(&options);
    if (header < 0)
        return false;
    m_headerWritten = true;

    m_frame = av_frame_alloc();
    m_packet = av_packet_alloc();
    if (!m_frame || !m_packet)
        return false;
    m_frame->format = m_encoder->sample_fmt;
    m_frame->sample_rate = m_encoder->sample_rate;
    m_frame->nb_samples = m_encoder->frame_size;
    if (av_channel_layout_copy(&m_frame->ch_layout, &m_encoder->ch_layout) < 0 || av_frame_get_buffer(m_frame, 0) < 0)
        return false;
    m_pending.reserve(m_encoder->frame_size * m_channels);
    return true;
}

qint64 AacRecordingWriter::write(const qint16* samples, qint64 frames)
{
    if (!m_encoder || m_failed)
        return 0;
    const int frameSize = m_encoder->frame_size;
    for (qint64 n = 0; n < frames * m_channels; ++n) {
        m_pending.append(samples[n] / 32768.0f);
        if (m_pending.size() < frameSize * m_channels)
            continue;
        if (!encodeFrame(m_frame)) {
            // The frame that failed is lost with the ones before it in its encoder frame.
            m_failed = true;
            return qMax<qint64>(0, (n + 1) / m_channels - frameSize);
        }
        m_pending.clear();
    }
    return frames;
}

// Encodes the pending samples through `frame` (null drains the encoder) and
// writes the packets that come out.
bool AacRecordingWriter::encodeFrame(const AVFrame* frame)
{
    if (frame) {
        if (av_frame_make_writable(m_frame) < 0)
            return false;
        const int count = m_pending.size() / m_channels;
        m_frame->nb_samples = count;
        for (int c = 0; c < m_channels; ++c) {
            float* plane = reinterpret_cast<float*>(m_frame->extended_data[c]);
            for (int i = 0; i < count; ++i)
                plane[i] = m_pending.at(i * m_channels + c);
        }
        m_frame->pts = m_nextPts;
        m_nextPts += count;
    }
    if (avcodec_send_frame(m_encoder, frame) < 0)
        return false;
    for (;;) {
        const int received = avcodec_receive_packet(m_encoder, m_packet);
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return true;
        if (received < 0)
            return false;
        av_packet_rescale_ts(m_packet, m_encoder->time_base, m_stream->time_base);
        m_packet->stream_index = m_stream->index;
        // The muxer does not always pass on a failed write: the file's own flag tells.
        if (av_interleaved_write_frame(m_container, m_packet) < 0 || m_container->pb->error < 0)
            return false;
    }
}

void AacRecordingWriter::close()
{
    if (!m_container)
        return;
    if (m_headerWritten) {
        // The last, shorter frame, then what the encoder still holds. After
        // a failed write the fragments already out stay as they are.
        if (!m_failed && (m_pending.isEmpty() || encodeFrame(m_frame)))
            encodeFrame(nullptr);
        m_pending.clear();
        av_write_trailer(m_container);
    }
    release();
}

void AacRecordingWriter::release()
{
    av_frame_free(&m_frame);
    av_packet_free(&m_packet);
    avcodec_free_context(&m_encoder);
    if (m_container) {
        if (m_container->pb)
            avio_closep(&m_container->pb);
        avformat_free_context(m_container);
        m_container = nullptr;
    }
    m_stream = nullptr;
}

} // namespace QMMultiMedia
