#include "FuzzTargets.h"

#include "Common/EBUInfo.h"
#include "Input/AiffInput.h"
#include "Input/GeneralFileInput.h"
#include "Input/LTCDecoder.h"
#include "Input/WaveInput.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace AudioFuzz {

namespace {

// The input as a file in memory-backed /dev/shm, one per process, since the loaders
// read from a path.
QByteArray writeInput(const uint8_t* data, size_t size)
{
    static const QByteArray path = "/dev/shm/fuzz_FipAudio_" + QByteArray::number(getpid());
    FILE* file = std::fopen(path.constData(), "wb");
    if (!file)
        return QByteArray();
    if (size > 0)
        std::fwrite(data, 1, size, file);
    std::fclose(file);
    return path;
}

void check(bool condition)
{
    if (!condition)
        std::abort();
}

// Reads all the audio in blocks, a channel at a time from the middle, and raw bytes.
void readEverything(Audio::FileInput& input)
{
    const int channels = input.channels();
    check(channels >= 1);
    std::vector<float> samples(4096);
    const int block = 4096 / channels * channels;
    int total = 0;
    for (int got = -1; got != 0 && total < (1 << 24);) {
        got = input.read(samples.data(), block);
        check(got >= 0 && got <= block);
        total += got;
    }
    input.gotoFrame(static_cast<int>(input.fileInfo().numSamples() / 2 / static_cast<unsigned>(channels)));
    for (int channel = 0; channel < std::min(channels, 8); ++channel) {
        const int frames = input.readChannel(samples.data(), 64, channel);
        check(frames >= 0 && frames <= 64);
    }
    check(input.readChannel(samples.data(), 1, channels) == -1);
    input.rewind();
    char bytes[1000];
    const int got = input.read(bytes, sizeof bytes);
    check(got >= 0 && got <= static_cast<int>(sizeof bytes));
}

template <class Input> int loadAndRead(const uint8_t* data, size_t size)
{
    const QByteArray path = writeInput(data, size);
    Input input;
    if (!path.isEmpty() && input.load(path.constData(), true))
        readEverything(input);
    return 0;
}

} // namespace

int waveInput(const uint8_t* data, size_t size)
{
    return loadAndRead<Audio::WaveInput>(data, size);
}

int aiffInput(const uint8_t* data, size_t size)
{
    return loadAndRead<Audio::AiffInput>(data, size);
}

int generalFileInput(const uint8_t* data, size_t size)
{
    const QByteArray path = writeInput(data, size);
    // The envelopes made on demand go to a folder of this process, and are removed
    // again so that the next input starts without one.
    static const QString temp = QString::fromLatin1(path) + QStringLiteral("_temp");
    Audio::FileInput::setTempPath(temp);
    Audio::GeneralFileInput input;
    if (!path.isEmpty() && input.load(path.constData(), true)) {
        check(input.formatString() != QLatin1String("UNKNOWN"));
        readEverything(input);
        input.createPeakVector();
        QFile::remove(input.envelopeLocation());
        for (float zoom : { 1000.0f, 256.0f, 37.5f, 1.0f, 0.5f }) {
            for (int x : { 0, 3, 1000 })
                input.peakInfo(x, input.channels() - 1, zoom);
        }
        input.createLTCData(0);
        input.ltcTimeCode(0, false);
    }
    return 0;
}

int envelopeFile(const uint8_t* data, size_t size)
{
    const QByteArray path = writeInput(data, size);
    Audio::WaveInput input;
    if (!path.isEmpty() && input.loadEnvelope(path.constData())) {
        const Audio::PeakVector& peaks = *input.peakVector();
        check(peaks.peakChannels() < Audio::PeakVector::maximumChannels);
        check(static_cast<size_t>(peaks.numPeakFrames()) * 2 <= size);
    }
    return 0;
}

int ltcFile(const uint8_t* data, size_t size)
{
    const QByteArray path = writeInput(data, size);
    Audio::LTCDecoder decoder(nullptr);
    if (!path.isEmpty() && decoder.load(path.constData())) {
        check(decoder.words().size() * 14 + 8 <= size);
        decoder.ltcFps();
        if (!decoder.words().empty()) {
            const long long first = decoder.words().front().audioFrame();
            const long long last = decoder.words().back().audioFrame();
            for (long long frame : { first, (first + last) / 2, last })
                decoder.getLTC(static_cast<int>(frame)).timecode(25.0f, false);
        }
    }
    return 0;
}

int ebuInfo(const uint8_t* data, size_t size)
{
    const QByteArray path = writeInput(data, size);
    Audio::EBUInfo info;
    if (!path.isEmpty() && info.load(path.constData())) {
        check(info.size() >= Audio::EBUInfo::fixedSize);
        // 256 bytes of local 8-bit text: fewer characters where some take several bytes.
        check(info.description().size() <= Audio::EBUInfo::descriptionWidth);
        check(info.umidsString().size() == 8 * 24);
    }
    return 0;
}

} // namespace AudioFuzz
