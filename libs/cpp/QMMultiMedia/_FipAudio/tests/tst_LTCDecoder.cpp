#include "Input/LTCDecoder.h"
#include "Input/WaveInput.h"
#include "Output/WaveOutput.h"

#include <QtTest>

#include <ltc.h>

#include <cmath>
#include <cstring>
#include <random>

using Audio::LTCData;
using Audio::Settings;
using Audio::WaveInput;
using Audio::WaveOutput;

namespace {

// LTC audio made by libltc: the samples, the encoder's words as 80 characters each,
// and the audio frame at which each word starts.
struct Encoded
{
    std::vector<float> samples;
    QStringList words;
    QList<long long> starts;
};

QString frameBits(const LTCFrame& frame)
{
    unsigned char bytes[10];
    std::memcpy(bytes, &frame, sizeof bytes);
    QString bits;
    for (int i = 0; i < 80; ++i)
        bits += (bytes[i / 8] >> (i % 8)) & 1 ? QLatin1Char('1') : QLatin1Char('0');
    return bits;
}

Encoded encode(int rate, double fps, int frames, bool noisy, unsigned long userBits)
{
    const LTC_TV_STANDARD standard = std::lround(fps) == 25 ? LTC_TV_625_50
        : std::lround(fps) == 24                            ? LTC_TV_FILM_24
                                                            : LTC_TV_525_60;
    LTCEncoder* encoder = ltc_encoder_create(rate, fps, standard, 0);
    SMPTETimecode start;
    std::memset(&start, 0, sizeof start);
    start.hours = 13;
    start.mins = 59;
    start.secs = 58;
    start.frame = 3;
    ltc_encoder_set_timecode(encoder, &start);
    ltc_encoder_set_user_bits(encoder, userBits);
    std::mt19937 random(7);
    std::uniform_real_distribution<float> noise(-0.04f, 0.04f);
    Encoded result;
    std::vector<ltcsnd_sample_t> buffer(ltc_encoder_get_buffersize(encoder));
    for (int n = 0; n < frames; ++n) {
        LTCFrame frame;
        ltc_encoder_get_frame(encoder, &frame);
        result.words << frameBits(frame);
        result.starts << static_cast<long long>(result.samples.size());
        ltc_encoder_encode_frame(encoder);
        const int count = ltc_encoder_copy_buffer(encoder, buffer.data());
        // From the middle on, the level drops to 40 %.
        const float gain = noisy && n >= frames / 2 ? 0.4f : 1.0f;
        for (int i = 0; i < count; ++i)
            result.samples.push_back(
                gain * (buffer[static_cast<size_t>(i)] - 128) / 128.0f + (noisy ? noise(random) : 0.0f));
        ltc_encoder_inc_timecode(encoder);
    }
    ltc_encoder_free(encoder);
    return result;
}

} // namespace

// The LTC decoder (Audio::LTCDecoder; libltc has a type of that name) against libltc's encoder: calibration, slicing,
// words from bits, and the "LTCC" side files.
class tst_LTCDecoder : public QObject
{
    Q_OBJECT

private slots:
    void decodesLibltcAudio_data();
    void decodesLibltcAudio();
    void sideFileRoundTrip();
    void badSideFiles_data();
    void badSideFiles();
    void silenceAndShortFiles();

private:
    QByteArray writeStereo(const std::vector<float>& ltc, int rate);

    QTemporaryDir m_dir;
};

QByteArray tst_LTCDecoder::writeStereo(const std::vector<float>& ltc, int rate)
{
    const QByteArray path = m_dir.filePath(QStringLiteral("ltc.wav")).toLocal8Bit();
    WaveOutput output(path.constData(), Settings(static_cast<unsigned>(rate), 2, 0, 16));
    // LTC on the first channel, a tone on the second.
    std::vector<float> frames(ltc.size() * 2);
    for (size_t i = 0; i < ltc.size(); ++i) {
        frames[2 * i] = std::max(-1.0f, std::min(1.0f, ltc[i]));
        frames[2 * i + 1] = 0.5f * std::sin(static_cast<float>(i) * 0.03f);
    }
    output.write(frames.data(), static_cast<int>(frames.size()));
    output.close();
    return path;
}

void tst_LTCDecoder::decodesLibltcAudio_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<double>("fps");
    QTest::addColumn<bool>("noisy");

    for (bool noisy : { false, true }) {
        const QByteArray kind = noisy ? ", noise and a level drop" : ", clean";
        QTest::newRow(("24 fps at 48 kHz" + kind).constData()) << 48000 << 24.0 << noisy;
        QTest::newRow(("25 fps at 48 kHz" + kind).constData()) << 48000 << 25.0 << noisy;
        QTest::newRow(("29.97 drop-frame at 48 kHz" + kind).constData()) << 48000 << 29.97 << noisy;
        QTest::newRow(("30 fps at 44.1 kHz" + kind).constData()) << 44100 << 30.0 << noisy;
        QTest::newRow(("25 fps at 44.1 kHz" + kind).constData()) << 44100 << 25.0 << noisy;
    }
}

