#include "AudioFileDecoder.h"
#include "TestSounds.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace QMMultiMedia;

class tst_AudioFileDecoder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void decode_data();
    void decode();
    void badInputIsRefused_data();
    void badInputIsRefused();

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
    // The sample with its Xing header claiming `frames` mp3 frames.
    QByteArray mp3ClaimingFrames(quint32 frames) const
    {
        QByteArray bytes = m_sample;
        const int xing = bytes.indexOf("Xing");
        if (xing < 0 || !(bytes.at(xing + 7) & 1))
            return QByteArray();
        qToBigEndian(frames, bytes.data() + xing + 8);
        return bytes;
    }
    // A wave header of 16-bit mono whose data chunk claims `dataBytes`, followed by one second of silence.
    static QByteArray waveClaimingBytes(quint32 dataBytes)
    {
        QByteArray bytes = QByteArray::fromHex("52494646ffffffff57415645666d7420100000000100010044ac000088580100020010"
                                               "0064617461");
        bytes.append(4, '\0');
        qToLittleEndian(dataBytes, bytes.data() + bytes.size() - 4);
        bytes.append(88200, '\0');
        return bytes;
    }
    // An AIFF of 16-bit mono at 44.1 kHz whose COMM chunk claims `frames`, with one second of silence.
    static QByteArray aiffClaimingFrames(quint32 frames)
    {
        QByteArray comm = QByteArray::fromHex("434f4d4d0000001200010000000000104000ac44000000000000");
        qToBigEndian(frames, comm.data() + 10);
        QByteArray ssnd = QByteArray::fromHex("53534e44") + QByteArray(4, '\0') + QByteArray(8, '\0');
        qToBigEndian(quint32(8 + 88200), ssnd.data() + 4);
        ssnd.append(88200, '\0');
        QByteArray bytes = QByteArray("FORM") + QByteArray(4, '\0') + "AIFF" + comm + ssnd;
        qToBigEndian(quint32(bytes.size() - 8), bytes.data() + 4);
        return bytes;
    }

    QTemporaryDir m_dir;
    QByteArray m_sample;
};

void tst_AudioFileDecoder::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_sample = readAll(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_A4.mp3"));
    QVERIFY(!m_sample.isEmpty());
}

void tst_AudioFileDecoder::decode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<qint64>("minFrames");
    QTest::addColumn<qint64>("maxFrames"); // 0: the file is refused

    QTest::newRow("stereo 48 kHz, half a second")
        << "a.wav" << wave(0.5, 48000, 2) << 48000 << 2 << qint64(24000) << qint64(24000);
    QTest::newRow("mono 22.05 kHz, one sample")
        << "b.wav" << wave(1.0 / 22050, 22050, 1) << 22050 << 1 << qint64(1) << qint64(1);
    QTest::newRow("cut mp3 decodes what is there")
        << "cut.mp3" << m_sample.left(m_sample.size() / 2) << 44100 << 1 << qint64(1) << qint64(79379);
    QTest::newRow("mp3 claiming 1.7 billion samples decodes what is there")
        << "claims.mp3" << mp3ClaimingFrames(1500000) << 44100 << 1 << qint64(1) << qint64(160000);
    QTest::newRow("wave claiming more data than the file holds reads what is there")
        << "claims.wav" << waveClaimingBytes(0xfffffff0u) << 44100 << 1 << qint64(44100) << qint64(44100);
    QTest::newRow("empty mp3") << "empty.mp3" << QByteArray() << 0 << 0 << qint64(0) << qint64(0);
    QTest::newRow("wave header without samples")
        << "header.wav"
        << QByteArray::fromHex(
               "52494646240000005741564566666d7420100000000100010044ac000088580100020010006461746100000000")
        << 0 << 0 << qint64(0) << qint64(0);
    QTest::newRow("text named mp3") << "text.mp3" << QByteArray("ID3 but nothing else\n") << 0 << 0 << qint64(0)
                                    << qint64(0);
    QTest::newRow("aiff claiming four billion frames")
        << "claims.aif" << aiffClaimingFrames(0xfffffff0u) << 0 << 0 << qint64(0) << qint64(0);
    QTest::newRow("wave of 61 s is longer than any sample")
        << "long.wav" << wave(61.0, 8000, 1) << 0 << 0 << qint64(0) << qint64(0);
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
    if (name == QLatin1String("a.wav"))
        QVERIFY(qAbs(peak - 0.5f) < 0.01f);
}

void tst_AudioFileDecoder::badInputIsRefused_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a directory named like a sample") << "directory.mp3";
    QTest::newRow("a sample without read permission") << "unreadable.mp3";
    QTest::newRow("a sparse file of 2 GB named mp3") << "sparse.mp3";
    QTest::newRow("a sparse file of 2 GB named wav") << "sparse.wav";
    QTest::newRow("an mp3 of 61 s") << "long.mp3";
}

// Each is refused without a crash and without reading or allocating the claimed size.
void tst_AudioFileDecoder::badInputIsRefused()
{
    QFETCH(QString, name);

    const QString path = m_dir.filePath(name);
    QFile file(path);
    if (name.startsWith(QLatin1String("directory"))) {
        QVERIFY(QDir().mkpath(path));
    } else if (name.startsWith(QLatin1String("unreadable"))) {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_sample) == m_sample.size());
        file.close();
        QVERIFY(file.setPermissions(QFileDevice::WriteOwner));
        if (file.open(QIODevice::ReadOnly))
            QSKIP("this user reads files without read permission");
    } else if (name.startsWith(QLatin1String("sparse"))) {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(2) << 30));
        file.close();
    } else {
        const QString lame = QStandardPaths::findExecutable(QStringLiteral("lame"));
        if (lame.isEmpty())
            QSKIP("lame is not installed");
        const QString source = m_dir.filePath(QStringLiteral("long_source.wav"));
        QVERIFY(TestSounds::writeSineWave(source, 61.0, 440.0, 8000, 1));
        QCOMPARE(QProcess::execute(lame, { QStringLiteral("--quiet"), source, path }), 0);
    }
    DecodedSound sound;
    QVERIFY(!AudioFileDecoder::decode(path, &sound));
    QCOMPARE(sound.frames(), qint64(0));
}

QTEST_GUILESS_MAIN(tst_AudioFileDecoder)
#include "tst_AudioFileDecoder.moc"
