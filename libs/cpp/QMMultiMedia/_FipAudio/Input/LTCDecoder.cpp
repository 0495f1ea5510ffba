#include "LTCDecoder.h"

#include "FileInput.h"

#include "Common/FileUtil.h"
#include "Common/Production.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace Audio {

namespace {

constexpr int recordSize = 14;
constexpr int processFrames = 8192;

} // namespace

LTCDecoder::LTCDecoder(FileInput* input)
    : m_input(input)
{
    if (!m_input)
        return;
    const int frameRate = static_cast<int>(fps());
    m_detectionLength = static_cast<int>(m_input->sampleRate()) / frameRate * 10;
    m_ltcTrack = -1;
    const int channels = m_input->channels();
    const long long frames = channels > 0 ? m_input->fileInfo().numSamples() / static_cast<unsigned>(channels) : 0;
    if (channels < 1 || m_detectionLength < 1 || frames < m_detectionLength)
        return;
    // Headers may claim far more audio than there is: ten frames must really be there
    // before room is made for them.
    const long long needed = static_cast<long long>(m_detectionLength) * channels * (m_input->bitsPerSample() / 8);
    if (needed > m_input->audioBytesInFile())
        return;
    std::vector<float> samples(static_cast<size_t>(m_detectionLength) * static_cast<size_t>(channels));
    m_input->rewind();
    if (m_input->read(samples.data(), static_cast<int>(samples.size())) < static_cast<int>(samples.size()))
        return;
    std::vector<float> track(static_cast<size_t>(m_detectionLength));
    for (int ch = channels - 1; ch >= 0 && m_ltcTrack < 0; --ch) {
        for (int i = 0; i < m_detectionLength; ++i)
            track[static_cast<size_t>(i)]
                = samples[static_cast<size_t>(i) * static_cast<size_t>(channels) + static_cast<size_t>(ch)];
        detectLTC(track.data());
    }
    m_currentLevel = 0.0f;
}

LTCDecoder::~LTCDecoder() = default;

float LTCDecoder::fps() const
{
    float rate = m_input && !m_input->ebuInfo().isNull() ? m_input->ebuInfo()->fps() : 0.0f;
    if (static_cast<int>(rate) <= 0)
        rate = Production::fps();
    return static_cast<int>(rate) > 0 ? rate : 30.0f;
}

void LTCDecoder::initIgnoreValue(const float* samples)
{
    float largest = 0.0f;
    for (int i = 0; i < m_detectionLength; ++i)
        largest = std::max(largest, std::fabs(samples[i]));
    m_ignoreValue = largest / 7.0f;
}

void LTCDecoder::normalizeFrame(float& sample)
{
    if (std::fabs(sample) < m_ignoreValue) {
        sample = m_lastLevel;
    } else if (sample > 0.0f) {
        sample = 1.0f;
        m_lastLevel = 1.0f;
    } else if (sample < 0.0f) {
        sample = -1.0f;
        m_lastLevel = -1.0f;
    }
}

void LTCDecoder::normalizeFrame(float* samples, int count)
{
    for (int i = 0; i < count; ++i)
        normalizeFrame(samples[i]);
}

void LTCDecoder::calibrate(float* samples)
{
    if (!samples || m_detectionLength < 1) {
        m_ignoreValue = 0.0f;
        m_samplesPerBit = 200;
    } else {
        initIgnoreValue(samples);
        normalizeFrame(samples, m_detectionLength);
        int shortest = 100;
        int previousChange = -1;
        int level = 0;
        for (int i = 0; i < m_detectionLength; ++i) {
            const int value = static_cast<int>(samples[i]);
            if (value == 0)
                continue;
            if (level != 0 && value != level) {
                if (previousChange >= 0)
                    shortest = std::min(shortest, i - previousChange);
                previousChange = i;
            }
            level = value;
        }
        m_samplesPerBit = 2 * shortest;
    }
    if (m_input)
        m_input->rewind();
    m_lastLevel = 0.0f;
}

