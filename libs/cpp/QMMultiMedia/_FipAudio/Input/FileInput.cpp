#include "FileInput.h"

#include "Common/FileUtil.h"
#include "Common/Production.h"
#include "Common/Util.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Audio {

namespace {

QList<FileInput*>& inputs()
{
    static QList<FileInput*> list;
    return list;
}

QString& temporaryPath()
{
    static QString path = QStringLiteral("/tmp");
    return path;
}

} // namespace

FileInput::FileInput()
{
    inputs().append(this);
}

FileInput::~FileInput()
{
    close();
    inputs().removeOne(this);
}

const QList<FileInput*>& FileInput::filesInUse()
{
    return inputs();
}

void FileInput::setTempPath(const QString& path)
{
    temporaryPath() = path;
}

QString FileInput::tempPath()
{
    return temporaryPath();
}

short FileInput::fmt() const
{
    return BaseInput::fmt();
}

int FileInput::readChunk(Chunk* chunk, int swapSize)
{
    if (!m_file)
        return -1;
    unsigned char header[8];
    const size_t got = std::fread(header, 1, sizeof header, m_file);
    if (got == sizeof header) {
        std::memcpy(chunk->id, header, 4);
        const unsigned int little
            = header[4] | (header[5] << 8) | (header[6] << 16) | (static_cast<unsigned int>(header[7]) << 24);
        chunk->size = swapSize ? FileUtil::swapL(little) : little;
    }
    return static_cast<int>(got);
}

bool FileInput::open(const char*)
{
    return false;
}

bool FileInput::load(const char* path, bool ignoreExtension)
{
    if (!ignoreExtension) {
        const QString lowerPath = QString::fromLocal8Bit(path).toLower();
        const QStringList endings = extentions().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const bool known = std::any_of(endings.cbegin(), endings.cend(),
            [&lowerPath](const QString& ending) { return lowerPath.endsWith(ending); });
        if (!known)
            return false;
    }
    struct stat status;
    if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size < 40)
        return false;
    if (m_file)
        close();
    if (!open(path))
        return false;
    m_endOfAudio = static_cast<long long>(m_fileInfo.dataOffset()) + m_fileInfo.dataSize() + 8;
    m_fileInfo.setUrl(QUrl::fromLocalFile(QString::fromLocal8Bit(path)));
    rewind();
    return true;
}

int FileInput::read(char* buffer, int bytes)
{
    if (!m_file || bytes <= 0)
        return 0;
    const long long start = ftello(m_file);
    if (start < 0 || start >= m_endOfAudio)
        return 0;
    long long count = static_cast<long long>(std::fread(buffer, 1, static_cast<size_t>(bytes), m_file));
    if (start + count > m_endOfAudio)
        count = m_endOfAudio - start;
    m_lastPosition = start;
    return static_cast<int>(std::max(0LL, count));
}

int FileInput::read(MTools::Handle<RawBuffer> buffer)
{
    return read(buffer->data(), buffer->size());
}

int FileInput::read(MTools::Handle<AudioFloatBuffer> buffer)
{
    if (buffer->frameSize() < 1)
        return 0;
    return read(buffer->data(), buffer->size()) / buffer->frameSize();
}

int FileInput::read(MTools::Handle<AudioFloatBuffer> buffer, unsigned long frames)
{
    Q_ASSERT(
        !((frames * static_cast<unsigned long>(buffer->frameSize())) > static_cast<unsigned long>(buffer->size())));
    if (buffer->frameSize() < 1)
        return 0;
    return read(buffer->data(), static_cast<int>(frames) * buffer->frameSize()) / buffer->frameSize();
}

int FileInput::read(float* samples, int count)
{
    const int width = bitsPerSample() / 8;
    if (width != 1 && width != 2 && width != 3) {
        qWarning().noquote() << "FileInput::read() Error: " << bitsPerSample() << "bits data format is not supported";
        return 0;
    }
    if (count <= 0)
        return 0;
    m_rawScratch.resize(static_cast<size_t>(count) * static_cast<size_t>(width));
    m_intScratch.resize(static_cast<size_t>(count));
    const int bytes = read(m_rawScratch.data(), count * width);
    const int got = bytes / width;
    const short format = fmt();
    int* ints = m_intScratch.data();
    switch (width) {
    case 1:
        Util::convertRawTo8U(m_rawScratch.data(), ints, got);
        if (format == Settings::Unsigned8)
            Util::convert8UToFloat(ints, samples, got);
        else
            Util::convert8ToFloat(ints, samples, got);
        break;
    case 2:
        Util::convertRawTo16U(m_rawScratch.data(), ints, got,
            format == Settings::LittleEndianUnsigned16 || format == Settings::LittleEndianSigned16);
        if (format == Settings::LittleEndianUnsigned16 || format == Settings::BigEndianUnsigned16)
            Util::convert16UToFloat(ints, samples, got);
        else
            Util::convert16ToFloat(ints, samples, got);
        break;
    default:
        Util::convertRawTo24U(m_rawScratch.data(), ints, got, format == Settings::Signed24Swapped);
        Util::convert24ToFloat(ints, samples, got);
        break;
    }
    return got;
}