void tst_LTCDecoder::decodesLibltcAudio()
{
    QFETCH(int, rate);
    QFETCH(double, fps);
    QFETCH(bool, noisy);

    const unsigned long userBits = 0x9a7c53e1;
    const Encoded encoded = encode(rate, fps, 40, noisy, userBits);
    WaveInput input;
    QVERIFY(input.load(writeStereo(encoded.samples, rate).constData()));
    Audio::LTCDecoder decoder(&input);

    // A bit cell is twice the shortest pulse found in the first ten frames.
    const double trueBit = rate / (fps * 80.0);
    QVERIFY2(std::fabs(decoder.samplesPerBit() - trueBit) <= 2.0,
        qPrintable(QStringLiteral("%1 samples per bit for %2").arg(decoder.samplesPerBit()).arg(trueBit)));
    QCOMPARE(decoder.getLTCTrack(), -1);

    decoder.process(0);
    // From the second word on, the bits are the encoder's, up to the last word, whose
    // closing change is never followed by another.
    const QString expected = encoded.words.mid(1).join(QString());
    const QString bits = decoder.bits();
    const int at = bits.indexOf(encoded.words[1] + encoded.words[2]);
    QVERIFY2(at >= 0 && at < 200, qPrintable(QStringLiteral("second word found at %1").arg(at)));
    QCOMPARE(bits.mid(at, expected.size() - 80), expected.left(expected.size() - 80));
    QVERIFY(decoder.words().empty());

    // The words of the encoder as the Part's table reads them.
    for (int n = 0; n < encoded.words.size(); n += 13) {
        const LTCData word(encoded.starts[n] + 1, encoded.words[n], static_cast<float>(fps));
        QVERIFY(word.isValid());
        SMPTETimecode time;
        LTCFrame frame;
        std::memset(&frame, 0, sizeof frame);
        unsigned char bytes[10] = {};
        for (int i = 0; i < 80; ++i)
            bytes[i / 8] |= static_cast<unsigned char>((encoded.words[n][i] == QLatin1Char('1')) << (i % 8));
        std::memcpy(&frame, bytes, sizeof bytes);
        ltc_frame_to_time(&time, &frame, 0);
        QCOMPARE(static_cast<int>(word.hour()), static_cast<int>(time.hours));
        QCOMPARE(static_cast<int>(word.minute()), static_cast<int>(time.mins));
        QCOMPARE(static_cast<int>(word.second()), static_cast<int>(time.secs));
        QCOMPARE(static_cast<int>(word.frame()), static_cast<int>(time.frame));
        QCOMPARE(word.drop(), fps != 24.0 && fps != 25.0 && frame.dfbit == 1);
        QCOMPARE(word.drop(), std::lround(fps * 100) == 2997);
        QString flagged = encoded.words[n];
        flagged[10] = QLatin1Char('1');
        QCOMPARE(LTCData(1, flagged, static_cast<float>(fps)).drop(), fps != 24.0 && fps != 25.0);
        // Each group: the low nibble, and three bits of the high one from the value 32 on.
        for (int group = 1; group <= 4; ++group) {
            const auto nibble = [userBits](int index) { return static_cast<int>((userBits >> (4 * index)) & 0xf); };
            QCOMPARE(word.bitGroup(group), nibble(2 * group - 2) | ((nibble(2 * group - 1) & 7) << 5));
        }
    }
}

