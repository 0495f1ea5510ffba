#include "App_mac.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

#include <unistd.h>

using Platform::App_mac;

// A second launch reaches the running copy, which emits dockClicked().
class tst_App_mac : public QObject
{
    Q_OBJECT

    static QString uniqueName() { return QStringLiteral("tst_App_mac-") + QUuid::createUuid().toString(QUuid::Id128); }

private slots:
    void secondLaunchesReachTheRunningCopy_data()
    {
        QTest::addColumn<bool>("earlierCopyEnded");
        QTest::addColumn<int>("launches");
        QTest::newRow("one second launch") << false << 1;
        QTest::newRow("three second launches") << false << 3;
        QTest::newRow("first launch after an earlier copy ended") << true << 1;
    }

    void secondLaunchesReachTheRunningCopy()
    {
        QFETCH(bool, earlierCopyEnded);
        QFETCH(int, launches);
        const QString name = uniqueName();
        if (earlierCopyEnded)
            QVERIFY(!App_mac(name).isRunningElsewhere());
        App_mac running(name);
        QVERIFY(!running.isRunningElsewhere());
        QSignalSpy clicks(&running, &App_mac::dockClicked);
        for (int i = 0; i < launches; ++i)
            QVERIFY(App_mac(name).isRunningElsewhere());
        QTRY_COMPARE(clicks.count(), launches);
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
