#include "App_mac.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocalServer>
#include <QTest>
#include <QThread>
#include <QUuid>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

using Platform::App_mac;

// A second launch reaches the running copy, which emits dockClicked(); a
// copy that cannot answer does not keep the new launch from starting.
class tst_App_mac : public QObject
{
    Q_OBJECT

    static QString uniqueName() { return QStringLiteral("tst_App_mac-") + QUuid::createUuid().toString(QUuid::Id128); }

    // A socket file whose process is gone, as a crashed copy leaves it.
    static bool leaveStaleSocket(const QString& name)
    {
        const QByteArray path = QFile::encodeName(QDir::tempPath() + QLatin1Char('/') + name);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        if (path.size() >= int(sizeof(address.sun_path)))
            return false;
        std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
        const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const bool bound = fd >= 0 && ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0;
        if (fd >= 0)
            ::close(fd);
        return bound && QFile::exists(QFile::decodeName(path));
    }

private slots:
    void secondLaunchesReachTheRunningCopy_data()
    {
        QTest::addColumn<int>("launches");
        QTest::newRow("one second launch") << 1;
        QTest::newRow("three second launches") << 3;
    }

    void secondLaunchesReachTheRunningCopy()
    {
        QFETCH(int, launches);
        const QString name = uniqueName();
        // The running copy answers from its own event loop, as in its own process.
        QThread runningLoop;
        auto* running = new App_mac(name);
        QVERIFY(!running->isRunningElsewhere());
        int clicks = 0;
        connect(running, &App_mac::dockClicked, this, [&clicks]() { ++clicks; });
        running->moveToThread(&runningLoop);
        connect(&runningLoop, &QThread::finished, running, &QObject::deleteLater);
        runningLoop.start();

        for (int i = 0; i < launches; ++i)
            QVERIFY(App_mac(name).isRunningElsewhere());
        QTRY_COMPARE(clicks, launches);
        runningLoop.quit();
        runningLoop.wait();
    }

    void launchStartsOnItsOwn_data()
    {
        QTest::addColumn<QString>("before");
        QTest::newRow("no copy ran before") << "nothing";
        QTest::newRow("an earlier copy ended") << "ended";
        QTest::newRow("an earlier copy crashed") << "crashed";
        QTest::newRow("the running copy hangs") << "hung";
    }

    void launchStartsOnItsOwn()
    {
        QFETCH(QString, before);
        const QString name = uniqueName();
        // Listening, but this thread never gets back to answer it.
        QLocalServer hung;
        if (before == QLatin1String("ended"))
            QVERIFY(!App_mac(name).isRunningElsewhere());
        else if (before == QLatin1String("crashed"))
            QVERIFY(leaveStaleSocket(name));
        else if (before == QLatin1String("hung"))
            QVERIFY(hung.listen(name));

        auto* launch = new App_mac(name);
        QVERIFY(!launch->isRunningElsewhere());
        // And the next launch finds this one, answering from its own loop.
        QThread loop;
        launch->moveToThread(&loop);
        connect(&loop, &QThread::finished, launch, &QObject::deleteLater);
        loop.start();
        const bool found = App_mac(name).isRunningElsewhere();
        loop.quit();
        loop.wait();
        QVERIFY(found);
    }

    void serverNameIsPerApplicationAndUser_data()
    {
        QTest::addColumn<QString>("secondApplication");
        QTest::addColumn<QString>("secondHome");
        QTest::addColumn<bool>("same");
        QTest::newRow("same application, same home") << "FirstTool"
                                                     << "/home/a" << true;
        QTest::newRow("other application") << "SecondTool"
                                           << "/home/a" << false;
        QTest::newRow("other home") << "FirstTool"
                                    << "/home/b" << false;
    }

    void serverNameIsPerApplicationAndUser()
    {
        QFETCH(QString, secondApplication);
        QFETCH(QString, secondHome);
        QFETCH(bool, same);
        const QByteArray home = qgetenv("HOME");
        QCoreApplication::setApplicationName(QStringLiteral("FirstTool"));
        qputenv("HOME", "/home/a");
        const QString first = App_mac::defaultServerName();
        QCoreApplication::setApplicationName(secondApplication);
        qputenv("HOME", secondHome.toUtf8());
        const QString second = App_mac::defaultServerName();
        qputenv("HOME", home);

        QCOMPARE(first == second, same);
        QVERIFY(first.startsWith(QStringLiteral("FirstTool-") + QString::number(::getuid())));
    }
};

QTEST_GUILESS_MAIN(tst_App_mac)
#include "tst_App_mac.moc"
