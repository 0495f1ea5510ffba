// libFuzzer target of the sample decoder: every input is decoded once as an
// mp3 (libmpg123) and once as a wave or AIFF file (libsndfile), from a file
// in memory-backed /dev/shm, since the decoder reads from a path.
#include "AudioFileDecoder.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <unistd.h>

#include <cstddef>
#include <cstdint>

namespace {

void decodeAs(const QString& path, const uint8_t* data, size_t size)
{
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return;
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    }
    QMMultiMedia::DecodedSound sound;
    if (QMMultiMedia::AudioFileDecoder::decode(path, &sound)) {
        // What the decoder hands out must be whole frames of a sane format.
        if (sound.channels < 1 || sound.sampleRate < 1 || sound.samples.size() % sound.channels != 0)
            __builtin_trap();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QString base = QStringLiteral("/dev/shm/fuzz_AudioFileDecoder_%1").arg(getpid());
    decodeAs(base + QStringLiteral(".mp3"), data, size);
    decodeAs(base + QStringLiteral(".wav"), data, size);
    return 0;
}