void tst_LTCDecoder::sideFileRoundTrip()
{
    // 30 words of 25 frames a second, made by libltc, each at its audio position.
    const Encoded encoded = encode(48000, 25.0, 30, false, 0x01020304);
    QByteArray file("LTCC");
    const auto le32 = [](quint32 value) { return QByteArray(reinterpret_cast<const char*>(&value), 4); };
    file += le32(30);
    for (int n = 0; n < 30; ++n) {
        const LTCData word(encoded.starts[n] + 1920, encoded.words[n], 25.0f);
        file += char(1) + le32(static_cast<quint32>(word.audioFrame())) + char(word.hour()) + char(word.minute())
            + char(word.second()) + char(word.frame()) + char(word.drop()) + char(word.bitGroup(1))
            + char(word.bitGroup(2)) + char(word.bitGroup(3)) + char(word.bitGroup(4));
    }
    const QString first = m_dir.filePath(QStringLiteral("first.ltcc"));
    const QString second = m_dir.filePath(QStringLiteral("second.ltcc"));
    QFile out(first);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(file);
    out.close();

    Audio::LTCDecoder decoder(nullptr);
    QVERIFY(decoder.load(first.toLocal8Bit().constData()));
    QCOMPARE(static_cast<int>(decoder.words().size()), 30);
    QVERIFY(decoder.save(second.toLocal8Bit().constData()));
    QFile saved(second);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), file);
    QCOMPARE(static_cast<int>(decoder.words().size()), 30);

    // 13:59:58:03 onwards, 1920 samples a frame: 25 frames a second from the frames 0 to 24.
    QCOMPARE(decoder.ltcFps(), 25.0f);
    QCOMPARE(decoder.getAudioFrame(13, 59, 59, 0), 1920 + 22 * 1920);
    QCOMPARE(decoder.getAudioFrame(1, 2, 3, 4), -1);
    // A position answers the word that ends its span; a word's own position answers the next.
    QCOMPARE(decoder.getLTC(1920).audioFrame(), 2 * 1920LL);
    QCOMPARE(decoder.getLTC(1921).audioFrame(), 2 * 1920LL);
    QCOMPARE(decoder.getLTC(20 * 1920 - 1).audioFrame(), 20 * 1920LL);
    QCOMPARE(decoder.getLTC(20 * 1920).audioFrame(), 21 * 1920LL);
    QCOMPARE(decoder.getLTC(20 * 1920 - 1).timecode(25.0f, false), QStringLiteral("13:59:58:22"));
    QCOMPARE(decoder.getLTC(30 * 1920).frame(), static_cast<char>(7));
    QTest::ignoreMessage(QtWarningMsg, "LTCDecoder::getLTC() : Error LTC for this frame does not exists");
    QVERIFY(!decoder.getLTC(1919).isValid());
}

void tst_LTCDecoder::badSideFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("words");

    const QByteArray record("\x01\x10\x00\x00\x00\x01\x02\x03\x04\x00\x00\x00\x00\x00", 14);
    QTest::newRow("one record") << QByteArray("LTCC\x01\x00\x00\x00", 8) + record << QString() << 1;
    QTest::newRow("no records") << QByteArray("LTCC\x00\x00\x00\x00", 8) << QString() << 0;
    QTest::newRow("wrong id") << QByteArray("LTCD\x01\x00\x00\x00", 8) + record
                              << QStringLiteral("LTCDecoder::load error: not ltc file") << -1;
    QTest::newRow("count larger than the file") << QByteArray("LTCC\x02\x00\x00\x00", 8) + record
                                                << QStringLiteral("LTCDecoder::load error: not ltc file") << -1;
    QTest::newRow("cut in a record") << QByteArray("LTCC\x01\x00\x00\x00", 8) + record.left(9)
                                     << QStringLiteral("LTCDecoder::load error: not ltc file") << -1;
    QTest::newRow("cut in the header") << QByteArray("LTC") << QStringLiteral("LTCDecoder::load error: not ltc file")
                                       << -1;
    QTest::newRow("missing") << QByteArray() << QStringLiteral("LTCDecoder::load: file read error") << -1;
}

void tst_LTCDecoder::badSideFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    QFETCH(int, words);

    const QString path = m_dir.filePath(QStringLiteral("bad.ltcc"));
    QFile::remove(path);
    if (!bytes.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    if (!message.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qPrintable(message));
    Audio::LTCDecoder decoder(nullptr);
    QCOMPARE(decoder.load(path.toLocal8Bit().constData()), words >= 0);
    QCOMPARE(static_cast<int>(decoder.words().size()), std::max(words, 0));
    if (words == 1)
        QCOMPARE(decoder.getLTC(16).timecode(25.0f, false), QStringLiteral("01:02:03:04"));
}

void tst_LTCDecoder::silenceAndShortFiles()
{
    {
        const std::vector<float> silence(48000, 0.0f);
        WaveInput input;
        QVERIFY(input.load(writeStereo(silence, 48000).constData()));
        Audio::LTCDecoder decoder(&input);
        QCOMPARE(decoder.ignoreValue(), 0.0f);
        QCOMPARE(decoder.samplesPerBit(), 200);
    }
    // Fewer samples than ten frames: no detection, so nothing to process.
    const Encoded encoded = encode(48000, 30.0, 9, false, 0);
    WaveInput input;
    QVERIFY(input.load(writeStereo(encoded.samples, 48000).constData()));
    Audio::LTCDecoder decoder(&input);
    QCOMPARE(decoder.samplesPerBit(), 0);
    QTest::ignoreMessage(QtWarningMsg, "The LTC decoder is not calibrated");
    decoder.process(0);
    QVERIFY(decoder.bits().isEmpty());
}

QTEST_GUILESS_MAIN(tst_LTCDecoder)
#include "tst_LTCDecoder.moc"