int FileInput::readChannel(float* target, int frames, int channel)
{
    const int channelCount = channels();
    if (channel >= channelCount || channel < 0 || frames <= 0)
        return channel >= channelCount || channel < 0 ? -1 : 0;
    m_floatScratch.resize(static_cast<size_t>(frames) * static_cast<size_t>(channelCount));
    const int samples = read(m_floatScratch.data(), frames * channelCount);
    const int got = samples / channelCount;
    for (int i = 0; i < got; ++i)
        target[i] = m_floatScratch[static_cast<size_t>(i * channelCount + channel)];
    return got;
}

int FileInput::seek(int bytes)
{
    return seekInAudio(bytes);
}

int FileInput::seekInAudio(long long bytes)
{
    if (!m_file)
        return -1;
    return fseeko(m_file, static_cast<off_t>(m_fileInfo.dataOffset()) + 8 + bytes, SEEK_SET);
}

long FileInput::tell()
{
    if (!m_file)
        return 0;
    return static_cast<long>(ftello(m_file) - (static_cast<long long>(m_fileInfo.dataOffset()) + 8));
}

void FileInput::flush()
{
    if (m_file)
        std::fflush(m_file);
}

void FileInput::rewind()
{
    seek(0);
}

long long FileInput::position()
{
    return m_file ? ftello(m_file) : 0;
}

void FileInput::gotoFrame(const int& frame, const int& channels)
{
    seekInAudio(static_cast<long long>(frame) * channels * (bitsPerSample() / 8));
}

void FileInput::gotoFrame(const int& frame)
{
    gotoFrame(frame, channels());
}

int FileInput::readFrames(const int& frame, float* target, const int& frames, const int& channels)
{
    gotoFrame(frame, channels);
    return readFrames(target, frames, channels);
}

int FileInput::readFrames(float* target, const int& frames, const int& channels)
{
    if (channels < 1)
        return 0;
    return read(target, frames * channels) / channels;
}

void FileInput::createPeakVector()
{
    if (!m_envelope.isNull()) {
        const long long dataEnd = static_cast<long long>(m_fileInfo.dataOffset()) + 8
            + ((static_cast<long long>(m_fileInfo.dataSize()) + 1) & ~1LL);
        buildPeakVectorFromChunk(m_file, static_cast<long>(dataEnd + m_envelope->offsetToPeaks()));
        return;
    }
    m_envelope = MTools::Handle<EBUEnvelope>(new EBUEnvelope);
    const QString location = envelopeLocation();
    if (QFile::exists(location)) {
        loadEnvelope(QFile::encodeName(location).constData());
        return;
    }
    buildPeakVectorFromAudioData();
    rewind();
    const QString folder = tempPath() + QLatin1Char('/') + m_envelopeFolder;
    if (!QFileInfo::exists(folder))
        ::mkdir(QFile::encodeName(folder).constData(), 511);
    saveEnvelope(QFile::encodeName(location).constData(), EBUEnvelope::UnsignedShort);
}

PeakInfo FileInput::computePeak(int frame, int count, int ch)
{
    gotoFrame(frame);
    std::vector<float> samples(static_cast<size_t>(std::max(count, 1)));
    const int got = readChannel(samples.data(), count, ch);
    float minimum = 0.0f;
    float maximum = 0.0f;
    for (int i = 0; i < got; ++i) {
        minimum = std::min(minimum, samples[static_cast<size_t>(i)]);
        maximum = std::max(maximum, samples[static_cast<size_t>(i)]);
    }
    return PeakInfo(minimum, maximum);
}