bool LTCDecoder::detectLTC(float* samples)
{
    calibrate(samples);
    if (m_samplesPerBit < 4) {
        m_bits.clear();
        m_samplesPerBit = 0;
        return false;
    }
    m_count = 0;
    m_inHalfCell = false;
    for (int i = 0; i < m_detectionLength; ++i)
        slice(samples[i], false);
    m_bits.clear();
    return false;
}

void LTCDecoder::slice(float x, bool counting)
{
    const int level = static_cast<int>(x);
    if (m_inHalfCell) {
        // The middle change of a "1": taken as the new level, nothing appended.
        if (level != 0 && level != static_cast<int>(m_currentLevel)) {
            m_currentLevel = x;
            m_inHalfCell = false;
            m_count = 0;
        }
        return;
    }
    if (level == 0) {
        if (counting)
            ++m_count;
        return;
    }
    if (static_cast<int>(m_currentLevel) == 0 || level == static_cast<int>(m_currentLevel)) {
        if (static_cast<int>(m_currentLevel) == 0)
            m_currentLevel = x;
        ++m_count;
        return;
    }
    m_currentLevel = x;
    if (std::abs(m_samplesPerBit - m_count) <= m_samplesPerBit / 4) {
        m_bits += QLatin1Char('0');
        m_count = counting ? 1 : 0;
    } else {
        m_bits += QLatin1Char('1');
        m_inHalfCell = true;
        m_count = 0;
    }
    if (endIsSync())
        m_words.emplace_back(m_audioFrame, m_bits.right(80), fps());
}

void LTCDecoder::process(const int& track)
{
    if (m_samplesPerBit == 0) {
        qWarning("The LTC decoder is not calibrated");
        return;
    }
    const int channels = m_input ? m_input->channels() : 0;
    if (track < 0 || track >= channels)
        return;
    m_input->rewind();
    m_bits.clear();
    m_count = 0;
    m_inHalfCell = false;
    m_audioFrame = 0;
    std::vector<float> block(static_cast<size_t>(channels) * processFrames);
    for (int got = m_input->read(block.data(), static_cast<int>(block.size())); got > 0;
         got = m_input->read(block.data(), static_cast<int>(block.size()))) {
        for (int i = track; i < got; i += channels) {
            float x = block[static_cast<size_t>(i)];
            normalizeFrame(x);
            slice(x, true);
            ++m_audioFrame;
        }
    }
}

bool LTCDecoder::endIsSync() const
{
    return false;
}

int LTCDecoder::getLTCTrack() const
{
    return m_ltcTrack;
}

bool LTCDecoder::isLTCDataAvailable() const
{
    return !m_words.empty();
}

const LTCData& LTCDecoder::getLTC(const int& audioFrame) const
{
    if (m_words.empty())
        return m_invalidWord;
    if (audioFrame < m_words.front().audioFrame() || audioFrame > m_words.back().audioFrame()) {
        qWarning("LTCDecoder::getLTC() : Error LTC for this frame does not exists");
        return m_invalidWord;
    }
    const int last = static_cast<int>(m_words.size()) - 1;
    if (last == 0)
        return m_words.front();
    const long long spacing = m_words[1].audioFrame() - m_words[0].audioFrame();
    long long guess = spacing > 0 ? (audioFrame - m_words[0].audioFrame()) / spacing : 0;
    int i = static_cast<int>(std::max(0LL, std::min<long long>(guess, last - 1)));
    if (audioFrame < m_words[static_cast<size_t>(i)].audioFrame()) {
        while (i > 0 && m_words[static_cast<size_t>(i)].audioFrame() > audioFrame)
            --i;
    } else {
        while (i < last - 1 && m_words[static_cast<size_t>(i) + 1].audioFrame() < audioFrame)
            ++i;
    }
    return m_words[static_cast<size_t>(i) + 1];
}

int LTCDecoder::getAudioFrame(int h, int m, int s, int f) const
{
    for (const LTCData& word : m_words) {
        if (word.hour() == h && word.minute() == m && word.second() == s && word.frame() == f)
            return static_cast<int>(word.audioFrame());
    }
    return -1;
}

