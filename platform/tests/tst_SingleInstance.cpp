#include "App_mac.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
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
    static bool copyAnswers(int timeoutMs)
    {
        const QDeadlineTimer deadline(timeoutMs);
        QLocalSocket socket;
        socket.connectToServer(Platform::App_mac::defaultServerName());
        if (!socket.waitForConnected(deadline.remainingTime()))
            return false;
        socket.write("reopen\n");
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(deadline.remainingTime()))
                return false;
        }
        return socket.readLine() == "ok\n";
    }

    // Asks until a copy answers or the time is up, as QTRY would, each try
    // waiting on the copy's socket.
    static bool waitForAnswer()
    {
        return QTest::qWaitFor([]() { return copyAnswers(200); }, 30000);
    }

    // Ends a copy however the test leaves, a stopped one included.
    struct Ending
    {
        QProcess* copy;
        ~Ending()
        {
            if (copy->state() == QProcess::NotRunning)
                return;
            ::kill(pid_t(copy->processId()), SIGCONT);
            copy->kill();
            copy->waitForFinished(10000);
        }
    };

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
        const Ending endFirst { firstCopy.get() };
        QVERIFY(waitForAnswer());
        if (first == QLatin1String("crashed")) {
            firstCopy->kill();
            QVERIFY(firstCopy->waitForFinished(10000));
        } else if (first == QLatin1String("hung")) {
            QCOMPARE(::kill(pid_t(firstCopy->processId()), SIGSTOP), 0);
        }

        const auto secondCopy = start();
        const Ending endSecond { secondCopy.get() };
        if (secondEnds) {
            QVERIFY(secondCopy->waitForFinished(30000));
            QCOMPARE(secondCopy->exitStatus(), QProcess::NormalExit);
            QCOMPARE(secondCopy->exitCode(), 0);
            QCOMPARE(firstCopy->state(), QProcess::Running);
        } else {
            // The answer can only come from the second copy now.
            QVERIFY(waitForAnswer());
            QCOMPARE(secondCopy->state(), QProcess::Running);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