PeakInfo FileInput::peakInfo(int x, int ch, float zoom)
{
    if (m_peakVector.isNull() || m_peakVector->isEmpty() || ch < 0 || ch >= PeakVector::maximumChannels)
        return PeakInfo();
    const float blockSize = static_cast<float>(m_peakBlockSize);
    PeakInfo peak;
    if (zoom >= blockSize) {
        const int index = zoom == blockSize ? x : static_cast<int>(static_cast<float>(x) * (zoom / blockSize));
        const PeakVector& peaks = *m_peakVector;
        if (index >= 0 && ch < peaks.peakChannels()
            && static_cast<size_t>(index) < m_peakVector->peakInfoVector(ch).size())
            peak = peaks.peakInfo(index, ch);
    } else if (zoom > 1.0f) {
        const PeakInfo* cached = m_peakCache.find(x, ch, zoom);
        if (cached) {
            peak = *cached;
        } else {
            peak = computePeak(static_cast<int>(static_cast<float>(x) * zoom), static_cast<int>(zoom), ch);
            m_peakCache.insert(x, ch, zoom, peak);
        }
    } else {
        const int frame = zoom == 1.0f ? x : static_cast<int>(static_cast<float>(x) * zoom);
        gotoFrame(frame);
        float sample = 0.0f;
        if (readChannel(&sample, 1, ch) != 1)
            sample = 0.0f;
        peak = PeakInfo(sample, 0.0f);
    }
    m_peakMinimum = peak.first();
    m_peakMaximum = peak.second();
    return peak;
}

bool FileInput::saveEnvelope(const char* path, const EBUEnvelope::Format& format)
{
    if (m_envelope.isNull())
        m_envelope = MTools::Handle<EBUEnvelope>(new EBUEnvelope);
    if (m_peakVector.isNull())
        m_peakVector = MTools::Handle<PeakVector>(new PeakVector);
    return m_envelope->save(path, *m_peakVector, format);
}

bool FileInput::loadEnvelope(const char* path)
{
    if (m_envelope.isNull())
        m_envelope = MTools::Handle<EBUEnvelope>(new EBUEnvelope);
    if (m_peakVector.isNull())
        m_peakVector = MTools::Handle<PeakVector>(new PeakVector);
    if (!m_envelope->load(path, *m_peakVector))
        return false;
    if (m_envelope->blockSize() > 0)
        m_peakBlockSize = m_envelope->blockSize();
    return true;
}

bool FileInput::buildPeakVectorFromChunk(FILE* file, const long& position)
{
    if (!file || m_envelope.isNull())
        return false;
    if (m_peakVector.isNull())
        m_peakVector = MTools::Handle<PeakVector>(new PeakVector);
    const long long place = ftello(file);
    const bool ok = m_envelope->readPeaks(file, position, *m_peakVector);
    fseeko(file, place, SEEK_SET);
    if (ok && m_envelope->blockSize() > 0)
        m_peakBlockSize = m_envelope->blockSize();
    return ok;
}

void FileInput::buildPeakVectorFromAudioData()
{
    if (m_peakVector.isNull())
        m_peakVector = MTools::Handle<PeakVector>(new PeakVector);
    m_peakVector->clear();
    const int channelCount = channels();
    if (channelCount < 1 || channelCount > PeakVector::maximumChannels)
        return;
    m_peakBlockSize = 256;
    rewind();
    // Many blocks a read: the reads, not the comparisons, set the pace.
    const int blocksPerRead = 64;
    std::vector<float> samples(static_cast<size_t>(m_peakBlockSize * blocksPerRead * channelCount));
    std::vector<float> minimum(static_cast<size_t>(channelCount));
    std::vector<float> maximum(static_cast<size_t>(channelCount));
    float peakOfPeaks = 0.0f;
    int peakFrame = 0;
    int frame = 0;
    for (int got = readFrames(samples.data(), m_peakBlockSize * blocksPerRead, channelCount); got > 0;
         got = readFrames(samples.data(), m_peakBlockSize * blocksPerRead, channelCount)) {
        for (int start = 0; start < got; start += m_peakBlockSize) {
            const int end = std::min(got, start + m_peakBlockSize);
            PeakVector::blockExtremes(samples.data() + static_cast<size_t>(start) * static_cast<size_t>(channelCount),
                end - start, channelCount, minimum.data(), maximum.data());
            for (int ch = 0; ch < channelCount; ++ch) {
                const float size = std::max(-minimum[static_cast<size_t>(ch)], maximum[static_cast<size_t>(ch)]);
                if (size > peakOfPeaks) {
                    peakOfPeaks = size;
                    peakFrame = frame + start;
                }
                m_peakVector->addPeak(minimum[static_cast<size_t>(ch)], maximum[static_cast<size_t>(ch)], ch);
            }
        }
        frame += got;
    }
    if (!m_envelope.isNull())
        m_envelope->setPosPeakOfPeaks(peakFrame);
}

float FileInput::peakMinimum() const
{
    return m_peakMinimum;
}

float FileInput::peakMaximum() const
{
    return m_peakMaximum;
}

QString FileInput::envelopeLocation() const
{
    QString name = m_fileInfo.url().toLocalFile();
    name.replace(QLatin1Char('/'), QLatin1Char('_'))
        .replace(QLatin1Char(':'), QLatin1Char('_'))
        .replace(QLatin1Char('.'), QLatin1Char('_'));
    return tempPath() + QLatin1Char('/') + m_envelopeFolder + QLatin1Char('/') + name + QStringLiteral(".bef");
}

