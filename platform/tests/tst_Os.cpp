#include "Os.h"
#include "PrivateBus.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QSessionManager>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QUrl>

using Platform::Os;

namespace {

const QString loginService = QStringLiteral("org.freedesktop.login1");
const QString loginPath = QStringLiteral("/org/freedesktop/login1");
const QString loginManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString fileManagerService = QStringLiteral("org.freedesktop.FileManager1");
const QString ownSession = QStringLiteral("/org/freedesktop/login1/session/_32");

} // namespace

// Stands for logind: answers which session the caller is in.
class FakeLogin : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    int queries = 0;

public slots:
    QDBusObjectPath GetSessionByPID(uint)
    {
        ++queries;
        return QDBusObjectPath(ownSession);
    }
};

// Stands for the file manager. It lives in a thread of its own, as the
// program waits for its answer.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown() const
    {
        QMutexLocker lock(&m_mutex);
        return m_shown;
    }

public slots:
    void ShowItems(const QStringList& uris, const QString&)
    {
        QMutexLocker lock(&m_mutex);
        m_shown += uris;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_shown;
};

// Hears the launcher-entry signal on the bus.
class LauncherListener : public QObject
{
    Q_OBJECT

public:
    QString appUri;
    QVariantMap properties;
    int updates = 0;

public slots:
    void slotUpdate(const QString& uri, const QVariantMap& values)
    {
        appUri = uri;
        properties = values;
        ++updates;
    }
};

// Receives the URLs that would go to the desktop's default programs.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public slots:
    void slotOpen(const QUrl& url) { urls << url; }
};

class tst_Os : public QObject
{
    Q_OBJECT

    PrivateBus m_bus;
    QThread m_fileManagerThread;
    FakeLogin m_login;
    FakeFileManager* m_fileManager = nullptr;

    static QDBusConnection connection(const QString& name) { return QDBusConnection(name); }

    void sendLoginSignal(const QString& name, const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createSignal(loginPath, loginManager, name);
        message.setArguments(arguments);
        QVERIFY(connection(QStringLiteral("peer")).send(message));
    }

private slots:
    void initTestCase()
    {
        if (m_bus.address().isEmpty())
            QSKIP("dbus-daemon could not be started");
        QGuiApplication::setDesktopFileName(QStringLiteral("com.example.TestTool"));
        for (const char* name : { "peer", "program", "listener" })
            QVERIFY(QDBusConnection::connectToBus(m_bus.address(), QLatin1String(name)).isConnected());
        const QDBusConnection peer = connection(QStringLiteral("peer"));
        QVERIFY(peer.interface()->registerService(loginService).isValid());
        QVERIFY(
            connection(QStringLiteral("peer")).registerObject(loginPath, &m_login, QDBusConnection::ExportAllSlots));

        m_fileManager = new FakeFileManager;
        m_fileManager->moveToThread(&m_fileManagerThread);
        connect(&m_fileManagerThread, &QThread::finished, m_fileManager, &QObject::deleteLater);
        m_fileManagerThread.start();
        QVERIFY(connection(QStringLiteral("peer"))
                    .registerObject(QStringLiteral("/org/freedesktop/FileManager1"), m_fileManager,
                        QDBusConnection::ExportAllSlots));
    }

    void cleanupTestCase()
    {
        m_fileManagerThread.quit();
        m_fileManagerThread.wait();
        for (const char* name : { "peer", "program", "listener" })
            QDBusConnection::disconnectFromBus(QLatin1String(name));
    }

    void loginSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QVariantList>("arguments");
        QTest::addColumn<int>("standBy");
        QTest::addColumn<int>("wakeUp");
        QTest::addColumn<int>("logout");
        QTest::newRow("going to sleep") << "PrepareForSleep" << QVariantList { true } << 1 << 0 << 0;
        QTest::newRow("woken") << "PrepareForSleep" << QVariantList { false } << 0 << 1 << 0;
        QTest::newRow("own session removed")
            << "SessionRemoved"
            << QVariantList { QStringLiteral("32"), QVariant::fromValue(QDBusObjectPath(ownSession)) } << 0 << 0 << 1;
        QTest::newRow("other session removed")
            << "SessionRemoved"
            << QVariantList { QStringLiteral("7"),
                   QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/freedesktop/login1/session/_37"))) }
            << 0 << 0 << 0;
        QTest::newRow("the desktop's session manager ends the session") << QString() << QVariantList() << 0 << 0 << 1;
    }

