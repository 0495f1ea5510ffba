#include "AudioFileDecoder.h"

#include <QFile>
#include <QFileInfo>

#include <mpg123.h>
#include <sndfile.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace QMMultiMedia {

namespace {

struct Mpg123Deleter
{
    void operator()(mpg123_handle* handle) const
    {
        mpg123_close(handle);
        mpg123_delete(handle);
    }
};

struct SndfileCloser
{
    void operator()(SNDFILE* file) const { sf_close(file); }
};

bool initialiseMpg123()
{
    // Needed once by older library versions, harmless with newer ones.
    static const bool ok = mpg123_init() == MPG123_OK;
    return ok;
}

// The most interleaved samples a file of this format may decode to.
qint64 sampleCeiling(long rate, int channels, double maximumSeconds)
{
    return static_cast<qint64>(maximumSeconds * rate) * channels;
}

bool plausibleFormat(long rate, int channels)
{
    return rate >= 1 && rate <= AudioFileDecoder::MaximumSampleRate && channels >= 1
        && channels <= AudioFileDecoder::MaximumChannels;
}

} // namespace

bool AudioFileDecoder::decode(const QString& path, DecodedSound* sound)
{
    return decode(path, sound, MaximumSeconds);
}

bool AudioFileDecoder::decode(const QString& path, DecodedSound* sound, double maximumSeconds)
{
    *sound = DecodedSound();
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > MaximumFileBytes)
        return false;
    const bool ok = QFileInfo(path).suffix().compare(QLatin1String("mp3"), Qt::CaseInsensitive) == 0
        ? decodeMp3(path, sound, maximumSeconds)
        : decodeWithSndfile(path, sound, maximumSeconds);
    if (!ok || sound->frames() == 0) {
        *sound = DecodedSound();
        return false;
    }
    return true;
}

bool AudioFileDecoder::decodeMp3(const QString& path, DecodedSound* sound, double maximumSeconds)
{
    if (!initialiseMpg123())
        return false;
    int error = MPG123_OK;
    std::unique_ptr<mpg123_handle, Mpg123Deleter> handle(mpg123_new(nullptr, &error));
    if (!handle)
        return false;
    mpg123_param(handle.get(), MPG123_ADD_FLAGS, MPG123_FORCE_FLOAT | MPG123_QUIET | MPG123_GAPLESS, 0.0);
    mpg123_format_none(handle.get());
    const long* rates = nullptr;
    size_t rateCount = 0;
    mpg123_rates(&rates, &rateCount);
    for (size_t i = 0; i < rateCount; ++i)
        mpg123_format(handle.get(), rates[i], MPG123_MONO | MPG123_STEREO, MPG123_ENC_FLOAT_32);

    if (mpg123_open(handle.get(), QFile::encodeName(path).constData()) != MPG123_OK)
        return false;
    long rate = 0;
    int channels = 0;
    int encoding = 0;
    if (mpg123_getformat(handle.get(), &rate, &channels, &encoding) != MPG123_OK || encoding != MPG123_ENC_FLOAT_32
        || channels < 1)
        return false;
    // Keep this one format for the whole stream.
    mpg123_format_none(handle.get());
    mpg123_format(handle.get(), rate, channels, encoding);

    // The length comes from the file's own header and may be anything: it
    // only sizes the first allocation, within the ceiling.
    const qint64 ceiling = sampleCeiling(rate, channels, maximumSeconds);
    const qint64 expected = static_cast<qint64>(mpg123_length(handle.get())) * channels;
    if (expected > 0)
        sound->samples.reserve(static_cast<int>(qMin(expected, ceiling)));

    QVector<float> chunk(16384);
    for (;;) {
        size_t done = 0;
        const int result = mpg123_read(handle.get(), reinterpret_cast<unsigned char*>(chunk.data()),
            static_cast<size_t>(chunk.size()) * sizeof(float), &done);
        const int count = static_cast<int>(done / sizeof(float));
        const int start = sound->samples.size();
        if (start + count > ceiling)
            return false;
        sound->samples.resize(start + count);
        std::copy(chunk.constBegin(), chunk.constBegin() + count, sound->samples.begin() + start);
        if (result == MPG123_DONE)
            break;
        if (result != MPG123_OK && result != MPG123_NEW_FORMAT)
            return false;
    }
    sound->sampleRate = static_cast<int>(rate);
    sound->channels = channels;
    return true;
}

namespace {

// libsndfile reads the file from memory: its chunk parsers make many small
// reads and seeks, and a damaged header (a comment chunk claiming tens of
// thousands of entries, say) would otherwise cost seconds of system calls.
struct MemoryFile
{
    QByteArray bytes;
    sf_count_t position = 0;

    static MemoryFile* of(void* data) { return static_cast<MemoryFile*>(data); }
    static sf_count_t length(void* data) { return of(data)->bytes.size(); }
    static sf_count_t seek(sf_count_t offset, int whence, void* data)
    {
        MemoryFile* file = of(data);
        const sf_count_t base = whence == SEEK_CUR ? file->position : whence == SEEK_END ? file->bytes.size() : 0;
        const sf_count_t target = base + offset;
        if (target < 0 || target > file->bytes.size())
            return -1;
        file->position = target;
        return target;
    }
    static sf_count_t read(void* target, sf_count_t count, void* data)
    {
        MemoryFile* file = of(data);
        const sf_count_t available = qBound(sf_count_t(0), file->bytes.size() - file->position, count);
        std::memcpy(target, file->bytes.constData() + file->position, static_cast<size_t>(available));
        file->position += available;
        return available;
    }
    static sf_count_t write(const void*, sf_count_t, void*) { return 0; }
    static sf_count_t tell(void* data) { return of(data)->position; }
};

} // namespace

bool AudioFileDecoder::decodeWithSndfile(const QString& path, DecodedSound* sound, double maximumSeconds)
{
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    MemoryFile memory { source.readAll(), 0 };
    SF_VIRTUAL_IO io { &MemoryFile::length, &MemoryFile::seek, &MemoryFile::read, &MemoryFile::write,
        &MemoryFile::tell };
    SF_INFO info = {};
    std::unique_ptr<SNDFILE, SndfileCloser> file(sf_open_virtual(&io, SFM_READ, &info, &memory));
    if (!file || !plausibleFormat(info.samplerate, info.channels) || info.frames <= 0
        || info.frames > sampleCeiling(info.samplerate, info.channels, maximumSeconds) / info.channels)
        return false;
    sound->samples.resize(static_cast<int>(info.frames * info.channels));
    const sf_count_t read = sf_readf_float(file.get(), sound->samples.data(), info.frames);
    if (read <= 0)
        return false;
    sound->samples.resize(static_cast<int>(read * info.channels));
    sound->sampleRate = info.samplerate;
    sound->channels = info.channels;
    return true;
}

} // namespace QMMultiMedia
