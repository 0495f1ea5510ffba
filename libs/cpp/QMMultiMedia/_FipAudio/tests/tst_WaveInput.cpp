#include "Input/GeneralFileInput.h"
#include "Input/WaveInput.h"

#include <QtTest>

#include <sndfile.h>

#include <cstring>
#include <random>

using Audio::GeneralFileInput;
using Audio::WaveInput;

namespace {

QByteArray le32(unsigned int value)
{
    QByteArray bytes(4, '\0');
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>(value >> (8 * i));
    return bytes;
}

QByteArray le16(unsigned int value)
{
    return le32(value).left(2);
}

// A chunk with its size field as given and its body padded to an even length.
QByteArray chunk(const char* id, const QByteArray& body, qint64 size = -1)
{
    QByteArray bytes = QByteArray(id, 4) + le32(static_cast<unsigned int>(size < 0 ? body.size() : size)) + body;
    if (body.size() % 2 != 0)
        bytes += '\0';
    return bytes;
}

QByteArray fmtBody(int tag, int channels, int rate, int bits)
{
    const int align = channels * (bits / 8);
    return le16(static_cast<unsigned int>(tag)) + le16(static_cast<unsigned int>(channels))
        + le32(static_cast<unsigned int>(rate)) + le32(static_cast<unsigned int>(rate * align))
        + le16(static_cast<unsigned int>(align)) + le16(static_cast<unsigned int>(bits));
}

// A RIFF file around the chunks; riffSize < 0 states the true size.
QByteArray riff(const QByteArray& chunks, qint64 riffSize = -1)
{
    return "RIFF" + le32(static_cast<unsigned int>(riffSize < 0 ? chunks.size() + 4 : riffSize)) + "WAVE" + chunks;
}

// Sixteen 16-bit mono samples: 0, 1000, 2000, ...
QByteArray ramp()
{
    QByteArray bytes;
    for (int i = 0; i < 16; ++i)
        bytes += le16(static_cast<unsigned int>(i * 1000));
    return bytes;
}

} // namespace

// The wave reader: files written by libsndfile read sample for sample, and the chunk
// walk over unknown, odd-sized, doubled and damaged chunks.
class tst_WaveInput : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatLibsndfileWrote_data();
    void readsWhatLibsndfileWrote();
    void walksTheChunks_data();
    void walksTheChunks();

private:
    QByteArray writeFile(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_dir;
};

