#include "FuzzTargets.h"

#include <QtTest>

// Replays every input that once made a fuzzing target of the audio file library fail:
// each must now pass through its loader quietly.
class tst_FuzzRegressions : public QObject
{
    Q_OBJECT

private slots:
    void replays_data();
    void replays();
};

void tst_FuzzRegressions::replays_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("path");

    const QDir root(QStringLiteral(QM_FUZZ_REGRESSIONS_DIR));
    for (const QString& target : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(root.filePath(target));
        for (const QString& file : folder.entryList(QDir::Files))
            QTest::newRow(qPrintable(target + QLatin1Char('/') + file)) << target << folder.filePath(file);
    }
}

void tst_FuzzRegressions::replays()
{
    QFETCH(QString, target);
    QFETCH(QString, path);

    static const QMap<QString, int (*)(const uint8_t*, size_t)> bodies {
        { QStringLiteral("WaveInput"), AudioFuzz::waveInput },
        { QStringLiteral("AiffInput"), AudioFuzz::aiffInput },
        { QStringLiteral("GeneralFileInput"), AudioFuzz::generalFileInput },
        { QStringLiteral("EBUInfo"), AudioFuzz::ebuInfo },
        { QStringLiteral("EnvelopeFile"), AudioFuzz::envelopeFile },
        { QStringLiteral("LTCFile"), AudioFuzz::ltcFile },
    };
    QVERIFY2(bodies.contains(target), qPrintable(QStringLiteral("no fuzzing target ") + target));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray input = file.readAll();
    QCOMPARE(
        bodies.value(target)(reinterpret_cast<const uint8_t*>(input.constData()), static_cast<size_t>(input.size())),
        0);
}

QTEST_GUILESS_MAIN(tst_FuzzRegressions)
#include "tst_FuzzRegressions.moc"
