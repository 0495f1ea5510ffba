#include "AudioFileDecoder.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

class tst_AudioFileDecoder : public QObject
{
    Q_OBJECT

private slots:
    void decode_data();
    void decode();

private:
    QByteArray readAll(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray wave(double seconds, int rate, int channels) const
    {
        const QString path = m_dir.filePath(QStringLiteral("sine.wav"));
        return TestSounds::writeSineWave(path, seconds, 440.0, rate, channels) ? readAll(path) : QByteArray();
    }

    QTemporaryDir m_dir;
};

void tst_AudioFileDecoder::decode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<qint64>("minFrames");
    QTest::addColumn<qint64>("maxFrames"); // 0: the file is refused

    const QByteArray sample = readAll(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_A4.mp3"));
    QTest::newRow("stereo 48 kHz, half a second")
        << "a.wav" << wave(0.5, 48000, 2) << 48000 << 2 << qint64(24000) << qint64(24000);
    QTest::newRow("mono 22.05 kHz, one sample")
        << "b.wav" << wave(1.0 / 22050, 22050, 1) << 22050 << 1 << qint64(1) << qint64(1);
    QTest::newRow("cut mp3 decodes what is there")
        << "cut.mp3" << sample.left(sample.size() / 2) << 44100 << 1 << qint64(1) << qint64(79379);
    QTest::newRow("empty mp3") << "empty.mp3" << QByteArray() << 0 << 0 << qint64(0) << qint64(0);
    QTest::newRow("wave header without samples")
        << "header.wav"
        << QByteArray::fromHex(
               "52494646240000005741564566666d7420100000000100010044ac000088580100020010006461746100000000")
        << 0 << 0 << qint64(0) << qint64(0);
    QTest::newRow("text named mp3") << "text.mp3" << QByteArray("ID3 but nothing else\n") << 0 << 0 << qint64(0)
                                    << qint64(0);
}

void tst_AudioFileDecoder::decode()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(int, rate);
    QFETCH(int, channels);
    QFETCH(qint64, minFrames);
    QFETCH(qint64, maxFrames);

    QFile file(m_dir.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    DecodedSound sound;
    sound.sampleRate = 1;
    sound.samples = { 1.0f };
    QCOMPARE(AudioFileDecoder::decode(file.fileName(), &sound), maxFrames > 0);
    QCOMPARE(sound.sampleRate, rate);
    QCOMPARE(sound.channels, channels);
    QVERIFY2(sound.frames() >= minFrames && sound.frames() <= maxFrames, qPrintable(QString::number(sound.frames())));
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    if (name.endsWith(QLatin1String(".wav")) && maxFrames > 100)
        QVERIFY(qAbs(peak - 0.5f) < 0.01f);
}

QTEST_GUILESS_MAIN(tst_AudioFileDecoder)
#include "tst_AudioFileDecoder.moc"
