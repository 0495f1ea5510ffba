#include "AudioFileDecoder.h"
#include "TestSounds.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

class tst_AudioFileDecoder : public QObject
{
    Q_OBJECT

private slots:
    void waveFiles_data();
    void waveFiles();
    void brokenFiles_data();
    void brokenFiles();
    void cutMp3DecodesWhatIsThere();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    bool writeBytes(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    QTemporaryDir m_dir;
};

void tst_AudioFileDecoder::waveFiles_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<qint64>("frames");

    QTest::newRow("stereo 48 kHz, half a second") << 0.5 << 48000 << 2 << qint64(24000);
    QTest::newRow("mono 22.05 kHz, one sample") << 1.0 / 22050 << 22050 << 1 << qint64(1);
}

void tst_AudioFileDecoder::waveFiles()
{
    QFETCH(double, seconds);
    QFETCH(int, rate);
    QFETCH(int, channels);
    QFETCH(qint64, frames);

    const QString file = path(QStringLiteral("%1.wav").arg(QTest::currentDataTag()));
    QVERIFY(TestSounds::writeSineWave(file, seconds, 440.0, rate, channels));
    DecodedSound sound;
    QVERIFY(AudioFileDecoder::decode(file, &sound));
    QCOMPARE(sound.sampleRate, rate);
    QCOMPARE(sound.channels, channels);
    QCOMPARE(sound.frames(), frames);
    float peak = 0.0f;
    for (float value : qAsConst(sound.samples))
        peak = qMax(peak, std::abs(value));
    if (frames > 100)
        QVERIFY(qAbs(peak - 0.5f) < 0.01f);
}

void tst_AudioFileDecoder::brokenFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty mp3") << QStringLiteral("empty.mp3") << QByteArray();
    QTest::newRow("wave header without samples")
        << QStringLiteral("header.wav")
        << QByteArray::fromHex("52494646240000005741564566666d7420100000000100010044ac000088580100020010006461746100000000");
    QTest::newRow("text named mp3") << QStringLiteral("text.mp3") << QByteArray("ID3 but nothing else\n");
}

void tst_AudioFileDecoder::brokenFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);

    QVERIFY(writeBytes(name, bytes));
    DecodedSound sound;
    sound.sampleRate = 1;
    sound.samples = { 1.0f };
    QVERIFY(!AudioFileDecoder::decode(path(name), &sound));
    QCOMPARE(sound.frames(), qint64(0));
    QCOMPARE(sound.sampleRate, 0);
}

void tst_AudioFileDecoder::cutMp3DecodesWhatIsThere()
{
    QFile whole(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_A4.mp3"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QVERIFY(writeBytes(QStringLiteral("cut.mp3"), bytes.left(bytes.size() / 2)));

    DecodedSound sound;
    QVERIFY(AudioFileDecoder::decode(path(QStringLiteral("cut.mp3")), &sound));
    QCOMPARE(sound.sampleRate, 44100);
    QVERIFY(sound.frames() > 0 && sound.frames() < 79380);
}

QTEST_GUILESS_MAIN(tst_AudioFileDecoder)
#include "tst_AudioFileDecoder.moc"
