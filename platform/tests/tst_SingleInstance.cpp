#include "App_mac.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <signal.h>

#include <memory>

// Two real starts of the program: the second brings the first forward and
// ends, unless the first has crashed or hangs, when the second starts on its own.
class tst_SingleInstance : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;
    QTemporaryDir m_temp;

    static std::unique_ptr<QProcess> start()
    {
        auto program = std::make_unique<QProcess>();
        program->setProgram(QStringLiteral(PROGRAM));
        program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program->start();
        return program;
    }

    // True when a copy listens and answers as a running copy does.
    static bool copyAnswers()
    {
        QLocalSocket socket;
        socket.connectToServer(Platform::App_mac::defaultServerName());
        if (!socket.waitForConnected(1000))
            return false;
        socket.write("reopen\n");
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(1000))
                return false;
        }
        return socket.readLine() == "ok\n";
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_home.isValid() && m_temp.isValid());
        // A home and a socket folder of the test's own; the program inherits them.
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("TMPDIR", m_temp.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", m_home.filePath(QStringLiteral(".config")).toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("GuitarTonarium"));
    }

    void secondStart_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<bool>("secondEnds");
        QTest::newRow("first runs") << "running" << true;
        QTest::newRow("first crashed") << "crashed" << false;
        QTest::newRow("first hangs") << "hung" << false;
    }

    void secondStart()
    {
        QFETCH(QString, first);
        QFETCH(bool, secondEnds);
        const auto firstCopy = start();
        QTRY_VERIFY_WITH_TIMEOUT(copyAnswers(), 30000);
        if (first == QLatin1String("crashed")) {
            firstCopy->kill();
            QVERIFY(firstCopy->waitForFinished(10000));
        } else if (first == QLatin1String("hung")) {
            QCOMPARE(::kill(pid_t(firstCopy->processId()), SIGSTOP), 0);
        }

        const auto secondCopy = start();
        if (secondEnds) {
            QVERIFY(secondCopy->waitForFinished(30000));
            QCOMPARE(secondCopy->exitStatus(), QProcess::NormalExit);
            QCOMPARE(secondCopy->exitCode(), 0);
            QCOMPARE(firstCopy->state(), QProcess::Running);
        } else {
            // The answer can only come from the second copy now.
            QTRY_VERIFY_WITH_TIMEOUT(copyAnswers(), 30000);
            QCOMPARE(secondCopy->state(), QProcess::Running);
        }
        for (QProcess* copy : { firstCopy.get(), secondCopy.get() }) {
            if (copy->state() == QProcess::NotRunning)
                continue;
            ::kill(pid_t(copy->processId()), SIGCONT);
            copy->kill();
            copy->waitForFinished(10000);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
