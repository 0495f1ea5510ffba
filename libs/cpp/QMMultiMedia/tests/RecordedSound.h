#pragma once

#include <QFile>
#include <QString>
#include <QVector>

#include <sndfile.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <cmath>

// Reads a recording back with the libraries that other programs use, and
// measures the tone in it.
namespace RecordedSound {

struct Sound
{
    int sampleRate = 0;
    int channels = 0;
    QVector<float> samples; // interleaved

    qint64 frames() const { return channels > 0 ? samples.size() / channels : 0; }
    double seconds() const { return sampleRate > 0 ? double(frames()) / sampleRate : 0.0; }
};

inline Sound readWithSndfile(const QString& path)
{
    Sound sound;
    SF_INFO info = {};
    SNDFILE* file = sf_open(QFile::encodeName(path).constData(), SFM_READ, &info);
    if (!file)
        return sound;
    sound.sampleRate = info.samplerate;
    sound.channels = info.channels;
    sound.samples.resize(static_cast<int>(info.frames * info.channels));
    const sf_count_t read = sf_readf_float(file, sound.samples.data(), info.frames);
    sound.samples.resize(static_cast<int>(qMax<sf_count_t>(0, read) * info.channels));
    sf_close(file);
    return sound;
}

// Decodes every packet of the first audio stream of an MPEG-4 file.
inline Sound readWithFfmpeg(const QString& path)
{
    Sound sound;
    AVFormatContext* container = nullptr;
    if (avformat_open_input(&container, QFile::encodeName(path).constData(), nullptr, nullptr) < 0)
        return sound;
    const AVCodec* codec = nullptr;
    const int stream = avformat_find_stream_info(container, nullptr) < 0
        ? -1
        : av_find_best_stream(container, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    AVCodecContext* decoder = stream >= 0 ? avcodec_alloc_context3(codec) : nullptr;
    if (decoder && avcodec_parameters_to_context(decoder, container->streams[stream]->codecpar) >= 0
        && avcodec_open2(decoder, codec, nullptr) >= 0) {
        sound.sampleRate = decoder->sample_rate;
        sound.channels = decoder->ch_layout.nb_channels;
        AVPacket* packet = av_packet_alloc();
        AVFrame* frame = av_frame_alloc();
        const auto drain = [&]() {
            while (avcodec_receive_frame(decoder, frame) >= 0) {
                const bool planar = av_sample_fmt_is_planar(static_cast<AVSampleFormat>(frame->format));
                for (int i = 0; i < frame->nb_samples; ++i) {
                    for (int c = 0; c < sound.channels; ++c) {
                        const float* data = reinterpret_cast<const float*>(frame->extended_data[planar ? c : 0]);
                        sound.samples.append(planar ? data[i] : data[i * sound.channels + c]);
                    }
                }
            }
        };
        while (av_read_frame(container, packet) >= 0) {
            if (packet->stream_index == stream && avcodec_send_packet(decoder, packet) >= 0)
                drain();
            av_packet_unref(packet);
        }
        avcodec_send_packet(decoder, nullptr);
        drain();
        av_frame_free(&frame);
        av_packet_free(&packet);
    }
    avcodec_free_context(&decoder);
    avformat_close_input(&container);
    return sound;
}

// Writes a mono 440 Hz tone in one of libsndfile's formats (SF_FORMAT_*).
inline bool writeWithSndfile(const QString& path, int format, double seconds, int rate = 48000)
{
    SF_INFO info = {};
    info.samplerate = rate;
    info.channels = 1;
    info.format = format;
    SNDFILE* file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!file)
        return false;
    QVector<float> samples(static_cast<int>(seconds * rate));
    for (int n = 0; n < samples.size(); ++n)
        samples[n] = 0.5f * static_cast<float>(std::sin(2.0 * M_PI * 440.0 * n / rate));
    const bool written = sf_writef_float(file, samples.constData(), samples.size()) == samples.size();
    return sf_close(file) == 0 && written;
}

inline Sound read(const QString& path)
{
    return path.endsWith(QLatin1String(".m4a")) ? readWithFfmpeg(path) : readWithSndfile(path);
}

// The frequency of the loud part of one channel, from the first to the last
// rising zero crossing, each placed between its two samples. 0 without a tone.
inline double toneFrequency(const Sound& sound, int channel, double threshold = 0.2)
{
    const qint64 frames = sound.frames();
    const auto at = [&](qint64 n) { return sound.samples.at(static_cast<int>(n * sound.channels + channel)); };
    qint64 first = -1;
    qint64 last = -1;
    for (qint64 n = 0; n < frames; ++n) {
        if (std::abs(at(n)) >= threshold) {
            if (first < 0)
                first = n;
            last = n;
        }
    }
    // Leave out the edges, where the tone sets in and dies away.
    const qint64 margin = sound.sampleRate / 50;
    first += margin;
    last -= margin;
    double firstCrossing = -1.0;
    double lastCrossing = -1.0;
    int crossings = 0;
    for (qint64 n = first; n >= 0 && n < last; ++n) {
        const float a = at(n);
        const float b = at(n + 1);
        if (a < 0.0f && b >= 0.0f) {
            const double crossing = n + a / double(a - b);
            if (firstCrossing < 0.0)
                firstCrossing = crossing;
            lastCrossing = crossing;
            ++crossings;
        }
    }
    if (crossings < 2)
        return 0.0;
    return (crossings - 1) * sound.sampleRate / (lastCrossing - firstCrossing);
}

inline double cents(double frequency, double reference)
{
    return 1200.0 * std::log2(frequency / reference);
}

} // namespace RecordedSound