QByteArray tst_WaveInput::writeFile(const QString& name, const QByteArray& bytes)
{
    QFile file(m_dir.filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return file.fileName().toLocal8Bit();
}

void tst_WaveInput::readsWhatLibsndfileWrote_data()
{
    QTest::addColumn<int>("subtype");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("frames");

    const QList<QPair<const char*, int>> subtypes { { "u8", SF_FORMAT_PCM_U8 }, { "16 bit", SF_FORMAT_PCM_16 },
        { "24 bit", SF_FORMAT_PCM_24 }, { "32 bit", SF_FORMAT_PCM_32 } };
    for (const auto& subtype : subtypes) {
        for (int channels : { 1, 2, 6 }) {
            for (int frames : { 1, 333, 8193 }) {
                const QByteArray name = QByteArray(subtype.first) + ", " + QByteArray::number(channels) + " ch, "
                    + QByteArray::number(frames) + " frames";
                QTest::newRow(name.constData()) << subtype.second << channels << frames;
            }
        }
    }
}

void tst_WaveInput::readsWhatLibsndfileWrote()
{
    QFETCH(int, subtype);
    QFETCH(int, channels);
    QFETCH(int, frames);

    std::mt19937 random(static_cast<unsigned>(subtype + channels * 7 + frames));
    std::vector<int> written(static_cast<size_t>(frames * channels));
    for (int& value : written)
        value = static_cast<int>(random());
    written.front() = INT_MIN;
    written.back() = INT_MAX;

    const QByteArray path = m_dir.filePath(QStringLiteral("sndfile.wav")).toLocal8Bit();
    SF_INFO format;
    std::memset(&format, 0, sizeof format);
    format.samplerate = 48000;
    format.channels = channels;
    format.format = SF_FORMAT_WAV | subtype;
    SNDFILE* file = sf_open(path.constData(), SFM_WRITE, &format);
    QVERIFY(file);
    sf_command(file, SFC_SET_CLIPPING, nullptr, SF_FALSE);
    sf_set_string(file, SF_STR_COMMENT, "written by libsndfile");
    QCOMPARE(static_cast<int>(sf_writef_int(file, written.data(), frames)), frames);
    sf_close(file);

    const int bits = subtype == SF_FORMAT_PCM_U8 ? 8
        : subtype == SF_FORMAT_PCM_16            ? 16
        : subtype == SF_FORMAT_PCM_24            ? 24
                                                 : 32;
    GeneralFileInput input;
    QVERIFY(input.load(path.constData()));
    QCOMPARE(input.formatString(), QStringLiteral("WAVE"));
    QCOMPARE(input.channels(), static_cast<short>(channels));
    QCOMPARE(input.sampleRate(), 48000u);
    QCOMPARE(input.bitsPerSample(), static_cast<short>(bits));
    QCOMPARE(static_cast<int>(input.fileInfo().numSamples()), frames * channels);
    QCOMPARE(input.fileInfo().comment(), QStringLiteral("written by libsndfile"));

    if (bits == 32) {
        // No float conversion at this width: the bytes are the samples, little-endian.
        QByteArray bytes(frames * channels * 4 + 16, '\0');
        QCOMPARE(input.read(bytes.data(), bytes.size()), frames * channels * 4);
        for (int i = 0; i < frames * channels; ++i) {
            int value = 0;
            std::memcpy(&value, bytes.constData() + 4 * i, 4);
            QCOMPARE(value, written[static_cast<size_t>(i)]);
        }
        return;
    }
    std::vector<float> samples(written.size() + 8);
    QCOMPARE(input.read(samples.data(), static_cast<int>(samples.size())), frames * channels);
    const unsigned int mask = ~0u << (32 - bits);
    for (size_t i = 0; i < written.size(); ++i) {
        const float expected
            = std::ldexp(static_cast<float>(static_cast<int>(static_cast<unsigned>(written[i]) & mask)), -31);
        if (samples[i] != expected)
            QFAIL(qPrintable(QStringLiteral("sample %1: %2 instead of %3").arg(i).arg(samples[i]).arg(expected)));
    }
    QCOMPARE(input.read(samples.data(), 1), 0);

    // One channel from a frame in the middle.
    const int channel = channels - 1;
    std::vector<float> column(3);
    input.gotoFrame(frames / 2);
    const int got = input.readChannel(column.data(), 3, channel);
    QCOMPARE(got, std::min(3, frames - frames / 2));
    QCOMPARE(column[0],
        std::ldexp(static_cast<float>(static_cast<int>(
                       static_cast<unsigned>(written[static_cast<size_t>((frames / 2) * channels + channel)]) & mask)),
            -31));
    QCOMPARE(input.readChannel(column.data(), 1, channels), -1);
}

void tst_WaveInput::walksTheChunks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("dataSize");
    QTest::addColumn<QString>("comment");

    const QByteArray fmt = chunk("fmt ", fmtBody(1, 1, 8000, 16));
    const QByteArray data = chunk("data", ramp());
    const QByteArray info
        = chunk("LIST", "INFO" + chunk("IART", "someone") + chunk("ICMT", QByteArray("odd\0", 4) + "x"));

    QTest::newRow("plain") << riff(fmt + data) << true << 1 << 32 << QString();
    QTest::newRow("unknown odd-sized chunks on both sides")
        << riff(chunk("junk", "abc") + fmt + chunk("zero", QByteArray()) + data + chunk("tail", "12345")) << true << 1
        << 32 << QString();
    QTest::newRow("comment behind an odd artist entry, cut at its zero")
        << riff(fmt + info + data) << true << 1 << 32 << QStringLiteral("odd");
    QTest::newRow("list that is not INFO")
        << riff(chunk("LIST", "adtl" + chunk("labl", "abcde")) + fmt + data) << true << 1 << 32 << QString();
    QTest::newRow("data before fmt") << riff(data + fmt) << true << 1 << 32 << QString();
    QTest::newRow("second fmt ignored") << riff(fmt + chunk("fmt ", fmtBody(1, 2, 8000, 8)) + data) << true << 1 << 32
                                        << QString();
    QTest::newRow("second data ignored") << riff(fmt + data + chunk("data", ramp().left(6))) << true << 1 << 32
                                         << QString();
    QTest::newRow("fmt with an extension")
        << riff(chunk("fmt ", fmtBody(1, 1, 8000, 16) + le16(0)) + data) << true << 1 << 32 << QString();
    QTest::newRow("data longer than the file")
        << riff(fmt + chunk("data", ramp(), 1000)) << true << 1 << 32 << QString();
    QTest::newRow("claimed size of 4 GB")
        << riff(fmt + chunk("data", ramp(), 0xfffffff0LL)) << true << 1 << 32 << QString();
    QTest::newRow("cut inside the header") << riff(fmt + data, 0xfffffff0LL).left(40) << false << 0 << 0 << QString();
    QTest::newRow("riff longer than the chunks") << riff(fmt + data, 200) << false << 0 << 0 << QString();
    QTest::newRow("39 bytes") << riff(fmt + data).left(39) << false << 0 << 0 << QString();
    QTest::newRow("no data") << riff(fmt + chunk("junk", ramp())) << false << 0 << 0 << QString();
    QTest::newRow("no fmt") << riff(data + chunk("junk", ramp())) << false << 0 << 0 << QString();
    QTest::newRow("0 channels") << riff(chunk("fmt ", fmtBody(1, 0, 8000, 16)) + data) << false << 0 << 0 << QString();
    QTest::newRow("0 bits") << riff(chunk("fmt ", fmtBody(1, 1, 8000, 0)) + data) << false << 0 << 0 << QString();
    QTest::newRow("float samples") << riff(chunk("fmt ", fmtBody(3, 1, 8000, 32)) + data) << false << 0 << 0
                                   << QString();
    QTest::newRow("INFO whose entries overrun it")
        << riff(fmt + chunk("LIST", "INFO" + chunk("ICMT", "abc"), 10) + data) << false << 0 << 0 << QString();
    QTest::newRow("not WAVE") << riff(fmt + data).replace(8, 4, "AVI ") << false << 0 << 0 << QString();
}

void tst_WaveInput::walksTheChunks()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, loads);
    QFETCH(int, channels);
    QFETCH(int, dataSize);
    QFETCH(QString, comment);

    WaveInput input;
    QCOMPARE(input.load(writeFile(QStringLiteral("walk.wav"), bytes).constData()), loads);
    QCOMPARE(input.filePointer() != nullptr, loads);
    if (!loads)
        return;
    QCOMPARE(input.channels(), static_cast<short>(channels));
    QCOMPARE(static_cast<int>(input.fileInfo().dataSize()), dataSize);
    QCOMPARE(input.fileInfo().comment(), comment);

    // The audio is the ramp and nothing behind it.
    std::vector<float> samples(40);
    input.rewind();
    QCOMPARE(input.read(samples.data(), 40), dataSize / 2);
    for (int i = 0; i < dataSize / 2; ++i)
        QCOMPARE(samples[static_cast<size_t>(i)], i * 1000 / 32768.0f);
}

QTEST_GUILESS_MAIN(tst_WaveInput)
#include "tst_WaveInput.moc"
