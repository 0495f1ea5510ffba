#include "Input/AiffInput.h"
#include "Input/GeneralFileInput.h"

#include <QtTest>

#include <sndfile.h>

#include <cstring>
#include <random>

using Audio::AiffInput;
using Audio::GeneralFileInput;

// The AIFF reader against libsndfile. Its audio starts 20 bytes early by the constants
// every reader of this library uses: the first 20 bytes read are the end of the
// headers ("SSND", its size, offset and block size fields and the 4 bytes before),
// and the file's samples follow, shifted by 20 bytes (10 samples at 16 bits). The
// test pins that down, so that the shift is neither lost nor grown unnoticed.
class tst_AiffInput : public QObject
{
    Q_OBJECT

private slots:
    void readsLibsndfileAudioShiftedBy20Bytes_data();
    void readsLibsndfileAudioShiftedBy20Bytes();
    void findsTheChunksBehindTheAudio();

private:
    QByteArray writeWithLibsndfile(int subtype, int channels, const std::vector<short>& samples);

    QTemporaryDir m_dir;
};

QByteArray tst_AiffInput::writeWithLibsndfile(int subtype, int channels, const std::vector<short>& samples)
{
    const QByteArray path = m_dir.filePath(QStringLiteral("sndfile.aiff")).toLocal8Bit();
    SF_INFO format;
    std::memset(&format, 0, sizeof format);
    format.samplerate = 44100;
    format.channels = channels;
    format.format = SF_FORMAT_AIFF | subtype;
    SNDFILE* file = sf_open(path.constData(), SFM_WRITE, &format);
    if (!file)
        return QByteArray();
    sf_writef_short(file, samples.data(), static_cast<sf_count_t>(samples.size()) / channels);
    sf_close(file);
    return path;
}

void tst_AiffInput::readsLibsndfileAudioShiftedBy20Bytes_data()
{
    QTest::addColumn<int>("subtype");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("frames");

    QTest::newRow("16 bit mono") << static_cast<int>(SF_FORMAT_PCM_16) << 16 << 1 << 1000;
    QTest::newRow("16 bit stereo, odd length") << static_cast<int>(SF_FORMAT_PCM_16) << 16 << 2 << 777;
    QTest::newRow("16 bit, 6 channels") << static_cast<int>(SF_FORMAT_PCM_16) << 16 << 6 << 100;
    QTest::newRow("8 bit mono, odd length") << static_cast<int>(SF_FORMAT_PCM_S8) << 8 << 1 << 333;
    QTest::newRow("24 bit stereo") << static_cast<int>(SF_FORMAT_PCM_24) << 24 << 2 << 500;
}

void tst_AiffInput::readsLibsndfileAudioShiftedBy20Bytes()
{
    QFETCH(int, subtype);
    QFETCH(int, bits);
    QFETCH(int, channels);
    QFETCH(int, frames);

    std::mt19937 random(static_cast<unsigned>(frames));
    std::vector<short> written(static_cast<size_t>(frames * channels));
    for (short& value : written)
        value = static_cast<short>(random());
    const QByteArray path = writeWithLibsndfile(subtype, channels, written);
    QVERIFY(!path.isEmpty());
    QFile raw(QString::fromLocal8Bit(path));
    QVERIFY(raw.open(QIODevice::ReadOnly));
    const QByteArray file = raw.readAll();
    const int ssnd = file.indexOf("SSND");
    const int width = bits / 8;
    const int audioBytes = frames * channels * width;
    const QByteArray audio = file.mid(ssnd + 16, audioBytes);

    GeneralFileInput input;
    QVERIFY(input.load(path.constData()));
    QCOMPARE(input.formatString(), QStringLiteral("AIFF"));
    QCOMPARE(input.channels(), static_cast<short>(channels));
    QCOMPARE(input.bitsPerSample(), static_cast<short>(bits));
    QCOMPARE(input.sampleRate(), 44100u);
    // The count of samples is the size that "SSND" states, a pad byte included.
    const int stated = static_cast<int>(qFromBigEndian<quint32>(file.constData() + ssnd + 4)) - 8;
    QCOMPARE(static_cast<int>(input.fileInfo().numSamples()), stated / width);
    QVERIFY(stated - audioBytes == 0 || stated - audioBytes == 1);

    // Bytes: 20 of the headers, then the audio without its last 20 bytes.
    QByteArray bytes(audioBytes + 64, '\0');
    QCOMPARE(input.read(bytes.data(), bytes.size()), stated);
    bytes.truncate(audioBytes);
    QCOMPARE(bytes.left(20), file.mid(ssnd - 4, 20));
    QCOMPARE(bytes.mid(20), audio.left(audioBytes - 20));

    // Samples: at 16 bits, sample i + 10 is libsndfile's sample i.
    if (bits == 16) {
        input.rewind();
        std::vector<float> samples(static_cast<size_t>(frames * channels));
        QCOMPARE(input.read(samples.data(), frames * channels), frames * channels);
        for (int i = 0; i + 10 < frames * channels; ++i)
            QCOMPARE(samples[static_cast<size_t>(i + 10)], written[static_cast<size_t>(i)] / 32768.0f);
    }
}

void tst_AiffInput::findsTheChunksBehindTheAudio()
{
    const std::vector<short> written(100, 1234);
    const QByteArray path = writeWithLibsndfile(SF_FORMAT_PCM_16, 1, written);
    QFile raw(QString::fromLocal8Bit(path));
    QVERIFY(raw.open(QIODevice::ReadWrite));
    QByteArray file = raw.readAll();
    // Behind the audio a comment chunk, its text right behind the count and length
    // fields, where this reader takes it from.
    const QByteArray text("behind the sound");
    QByteArray comt("COMT");
    const int size = 2 + 2 + text.size();
    comt += QByteArray::fromHex(QByteArray::number(size, 16).rightJustified(8, '0'));
    comt += QByteArray::fromHex("0001");
    comt += QByteArray::fromHex(QByteArray::number(text.size(), 16).rightJustified(4, '0')) + text;
    file += comt;
    const QByteArray formSize = QByteArray::fromHex(QByteArray::number(file.size() - 8, 16).rightJustified(8, '0'));
    file.replace(4, 4, formSize);
    raw.seek(0);
    raw.write(file);
    raw.close();

    AiffInput input;
    QVERIFY(input.load(path.constData()));
    QCOMPARE(input.fileInfo().comment(), QString::fromLatin1(text));
    QCOMPARE(static_cast<int>(input.fileInfo().numSamples()), 100);
}

QTEST_GUILESS_MAIN(tst_AiffInput)
#include "tst_AiffInput.moc"
