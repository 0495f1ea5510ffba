#include "Common/EBUInfo.h"
#include "Output/WaveOutput.h"

#include <QtTest>

#include <sndfile.h>

#include <cmath>
#include <cstring>
#include <random>

using Audio::EBUInfo;
using Audio::Settings;
using Audio::WaveOutput;
using MTools::Handle;

namespace {

// The value libsndfile hands out as a 32-bit integer for a float that the writer stored
// at the given width: signed widths cut towards zero with symmetric clamps, 8 bits
// offset by 128.
int expectedInt(float x, int bits)
{
    if (bits == 8) {
        const double u = std::trunc(std::min(255.0, std::max(0.0, (x + 1.0) * 128.0)));
        return static_cast<int>(u - 128.0) * (1 << 24);
    }
    const double scale = std::ldexp(1.0, bits - 1);
    const double v = std::trunc(std::min(scale - 1, std::max(-(scale - 1), x * scale)));
    return static_cast<int>(v) * (1 << (32 - bits));
}

} // namespace

// Files made by the wave writer, read by libsndfile: every format, channel count and
// length, with and without broadcast info and a comment.
class tst_WaveOutput : public QObject
{
    Q_OBJECT

private slots:
    void libsndfileReadsWhatWasWritten_data();
    void libsndfileReadsWhatWasWritten();

private:
    QTemporaryDir m_dir;
};

void tst_WaveOutput::libsndfileReadsWhatWasWritten_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("broadcast");
    QTest::addColumn<QString>("comment");

    for (int bits : { 8, 16, 24 }) {
        for (int channels : { 1, 2, 6 }) {
            for (int frames : { 1, 257, 4099 }) {
                const QByteArray name = QByteArray::number(bits) + " bit, " + QByteArray::number(channels) + " ch, "
                    + QByteArray::number(frames) + " frames";
                QTest::newRow(name.constData()) << bits << channels << frames << false << QString();
                QTest::newRow((name + ", bext, odd comment").constData())
                    << bits << channels << frames << true << QStringLiteral("take 3");
            }
        }
    }
    QTest::newRow("16 bit, no audio, even comment") << 16 << 2 << 0 << true << QStringLiteral("empty");
}

void tst_WaveOutput::libsndfileReadsWhatWasWritten()
{
    QFETCH(int, bits);
    QFETCH(int, channels);
    QFETCH(int, frames);
    QFETCH(bool, broadcast);
    QFETCH(QString, comment);

    std::mt19937 random(static_cast<unsigned>(bits * 1000 + channels * 10 + frames));
    std::uniform_real_distribution<float> amplitude(-1.05f, 1.05f);
    std::vector<float> samples(static_cast<size_t>(frames * channels));
    for (float& x : samples)
        x = amplitude(random);
    if (!samples.empty()) {
        samples.front() = 1.0f;
        samples.back() = -1.0f;
    }

    Handle<EBUInfo> info;
    if (broadcast) {
        info = Handle<EBUInfo>(new EBUInfo(123456789012LL, 25.0f));
        info->setOriginator(QStringLiteral("Originator exactly 32 bytes long"));
        info->setCodingHistory(QStringLiteral("A=PCM,F=48000,W=24,M=mono,T=odd\r\n!"));
    }
    const QByteArray path = m_dir.filePath(QStringLiteral("out.wav")).toLocal8Bit();
    {
        WaveOutput output(path.constData(), Settings(44100, static_cast<short>(channels), 0, static_cast<short>(bits)),
            comment, info);
        // Written in uneven pieces, as a recorder would.
        int done = 0;
        for (int piece = 1; done < static_cast<int>(samples.size()); piece = piece * 3 + 1) {
            const int count = std::min(piece * channels, static_cast<int>(samples.size()) - done);
            output.write(samples.data() + done, count);
            done += count;
        }
        QVERIFY(output.close());
    }

    SF_INFO format;
    std::memset(&format, 0, sizeof format);
    SNDFILE* file = sf_open(path.constData(), SFM_READ, &format);
    QVERIFY2(file, sf_strerror(nullptr));
    QCOMPARE(format.channels, channels);
    QCOMPARE(format.samplerate, 44100);
    QCOMPARE(static_cast<int>(format.frames), frames);
    const int subtype = bits == 8 ? SF_FORMAT_PCM_U8 : bits == 16 ? SF_FORMAT_PCM_16 : SF_FORMAT_PCM_24;
    QCOMPARE(format.format, SF_FORMAT_WAV | subtype);
    std::vector<int> read(samples.size() + static_cast<size_t>(channels));
    QCOMPARE(static_cast<int>(sf_readf_int(file, read.data(), frames + 1)), frames);
    for (size_t i = 0; i < samples.size(); ++i) {
        if (read[i] != expectedInt(samples[i], bits))
            QFAIL(qPrintable(QStringLiteral("sample %1 of %2: %3 instead of %4")
                                 .arg(i)
                                 .arg(samples[i])
                                 .arg(read[i])
                                 .arg(expectedInt(samples[i], bits))));
    }
    const char* readComment = sf_get_string(file, SF_STR_COMMENT);
    QCOMPARE(QString::fromLocal8Bit(readComment ? readComment : ""), comment);

    SF_BROADCAST_INFO bext;
    std::memset(&bext, 0, sizeof bext);
    const bool hasBext = sf_command(file, SFC_GET_BROADCAST_INFO, &bext, sizeof bext) == SF_TRUE;
    QCOMPARE(hasBext, broadcast);
    if (broadcast) {
        QCOMPARE(QByteArray(bext.description), QByteArray("sSPEED=25"));
        QCOMPARE(QByteArray(bext.originator, 32), QByteArray("Originator exactly 32 bytes long"));
        QCOMPARE(static_cast<long long>(bext.time_reference_high) << 32 | bext.time_reference_low, 123456789012LL);
        QCOMPARE(QByteArray(bext.coding_history, static_cast<int>(bext.coding_history_size)),
            QByteArray("A=PCM,F=48000,W=24,M=mono,T=odd\r\n!"));
    }
    sf_close(file);
}

QTEST_GUILESS_MAIN(tst_WaveOutput)
#include "tst_WaveOutput.moc"