QString FileInput::tempFilePath()
{
    return tempPath() + QStringLiteral("/AudioTemp/");
}

QString FileInput::tempFilePathAndName() const
{
    QString name = m_fileInfo.url().toLocalFile();
    name.replace(QLatin1Char('/'), QLatin1Char('_'))
        .replace(QLatin1Char(':'), QLatin1Char('_'))
        .replace(QLatin1Char('.'), QLatin1Char('_'));
    return tempFilePath() + name;
}

float FileInput::calculateZoom(int width) const
{
    if (width <= 0 || channels() < 1)
        return 0.0f;
    return static_cast<float>(m_fileInfo.numSamples()) / static_cast<float>(channels()) / static_cast<float>(width);
}

bool FileInput::saveEbuInfo(const char* path)
{
    return !m_ebuInfo.isNull() && m_ebuInfo->save(path);
}

bool FileInput::loadEbuInfo(const char* path)
{
    if (m_ebuInfo.isNull())
        m_ebuInfo = MTools::Handle<EBUInfo>(new EBUInfo);
    return m_ebuInfo->load(path);
}

MTools::Handle<EBUInfo> FileInput::ebuInfo() const
{
    return m_ebuInfo;
}

MTools::Handle<EBUEnvelope> FileInput::ebuEnvelope() const
{
    return m_envelope;
}

MTools::Handle<PeakVector> FileInput::peakVector() const
{
    return m_peakVector;
}

FileInfo FileInput::fileInfo() const
{
    return m_fileInfo;
}

QString FileInput::extentions() const
{
    return QString();
}

FILE* FileInput::filePointer() const
{
    return m_file;
}

long long FileInput::audioBytesInFile() const
{
    struct stat status;
    if (!m_file || ::fstat(fileno(m_file), &status) != 0)
        return 0;
    const long long start = static_cast<long long>(m_fileInfo.dataOffset()) + 8;
    return std::max(0LL, std::min<long long>(status.st_size, m_endOfAudio) - start);
}

int FileInput::close()
{
    if (!m_file)
        return 0;
    const int result = std::fclose(m_file);
    m_file = nullptr;
    return result;
}

MTools::Handle<LTCDecoder> FileInput::ltcDecoder()
{
    if (m_ltcDecoder.isNull())
        m_ltcDecoder = MTools::Handle<LTCDecoder>(new LTCDecoder(this));
    return m_ltcDecoder;
}

void FileInput::createLTCData(const int& track)
{
    ltcDecoder()->process(track);
}

const LTCData& FileInput::getLTC(const int& audioFrame)
{
    return ltcDecoder()->getLTC(audioFrame);
}

int FileInput::getAudioFrameLTC(int h, int m, int s, int f)
{
    return ltcDecoder()->getAudioFrame(h, m, s, f);
}

int FileInput::getAudioFrameLTC(const QString& timecode)
{
    const QString digits = timecode.trimmed();
    if (digits.size() != 11)
        return -1;
    const auto part = [&digits](int at) { return digits.midRef(at, 2).toInt(); };
    return getAudioFrameLTC(part(0), part(3), part(6), part(9));
}

bool FileInput::isLTCDataAvailable()
{
    return ltcDecoder()->isLTCDataAvailable();
}

int FileInput::getLTCTrack()
{
    return ltcDecoder()->getLTCTrack();
}

QString FileInput::ltcTimeCode(const int& audioFrame, bool userBits)
{
    float fps = m_ebuInfo.isNull() ? 0.0f : m_ebuInfo->fps();
    if (static_cast<int>(fps) == 0)
        fps = Production::fps();
    return ltcDecoder()->getLTC(audioFrame).timecode(fps, userBits);
}

float FileInput::ltcFps()
{
    return ltcDecoder()->ltcFps();
}

QString FileInput::scene() const
{
    return m_ebuInfo.isNull() ? QString() : m_ebuInfo->scene();
}

QString FileInput::take() const
{
    return m_ebuInfo.isNull() ? QString() : m_ebuInfo->take();
}

void FileInput::dropFile()
{
    close();
}

QByteArray FileInput::readText(long long bytes)
{
    QByteArray text;
    char piece[4096];
    while (bytes > 0 && m_file) {
        const size_t wanted = static_cast<size_t>(std::min<long long>(bytes, sizeof piece));
        const size_t got = std::fread(piece, 1, wanted, m_file);
        text.append(piece, static_cast<int>(got));
        if (got < wanted)
            break;
        bytes -= static_cast<long long>(got);
    }
    return text;
}

} // namespace Audio
