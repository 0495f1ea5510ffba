#include "GeneralFileInput.h"

#include "AiffInput.h"
#include "WaveInput.h"

namespace Audio {

bool GeneralFileInput::load(const char* path, bool ignoreExtension)
{
    m_input.reset();
    MTools::Handle<FileInput> input(new WaveInput);
    if (!input->load(path, ignoreExtension)) {
        input = MTools::Handle<FileInput>(new AiffInput);
        if (!input->load(path, ignoreExtension))
            return false;
    }
    m_input = input;
    setSettings(m_input->settings());
    m_fileInfo = m_input->fileInfo();
    m_fileInfo.setUrl(m_input->fileInfo().url());
    m_ebuInfo = m_input->ebuInfo();
    m_envelope = m_input->ebuEnvelope();
    return true;
}

bool GeneralFileInput::open(const char*)
{
    return false;
}

GeneralFileInput::FileFormat GeneralFileInput::fileFormat() const
{
    const QString reader = name();
    if (reader == QLatin1String("WaveInput"))
        return Wave;
    if (reader == QLatin1String("AiffInput"))
        return Aiff;
    return Unknown;
}

QString GeneralFileInput::formatString() const
{
    switch (fileFormat()) {
    case Wave:
        return m_input->ebuInfo().isNull() ? QStringLiteral("WAVE") : QStringLiteral("BWF");
    case Aiff:
        return QStringLiteral("AIFF");
    default:
        return QStringLiteral("UNKNOWN");
    }
}

QString GeneralFileInput::name() const
{
    return m_input.isNull() ? QString() : m_input->name();
}

short GeneralFileInput::fmt() const
{
    return m_input.isNull() ? 0 : m_input->fmt();
}

int GeneralFileInput::readChunk(Chunk* chunk, int swapSize)
{
    return m_input.isNull() ? 0 : m_input->readChunk(chunk, swapSize);
}

void GeneralFileInput::createPeakVector()
{
    if (!m_input.isNull())
        m_input->createPeakVector();
}

PeakInfo GeneralFileInput::peakInfo(int x, int ch, float zoom)
{
    return m_input.isNull() ? PeakInfo() : m_input->peakInfo(x, ch, zoom);
}

bool GeneralFileInput::saveEnvelope(const char* path, const EBUEnvelope::Format& format)
{
    return !m_input.isNull() && m_input->saveEnvelope(path, format);
}

bool GeneralFileInput::loadEnvelope(const char* path)
{
    return !m_input.isNull() && m_input->loadEnvelope(path);
}

MTools::Handle<EBUEnvelope> GeneralFileInput::ebuEnvelope() const
{
    return m_input.isNull() ? MTools::Handle<EBUEnvelope>() : m_input->ebuEnvelope();
}

MTools::Handle<PeakVector> GeneralFileInput::peakVector() const
{
    return m_input.isNull() ? MTools::Handle<PeakVector>() : m_input->peakVector();
}

int GeneralFileInput::read(char* buffer, int bytes)
{
    return m_input.isNull() ? 0 : m_input->read(buffer, bytes);
}

int GeneralFileInput::read(MTools::Handle<RawBuffer> buffer)
{
    return m_input.isNull() ? 0 : m_input->read(buffer);
}

int GeneralFileInput::read(MTools::Handle<AudioFloatBuffer> buffer)
{
    return m_input.isNull() ? 0 : m_input->read(buffer);
}

int GeneralFileInput::read(MTools::Handle<AudioFloatBuffer> buffer, unsigned long frames)
{
    return m_input.isNull() ? 0 : m_input->read(buffer, frames);
}

int GeneralFileInput::read(float* samples, int count)
{
    return m_input.isNull() ? 0 : m_input->read(samples, count);
}

int GeneralFileInput::readChannel(float* target, int frames, int channel)
{
    return m_input.isNull() ? 0 : m_input->readChannel(target, frames, channel);
}

int GeneralFileInput::seek(int bytes)
{
    return m_input.isNull() ? 0 : m_input->seek(bytes);
}

long GeneralFileInput::tell()
{
    return m_input.isNull() ? 0 : m_input->tell();
}

void GeneralFileInput::flush()
{
    if (!m_input.isNull())
        m_input->flush();
}

void GeneralFileInput::rewind()
{
    if (!m_input.isNull())
        m_input->rewind();
}

long long GeneralFileInput::position()
{
    return m_input.isNull() ? 0 : m_input->position();
}

void GeneralFileInput::gotoFrame(const int& frame, const int& channels)
{
    if (!m_input.isNull())
        m_input->gotoFrame(frame, channels);
}

void GeneralFileInput::gotoFrame(const int& frame)
{
    if (!m_input.isNull())
        m_input->gotoFrame(frame);
}

int GeneralFileInput::readFrames(const int& frame, float* target, const int& frames, const int& channels)
{
    return m_input.isNull() ? 0 : m_input->readFrames(frame, target, frames, channels);
}

int GeneralFileInput::readFrames(float* target, const int& frames, const int& channels)
{
    return m_input.isNull() ? 0 : m_input->readFrames(target, frames, channels);
}

bool GeneralFileInput::saveEbuInfo(const char* path)
{
    return !m_input.isNull() && m_input->saveEbuInfo(path);
}

bool GeneralFileInput::loadEbuInfo(const char* path)
{
    return !m_input.isNull() && m_input->loadEbuInfo(path);
}

MTools::Handle<EBUInfo> GeneralFileInput::ebuInfo() const
{
    return m_input.isNull() ? MTools::Handle<EBUInfo>() : m_input->ebuInfo();
}

FileInfo GeneralFileInput::fileInfo() const
{
    return m_input.isNull() ? FileInfo() : m_input->fileInfo();
}

QString GeneralFileInput::extentions() const
{
    return m_input.isNull() ? QString() : m_input->extentions();
}

FILE* GeneralFileInput::filePointer() const
{
    return m_input.isNull() ? nullptr : m_input->filePointer();
}

int GeneralFileInput::close()
{
    return m_input.isNull() ? 0 : m_input->close();
}

} // namespace Audio

namespace Audio {

void GeneralFileInput::createLTCData(const int& track)
{
    if (!m_input.isNull())
        m_input->createLTCData(track);
}

const LTCData& GeneralFileInput::getLTC(const int& audioFrame)
{
    static const LTCData none(-1, QString(), 30.0f);
    return m_input.isNull() ? none : m_input->getLTC(audioFrame);
}

int GeneralFileInput::getAudioFrameLTC(int h, int m, int s, int f)
{
    return m_input.isNull() ? -1 : m_input->getAudioFrameLTC(h, m, s, f);
}

int GeneralFileInput::getAudioFrameLTC(const QString& timecode)
{
    return m_input.isNull() ? -1 : m_input->getAudioFrameLTC(timecode);
}

bool GeneralFileInput::isLTCDataAvailable()
{
    return !m_input.isNull() && m_input->isLTCDataAvailable();
}

int GeneralFileInput::getLTCTrack()
{
    return m_input.isNull() ? -1 : m_input->getLTCTrack();
}

QString GeneralFileInput::ltcTimeCode(const int& audioFrame, bool userBits)
{
    return m_input.isNull() ? QString() : m_input->ltcTimeCode(audioFrame, userBits);
}

float GeneralFileInput::ltcFps()
{
    return m_input.isNull() ? 0.0f : m_input->ltcFps();
}

} // namespace Audio
