#include "Common/EBUInfo.h"
#include "Input/GeneralFileInput.h"
#include "Output/WaveOutput.h"

#include <QtTest>

using Audio::EBUInfo;
using Audio::GeneralFileInput;
using Audio::Settings;
using Audio::WaveOutput;
using MTools::Handle;

// The broadcast extension chunk: every field through the wave writer and reader, fields
// that fill their width exactly, the history of a new recording and the side files.
class tst_EBUInfo : public QObject
{
    Q_OBJECT

private slots:
    void roundTripThroughWaveFiles_data();
    void roundTripThroughWaveFiles();
    void newRecordingHistory_data();
    void newRecordingHistory();
    void sideFiles_data();
    void sideFiles();

private:
    QTemporaryDir m_dir;
};

void tst_EBUInfo::roundTripThroughWaveFiles_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("originator");
    QTest::addColumn<QString>("date");
    QTest::addColumn<long long>("timeReference");
    QTest::addColumn<QString>("history");
    QTest::addColumn<QString>("comment");

    QTest::newRow("short fields, no history") << QStringLiteral("a take") << QStringLiteral("me")
                                              << QStringLiteral("2024-02-29") << 0LL << QString() << QString();
    QTest::newRow("every text field exactly full")
        << QString(256, QLatin1Char('d')) << QString(32, QLatin1Char('o')) << QStringLiteral("1999-12-31")
        << 4147200000LL << QStringLiteral("A=PCM,F=48000,W=24,M=mono,T=\r\n") << QStringLiteral("with comment");
    QTest::newRow("odd history, time reference above 32 bits")
        << QStringLiteral("x") << QString() << QStringLiteral("0000-00-00") << 0x123456789aLL
        << QStringLiteral("A=PCM,F=44100,W=16,M=stereo,T=\r\nA=PCM,F=44100,W=16,M=stereo,T=x") << QStringLiteral("odd");
    QTest::newRow("long history") << QString() << QString() << QStringLiteral("2001-01-01") << 1LL
                                  << QString(5001, QLatin1Char('h')) << QString();
}

void tst_EBUInfo::roundTripThroughWaveFiles()
{
    QFETCH(QString, description);
    QFETCH(QString, originator);
    QFETCH(QString, date);
    QFETCH(long long, timeReference);
    QFETCH(QString, history);
    QFETCH(QString, comment);

    Handle<EBUInfo> info(new EBUInfo);
    info->setDescription(description);
    info->setOriginator(originator);
    info->setOriginationRef(QStringLiteral("ref"));
    info->setOriginationDate(date);
    info->setOriginationTime(QStringLiteral("12:34:56"));
    info->setTimeReference(timeReference);
    info->setVersion(1);
    for (int i = 0; i < 64; ++i)
        info->setUMID(i, static_cast<char>(i * 3 + 1));
    info->setUMID(64, 'x');
    info->setCodingHistory(history);

    const QByteArray path = m_dir.filePath(QStringLiteral("bext.wav")).toLocal8Bit();
    {
        WaveOutput output(path.constData(), Settings(48000, 1, 0, 16), comment, info);
        float samples[3] = { 0.5f, -0.25f, 0.125f };
        output.write(samples, 3);
    }

    GeneralFileInput input;
    QVERIFY(input.load(path.constData()));
    QCOMPARE(input.formatString(), QStringLiteral("BWF"));
    const Handle<EBUInfo> read = input.ebuInfo();
    QCOMPARE(read->description(), info->description());
    QCOMPARE(read->description().size(), 256);
    QCOMPARE(read->originator(), info->originator());
    QCOMPARE(read->originationRef(), info->originationRef());
    QCOMPARE(read->originationDate(), date);
    QCOMPARE(read->originationTime(), QStringLiteral("12:34:56"));
    QCOMPARE(read->timeReference(), timeReference);
    QCOMPARE(read->version(), 1);
    QCOMPARE(read->umidsString(), info->umidsString());
    QCOMPARE(read->codingHistory(), history);
    QCOMPARE(read->size(), 602 + history.size());
    // The chunks behind "bext" are found: the comment and the audio.
    QCOMPARE(input.fileInfo().comment(), comment);
    float samples[4] = {};
    QCOMPARE(input.read(samples, 4), 3);
    QCOMPARE(samples[1], -0.25f);
}

