#include "CommandLine.h"

#include <QCoreApplication>
#include <QTest>

using QMWidgets::CommandLine;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("GuitarTonarium"));
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    }

    void outcome_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("error");
        QTest::newRow("no option starts the program") << QStringList() << -1 << ""
                                                      << "";
        QTest::newRow("--version") << QStringList { "--version" } << 0 << "GuitarTonarium 1.2\n"
                                   << "";
        QTest::newRow("-v") << QStringList { "-v" } << 0 << "GuitarTonarium 1.2\n"
                            << "";
        QTest::newRow("--help") << QStringList { "--help" } << 0 << "[options]"
                                << "";
        QTest::newRow("-h") << QStringList { "-h" } << 0 << "Learn where the notes lie"
                            << "";
        QTest::newRow("an unknown option") << QStringList { "--bogus" } << 2 << ""
                                           << "Unknown option 'bogus'.\nUsage: ";
        QTest::newRow("an unknown option after a known one") << QStringList { "--version", "-x" } << 2 << ""
                                                             << "Unknown option 'x'.";
    }

    void outcome()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, out);
        QFETCH(QString, error);
        const CommandLine::Outcome outcome = CommandLine::parse(
            QStringList { QStringLiteral("GuitarTonarium") } + arguments, QStringLiteral("Learn where the notes lie."));
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2(out.isEmpty() ? outcome.out.isEmpty() : outcome.out.contains(out), qPrintable(outcome.out));
        QVERIFY2(error.isEmpty() ? outcome.error.isEmpty() : outcome.error.contains(error), qPrintable(outcome.error));
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
