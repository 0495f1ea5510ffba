#include "WaveOutput.h"

#include "Common/FileUtil.h"
#include "Common/Util.h"

#include "FrameCount.h"

#include <QDebug>

namespace Audio {

WaveOutput::WaveOutput(const char* path, const Settings& settings, const QString& comment, MTools::Handle<EBUInfo> info,
    bool broadcastWave)
    : FileOutput(settings, comment, info)
{
    if (m_ebuInfo.isNull() && broadcastWave) {
        m_ebuInfo = MTools::Handle<EBUInfo>(new EBUInfo);
        m_ebuInfo->fill(QString::fromLocal8Bit(path), static_cast<int>(settings.sampleRate()), settings.bitsPerSample(),
            settings.channels());
    }
    Settings adjusted = settings;
    if (settings.bitsPerSample() == 24)
        adjusted.setFmt(Settings::Signed24Normal);
    else if (settings.bitsPerSample() == 16)
        adjusted.setFmt(Settings::LittleEndianSigned16);
    else
        adjusted.setFmt(Settings::Unsigned8);
    setSettings(adjusted);
    if (!create(path))
        qWarning().noquote() << "Can not create the ouput file: "
                             << QStringLiteral("\"%1\"").arg(QString::fromLocal8Bit(path));
}

WaveOutput::~WaveOutput()
{
    if (m_file)
        close();
}

bool WaveOutput::create(const char* path)
{
    m_file = std::fopen(path, "w");
    if (!m_file) {
        qWarning().noquote() << "WaveOutput: create error of the " << QString::fromLocal8Bit(path);
        return false;
    }
    if (std::fwrite("RIFF", 4, 1, m_file) != 1) {
        qWarning().noquote() << "WaveOutput: write error of the " << QString::fromLocal8Bit(path);
        dropFile();
        return false;
    }
    m_fileInfo.setSizeOffset(static_cast<unsigned int>(ftello(m_file)));
    bool ok = FileUtil::writeL(0, m_file, false) != 0 && std::fwrite("WAVE", 4, 1, m_file) == 1;
    unsigned int size = 4;

    if (ok && !m_ebuInfo.isNull()) {
        ok = m_ebuInfo->save(m_file);
        // An odd history is followed by the pad byte that every chunk walk expects.
        if (ok && m_ebuInfo->size() % 2 != 0)
            ok = FileUtil::writeB(0, m_file) != 0;
        size += static_cast<unsigned int>(((m_ebuInfo->size() + 1) & ~1) + 8);
    }

    const QByteArray comment = m_fileInfo.comment().toLocal8Bit();
    if (ok && !comment.isEmpty()) {
        const auto listSize = static_cast<unsigned int>((comment.size() + 14) & ~1);
        ok = std::fwrite("LIST", 4, 1, m_file) == 1 && FileUtil::writeL(listSize, m_file, false) != 0
            && std::fwrite("INFOICMT", 8, 1, m_file) == 1
            && FileUtil::writeL(static_cast<unsigned int>(comment.size() + 1), m_file, false) != 0
            && std::fwrite(comment.constData(), static_cast<size_t>(comment.size()) + 1, 1, m_file) == 1;
        if (ok && (comment.size() + 1) % 2 != 0)
            ok = FileUtil::writeB(0, m_file) != 0;
        size += listSize + 8;
    }

    const Settings format = settings();
    const auto blockAlign = static_cast<unsigned short>((format.bitsPerSample() / 8) * format.channels());
    ok = ok && std::fwrite("fmt ", 4, 1, m_file) == 1 && FileUtil::writeL(16, m_file, false) != 0
        && FileUtil::writeS(1, m_file, false) != 0
        && FileUtil::writeS(static_cast<unsigned short>(format.channels()), m_file, false) != 0
        && FileUtil::writeL(format.sampleRate(), m_file, false) != 0
        && FileUtil::writeL(format.sampleRate() * blockAlign, m_file, false) != 0
        && FileUtil::writeS(blockAlign, m_file, false) != 0
        && FileUtil::writeS(static_cast<unsigned short>(format.bitsPerSample()), m_file, false) != 0;
    size += 24;

    ok = ok && std::fwrite("data", 4, 1, m_file) == 1;
    if (ok)
        m_fileInfo.setDataOffset(static_cast<unsigned int>(ftello(m_file)));
    ok = ok && FileUtil::writeL(0, m_file, false) != 0;
    size += 8;
    m_fileInfo.setFileSize(size);
    m_fileInfo.setDataSize(0);
    if (!ok)
        dropFile();
    return ok;
}

int WaveOutput::write(char* data, int bytes)
{
    if (!m_file || bytes <= 0)
        return 0;
    const size_t written = std::fwrite(data, 1, static_cast<size_t>(bytes), m_file);
    m_fileInfo.setDataSize(m_fileInfo.dataSize() + static_cast<unsigned int>(written));
    if (written != static_cast<size_t>(bytes)) {
        qWarning("WaveOutput: error writing");
        return 0;
    }
    return bytes;
}

int WaveOutput::write(float* samples, int count)
{
    const Settings format = settings();
    if (count <= 0)
        return 0;
    m_intScratch.resize(static_cast<size_t>(count));
    int* ints = m_intScratch.data();
    switch (format.fmt()) {
    case Settings::Unsigned8:
        addToPeaks(samples, count);
        m_rawScratch.resize(static_cast<size_t>(count));
        Util::convertFloatTo8U(samples, ints, count);
        Util::convert8UToRaw(ints, m_rawScratch.data(), count);
        break;
    case Settings::LittleEndianSigned16:
        addToPeaks(samples, count);
        m_rawScratch.resize(static_cast<size_t>(count) * 2);
        Util::convertFloatTo16(samples, ints, count);
        Util::convert16UToRaw(ints, m_rawScratch.data(), count * 2, true);
        break;
    case Settings::Signed24Normal:
        addToPeaks(samples, count);
        m_rawScratch.resize(static_cast<size_t>(count) * 3);
        Util::convertFloatTo24(samples, ints, count);
        Util::convert24UToRaw(ints, m_rawScratch.data(), count * 3);
        break;
    default:
        qWarning("WaveOutput::write() Error: the following settings are not supported;");
        format.dump();
        return 0;
    }
    write(m_rawScratch.data(), static_cast<int>(m_rawScratch.size()));
    return 0;
}

void WaveOutput::setEnvelopeFormat(EBUEnvelope::Format format)
{
    m_envelopeFormat = format;
}

MTools::Handle<EBUInfo> WaveOutput::ebuInfo() const
{
    return m_ebuInfo;
}

bool WaveOutput::close()
{
    if (!m_file)
        return false;
    unsigned int dataSize = m_fileInfo.dataSize();
    if (dataSize % 2 != 0)
        FileUtil::writeB(0, m_file);
    const unsigned int paddedData = (dataSize + 1) & ~1u;
    addLastPeak();
    m_envelope->save(m_file, m_peakVector, m_envelopeFormat);
    // The envelope's own header is not counted: the RIFF size comes out 8 short, which
    // every reader of these files has always accepted.
    fseeko(m_file, m_fileInfo.sizeOffset(), SEEK_SET);
    FileUtil::writeL(
        m_fileInfo.fileSize() + paddedData + static_cast<unsigned int>(m_envelope->chunkSize()), m_file, false);
    fseeko(m_file, m_fileInfo.dataOffset(), SEEK_SET);
    FileUtil::writeL(dataSize, m_file, false);
    const int result = std::fclose(m_file);
    m_file = nullptr;
    if (result != 0) {
        qWarning("WaveOutput: error closing");
        return false;
    }
    return true;
}

int WaveOutput::version() const
{
    return 0;
}

double WaveOutput::duration() const
{
    const Settings format = settings();
    const int frameBytes = (format.bitsPerSample() / 8) * format.channels();
    if (frameBytes <= 0 || format.sampleRate() == 0)
        return 0.0;
    return static_cast<double>(m_fileInfo.dataSize() / static_cast<unsigned int>(frameBytes)) / format.sampleRate();
}

QString WaveOutput::timecode(int fps) const
{
    if (fps <= 0 || settings().sampleRate() == 0)
        return QString();
    const long long frame = start() * fps / settings().sampleRate();
    return MTools::FrameCount(frame, static_cast<float>(fps)).timecodeFromFrameCount();
}

long long WaveOutput::start() const
{
    return m_ebuInfo.isNull() ? 0 : m_ebuInfo->timeReference();
}

void WaveOutput::dropFile()
{
    if (m_file)
        std::fclose(m_file);
    m_file = nullptr;
}

} // namespace Audio
