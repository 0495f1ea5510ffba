#include "SndfileRecordingWriter.h"

#include <QFile>

#include <sndfile.h>

namespace QMMultiMedia {

SndfileRecordingWriter::~SndfileRecordingWriter()
{
    close();
}

std::unique_ptr<RecordingWriter> SndfileRecordingWriter::open(const QString& path, const MAudioFormat& format)
{
    int container = SF_FORMAT_WAV;
    switch (MAudioFormat::codecIDFromString(format.codec)) {
    case MAudioFormat::AIFF:
        container = SF_FORMAT_AIFF;
        break;
    case MAudioFormat::CAF:
        container = SF_FORMAT_CAF;
        break;
    default:
        break;
    }
    SF_INFO info = {};
    info.samplerate = format.sampleRate;
    info.channels = format.channels;
    info.format = container | SF_FORMAT_PCM_16;
    if (!sf_format_check(&info))
        return nullptr;
    SNDFILE* file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!file)
        return nullptr;
    sf_command(file, SFC_SET_UPDATE_HEADER_AUTO, nullptr, SF_TRUE);
    std::unique_ptr<SndfileRecordingWriter> writer(new SndfileRecordingWriter());
    writer->m_file = file;
    writer->m_channels = format.channels;
    return writer;
}

qint64 SndfileRecordingWriter::write(const qint16* samples, qint64 frames)
{
    if (!m_file || m_failed)
        return 0;
    const sf_count_t written = sf_writef_short(m_file, samples, frames);
    if (written != frames)
        m_failed = true;
    return qMax<sf_count_t>(0, written);
}

void SndfileRecordingWriter::close()
{
    if (!m_file)
        return;
    sf_close(m_file);
    m_file = nullptr;
}

} // namespace QMMultiMedia