    void loginSignals()
    {
        QFETCH(QString, signal);
        QFETCH(QVariantList, arguments);
        QFETCH(int, standBy);
        QFETCH(int, wakeUp);
        QFETCH(int, logout);
        const int queries = m_login.queries;
        Os os(connection(QStringLiteral("program")), connection(QStringLiteral("program")));
        QSignalSpy standBySpy(&os, &Os::atSwitchToStandBy);
        QSignalSpy wakeUpSpy(&os, &Os::atWakeUpFromStandBy);
        QSignalSpy logoutSpy(&os, &Os::atUserLogout);
        QTRY_COMPARE(m_login.queries, queries + 1);

        if (signal.isEmpty()) {
            // Nothing reads the session manager: the signal itself is what counts.
            QSessionManager* manager = nullptr;
            QVERIFY(QMetaObject::invokeMethod(
                qApp, "commitDataRequest", Qt::DirectConnection, QGenericArgument("QSessionManager&", manager)));
        } else {
            sendLoginSignal(signal, arguments);
        }
        // A wake-up after the row's signal: once it has come, so has the row's.
        sendLoginSignal(QStringLiteral("PrepareForSleep"), { false });
        QTRY_COMPARE(wakeUpSpy.count(), wakeUp + 1);
        QCOMPARE(standBySpy.count(), standBy);
        QCOMPARE(logoutSpy.count(), logout);
    }

    void launcherBadge_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("unset");
        QTest::addColumn<qlonglong>("count");
        QTest::addColumn<bool>("visible");
        QTest::newRow("a number") << 12 << false << 12LL << true;
        QTest::newRow("zero is shown") << 0 << false << 0LL << true;
        QTest::newRow("unset clears") << 3 << true << 0LL << false;
    }

    void launcherBadge()
    {
        QFETCH(int, number);
        QFETCH(bool, unset);
        QFETCH(qlonglong, count);
        QFETCH(bool, visible);
        LauncherListener listener;
        QVERIFY(connection(QStringLiteral("listener"))
                    .connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                        QStringLiteral("Update"), &listener, SLOT(slotUpdate(QString, QVariantMap))));
        Os os(QDBusConnection(QStringLiteral("absent")), connection(QStringLiteral("program")));
        os.setAppIconNumber(number);
        if (unset)
            os.unsetAppIconNumber();
        QTRY_COMPARE(listener.updates, unset ? 2 : 1);
        QCOMPARE(listener.appUri, QStringLiteral("application://com.example.TestTool.desktop"));
        QCOMPARE(listener.properties.value(QStringLiteral("count")), QVariant(count));
        QCOMPARE(listener.properties.value(QStringLiteral("count-visible")), QVariant(visible));
    }

    void openFolderAndSelectFile_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("uriName");
        QTest::addColumn<bool>("fileExists");
        QTest::addColumn<bool>("fileManagerRuns");
        QTest::addColumn<bool>("busConnected");
        QTest::addColumn<bool>("shownByFileManager");
        QTest::addColumn<bool>("folderOpened");
        QTest::newRow("file manager shows the file") << "take 1.wav"
                                                     << "take%201.wav" << true << true << true << true << false;
        QTest::newRow("no file manager: the folder opens") << "take 1.wav"
                                                           << "take%201.wav" << true << false << true << false << true;
        QTest::newRow("no bus: the folder opens") << "take 1.wav"
                                                  << "take%201.wav" << true << true << false << false << true;
        QTest::newRow("missing file") << "gone.wav"
                                      << "gone.wav" << false << true << true << false << false;
    }

    void openFolderAndSelectFile()
    {
        QFETCH(QString, fileName);
        QFETCH(QString, uriName);
        QFETCH(bool, fileExists);
        QFETCH(bool, fileManagerRuns);
        QFETCH(bool, busConnected);
        QFETCH(bool, shownByFileManager);
        QFETCH(bool, folderOpened);
        QTemporaryDir dir;
        const QString path = dir.filePath(fileName);
        if (fileExists) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QDBusConnectionInterface* names = connection(QStringLiteral("peer")).interface();
        if (fileManagerRuns)
            QVERIFY(names->registerService(fileManagerService).isValid());
        UrlCatcher catcher;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &catcher, "slotOpen");
        const QStringList shownBefore = m_fileManager->shown();

        Os os(QDBusConnection(QStringLiteral("absent")),
            busConnected ? connection(QStringLiteral("program")) : QDBusConnection(QStringLiteral("absent")));
        const bool opened = os.openFolderAndSelectFile(path);

        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        if (fileManagerRuns)
            names->unregisterService(fileManagerService);
        const QStringList shown = m_fileManager->shown().mid(shownBefore.size());
        QCOMPARE(opened, shownByFileManager || folderOpened);
        QCOMPARE(shown,
            shownByFileManager ? QStringList(QStringLiteral("file://") + dir.path() + QLatin1Char('/') + uriName)
                               : QStringList());
        QCOMPARE(catcher.urls, folderOpened ? QList<QUrl> { QUrl::fromLocalFile(dir.path()) } : QList<QUrl>());
    }
};

QTEST_MAIN(tst_Os)
#include "tst_Os.moc"
