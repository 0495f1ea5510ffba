#include "SinkSamplePlayer.h"

#include "AudioFileDecoder.h"

#include <QAudioFormat>
#include <QAudioOutput>

SinkSamplePlayer::SinkSamplePlayer(const QString& path)
{
    QMMultiMedia::DecodedSound sound;
    QMMultiMedia::AudioFileDecoder::decode(path, &sound);
    m_bytes.resize(int(sound.frames()) * 2);
    auto* out = reinterpret_cast<qint16*>(m_bytes.data());
    for (int i = 0; i < sound.frames(); ++i)
        out[i] = qint16(qBound(-1.0f, sound.samples.at(i * sound.channels), 1.0f) * 32767.0f);
    m_buffer.setData(m_bytes);
    m_buffer.open(QIODevice::ReadOnly);
    QAudioFormat format;
    format.setSampleRate(sound.sampleRate);
    format.setChannelCount(1);
    format.setSampleSize(16);
    format.setSampleType(QAudioFormat::SignedInt);
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setCodec(QStringLiteral("audio/pcm"));
    m_output = std::make_unique<QAudioOutput>(format);
    m_output->start(&m_buffer);
}

SinkSamplePlayer::~SinkSamplePlayer() = default;