void tst_EBUInfo::newRecordingHistory_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<QString>("history");

    QTest::newRow("mono") << 1 << QStringLiteral("A=PCM,F=48000,W=24,M=mono,T=\r\n");
    QTest::newRow("stereo") << 2 << QStringLiteral("A=PCM,F=48000,W=24,M=stereo,T=\r\n");
    QTest::newRow("six channels") << 6 << QStringLiteral("A=PCM,F=48000,W=24,M=6CH,T=\r\n");
}

void tst_EBUInfo::newRecordingHistory()
{
    QFETCH(int, channels);
    QFETCH(QString, history);

    const QByteArray path = m_dir.filePath(QStringLiteral("new.wav")).toLocal8Bit();
    {
        WaveOutput output(
            path.constData(), Settings(48000, static_cast<short>(channels), 0, 24), QString(), Handle<EBUInfo>(), true);
        QCOMPARE(output.ebuInfo()->codingHistory(), history);
    }
    GeneralFileInput input;
    QVERIFY(input.load(path.constData()));
    const Handle<EBUInfo> info = input.ebuInfo();
    QCOMPARE(info->codingHistory(), history);
    QCOMPARE(info->originator().section(QChar(0), 0, 0), QStringLiteral("CORVANE"));
    QCOMPARE(info->version(), 1);
    QVERIFY(QDate::fromString(info->originationDate(), QStringLiteral("yyyy-MM-dd")).isValid());
    const QStringList lines = info->description().section(QChar(0), 0, 0).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.value(0).size(), 16);
    QVERIFY(lines.value(0).startsWith(QStringLiteral("sUBITS=$")));
    QCOMPARE(
        lines.mid(lines.size() - 3), QStringList({ QStringLiteral("sTRK="), QStringLiteral("sNOTE="), QString() }));

    // A rate below one frame a second is no rate: the production's is taken.
    EBUInfo slow;
    slow.setFps(0.5f);
    slow.fillDescription(QStringLiteral("ignored.wav"));
    QCOMPARE(slow.description().section(QStringLiteral("\r\n"), 1, 1), QStringLiteral("sSPEED=30.000-ND"));
    slow.setFps(23.976f);
    slow.fillDescription(QString());
    QCOMPARE(slow.description().section(QStringLiteral("\r\n"), 1, 1), QStringLiteral("sSPEED=23.976-ND"));
}

void tst_EBUInfo::sideFiles_data()
{
    QTest::addColumn<QByteArray>("cut");
    QTest::addColumn<bool>("loads");

    QTest::newRow("whole chunk") << QByteArray() << true;
    QTest::newRow("cut in the history") << QByteArray("history") << true;
    QTest::newRow("wrong id") << QByteArray("id") << false;
    QTest::newRow("empty file") << QByteArray("all") << false;
}

void tst_EBUInfo::sideFiles()
{
    QFETCH(QByteArray, cut);
    QFETCH(bool, loads);

    EBUInfo info(48000LL * 3600, 25.0f);
    info.setCodingHistory(QStringLiteral("history of twenty-six bytes"));
    const QString path = m_dir.filePath(QStringLiteral("info.bext"));
    QVERIFY(info.save(path.toLocal8Bit().constData()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.size(), 8 + 602 + 27);
    if (cut == "history")
        file.resize(8 + 602 + 10);
    else if (cut == "id")
        file.write("BEXT");
    else if (cut == "all")
        file.resize(0);
    file.close();

    EBUInfo loaded;
    QCOMPARE(loaded.load(path.toLocal8Bit().constData()), loads);
    if (!loads)
        return;
    QCOMPARE(loaded.timeReference(), 48000LL * 3600);
    QCOMPARE(loaded.description().section(QChar(0), 0, 0), QStringLiteral("sSPEED=25"));
    QCOMPARE(loaded.codingHistory(), info.codingHistory().left(cut.isEmpty() ? 27 : 10));
}

QTEST_GUILESS_MAIN(tst_EBUInfo)
#include "tst_EBUInfo.moc"
