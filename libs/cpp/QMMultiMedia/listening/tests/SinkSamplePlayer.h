#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QString>

#include <memory>

class QAudioOutput;

// Test support: plays a sample file into the default sound sink as 16-bit
// mono, straight from memory, for as long as the object lives; the listening
// tests hear it again through the sink's monitor.
class SinkSamplePlayer
{
public:
    explicit SinkSamplePlayer(const QString& path);
    ~SinkSamplePlayer();

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
    std::unique_ptr<QAudioOutput> m_output;
};