float LTCDecoder::ltcFps()
{
    if (m_words.empty())
        return 0.0f;
    if (m_highestFrame != 0.0f)
        return m_highestFrame + 1.0f;
    const size_t count = std::min<size_t>(60, m_words.size());
    for (size_t i = 0; i < count; ++i)
        m_highestFrame = std::max(m_highestFrame, static_cast<float>(m_words[i].frame()));
    return m_highestFrame + 1.0f;
}

bool LTCDecoder::save(const char* path)
{
    if (m_words.empty())
        return false;
    FILE* file = std::fopen(path, "w");
    if (!file) {
        qWarning("LTCDecoder::save: file creation error");
        return false;
    }
    bool ok = std::fwrite("LTCC", 4, 1, file) == 1
        && FileUtil::writeL(static_cast<unsigned int>(m_words.size()), file, false) != 0;
    for (const LTCData& word : m_words) {
        unsigned char record[recordSize];
        const auto frame = static_cast<unsigned long long>(word.audioFrame());
        record[0] = word.isValid() ? 1 : 0;
        for (int i = 0; i < 4; ++i)
            record[1 + i] = static_cast<unsigned char>(frame >> (8 * i));
        record[5] = static_cast<unsigned char>(word.hour());
        record[6] = static_cast<unsigned char>(word.minute());
        record[7] = static_cast<unsigned char>(word.second());
        record[8] = static_cast<unsigned char>(word.frame());
        record[9] = word.drop() ? 1 : 0;
        for (int group = 1; group <= 4; ++group)
            record[9 + group] = static_cast<unsigned char>(word.bitGroup(group));
        ok = ok && std::fwrite(record, recordSize, 1, file) == 1;
    }
    ok = std::fclose(file) == 0 && ok;
    return load(path) && ok;
}

bool LTCDecoder::load(const char* path)
{
    FILE* file = std::fopen(path, "r");
    if (!file) {
        qWarning("LTCDecoder::load: file read error");
        return false;
    }
    unsigned char header[8] = {};
    const bool hasHeader = std::fread(header, 1, sizeof header, file) == sizeof header;
    const unsigned int count
        = header[4] | (header[5] << 8) | (header[6] << 16) | (static_cast<unsigned int>(header[7]) << 24);
    fseeko(file, 0, SEEK_END);
    const long long available = ftello(file) - 8;
    // Records the file does not hold make it no LTC file as much as a wrong id does.
    if (!hasHeader || std::memcmp(header, "LTCC", 4) != 0 || static_cast<long long>(count) * recordSize > available) {
        qWarning("LTCDecoder::load error: not ltc file");
        std::fclose(file);
        return false;
    }
    fseeko(file, 8, SEEK_SET);
    m_words.clear();
    m_highestFrame = 0.0f;
    m_words.reserve(count);
    for (unsigned int n = 0; n < count; ++n) {
        unsigned char r[recordSize];
        if (std::fread(r, 1, recordSize, file) != recordSize)
            break;
        const unsigned int frame = r[1] | (r[2] << 8) | (r[3] << 16) | (static_cast<unsigned int>(r[4]) << 24);
        m_words.emplace_back(r[0] != 0, static_cast<long long>(frame), static_cast<char>(r[5]), static_cast<char>(r[6]),
            static_cast<char>(r[7]), static_cast<char>(r[8]), r[9] != 0, static_cast<char>(r[10]),
            static_cast<char>(r[11]), static_cast<char>(r[12]), static_cast<char>(r[13]));
    }
    std::fclose(file);
    return true;
}

void LTCDecoder::dump() const
{
    qDebug() << "Samples per bit =" << m_samplesPerBit << "Ignore value =" << m_ignoreValue << "Track =" << m_ltcTrack
             << "Words =" << m_words.size();
    for (const LTCData& word : m_words)
        qDebug() << word.audioFrame() << word.timecode(30.0f, false);
}

int LTCDecoder::samplesPerBit() const
{
    return m_samplesPerBit;
}

float LTCDecoder::ignoreValue() const
{
    return m_ignoreValue;
}

QString LTCDecoder::bits() const
{
    return m_bits;
}

const std::vector<LTCData>& LTCDecoder::words() const
{
    return m_words;
}

} // namespace Audio
