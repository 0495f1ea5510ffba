#include "App_mac.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

#include <unistd.h>

// A second launch reaches the running copy, which emits dockClicked().
class tst_App_mac : public QObject
{
    Q_OBJECT

private slots:
    void secondLaunchesReachTheRunningCopy_data();
    void secondLaunchesReachTheRunningCopy();
    void firstLaunchAfterTheRunningCopyEnded();
    void serverNameIsPerApplicationAndUser_data();
    void serverNameIsPerApplicationAndUser();
    void instanceIsMadeOnce();

private:
    static QString uniqueName() { return QStringLiteral("tst_App_mac-") + QUuid::createUuid().toString(QUuid::Id128); }
};

void tst_App_mac::secondLaunchesReachTheRunningCopy_data()
{
    QTest::addColumn<int>("launches");
    QTest::newRow("one second launch") << 1;
    QTest::newRow("three second launches") << 3;
}

void tst_App_mac::secondLaunchesReachTheRunningCopy()
{
    QFETCH(int, launches);
    const QString name = uniqueName();
    App_mac running(name);
    QVERIFY(!running.isRunningElsewhere());
    QSignalSpy clicks(&running, &App_mac::dockClicked);

    for (int i = 0; i < launches; ++i) {
        App_mac second(name);
        QVERIFY(second.isRunningElsewhere());
    }
    QTRY_COMPARE(clicks.count(), launches);
}

void tst_App_mac::firstLaunchAfterTheRunningCopyEnded()
{
    const QString name = uniqueName();
    {
        App_mac earlier(name);
        QVERIFY(!earlier.isRunningElsewhere());
    }
    App_mac later(name);
    QVERIFY(!later.isRunningElsewhere());
    QSignalSpy clicks(&later, &App_mac::dockClicked);
    App_mac second(name);
    QVERIFY(second.isRunningElsewhere());
    QTRY_COMPARE(clicks.count(), 1);
}

void tst_App_mac::serverNameIsPerApplicationAndUser_data()
{
    QTest::addColumn<QString>("secondApplication");
    QTest::addColumn<QString>("secondHome");
    QTest::addColumn<bool>("same");
    QTest::newRow("same application, same home") << "FirstTool" << "/home/a" << true;
    QTest::newRow("other application") << "SecondTool" << "/home/a" << false;
    QTest::newRow("other home") << "FirstTool" << "/home/b" << false;
}

void tst_App_mac::serverNameIsPerApplicationAndUser()
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

void tst_App_mac::instanceIsMadeOnce()
{
    QCoreApplication::setApplicationName(uniqueName());
    App_mac* instance = App_mac::instance();
    QVERIFY(instance);
    QCOMPARE(App_mac::instance(), instance);
    QVERIFY(!instance->isRunningElsewhere());
    QSignalSpy clicks(instance, &App_mac::dockClicked);
    instance->emitClick();
    QCOMPARE(clicks.count(), 1);
}

QTEST_GUILESS_MAIN(tst_App_mac)
#include "tst_App_mac.moc"
