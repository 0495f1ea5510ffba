#include "App.h"
#include "LocalHttpServer.h"
#include "ModalAnswerer.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using QMRequest::ServerPair;
using QMWidgets::App;

namespace {

// Counts its paints; a timer asks for one every 10 ms.
class PaintCounter : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

const char newer[] = "The newer version of TonariumTest is available.";
const char latest[] = "You are using the latest version available.";
const char noConnection[] = "No internet connection is available";

} // namespace

class tst_AppUpdateCheck : public QObject
{
    Q_OBJECT

    LocalHttpServer m_server;

    QString server(const QString& answer)
    {
        if (answer == QLatin1String("offline"))
            return LocalHttpServer::offlineUrl();
        if (answer == QLatin1String("redirect"))
            return m_server.url(QStringLiteral("redirect-%1").arg(m_server.port()));
        if (answer == QLatin1String("same"))
            return m_server.url(QStringLiteral("date-") + App::theApp()->buildDate().toString(Qt::ISODate));
        return m_server.url(answer);
    }

    void useServers(const QString& primary, const QString& fallback)
    {
        App::theApp()->setUpdateServers(ServerPair { server(primary), server(fallback), 1000 });
        m_server.clearRequests();
    }

    // Every answer of the server as the user meets it: the message of the
    // check by hand, and whether the automatic check speaks at all.
    static void addAnswers()
    {
        QTest::addColumn<QString>("primary");
        QTest::addColumn<QString>("fallback");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<QString>("message");
        const QString update = QStringLiteral("QMWidgets::AppUpdateDialog");
        const QString error = QStringLiteral("QMWidgets::MMessageBox");
        QTest::newRow("newer date") << "date-2099-01-01"
                                    << "offline" << update << newer;
        QTest::newRow("older date") << "date-2000-01-01"
                                    << "offline" << update << latest;
        QTest::newRow("build date") << "same"
                                    << "offline" << update << latest;
        QTest::newRow("404") << "status-404"
                             << "status-404" << error << noConnection;
        QTest::newRow("500") << "status-500"
                             << "offline" << error << noConnection;
        QTest::newRow("empty body") << "empty"
                                    << "empty" << error << noConnection;
        QTest::newRow("web page") << "text"
                                  << "offline" << error << noConnection;
        QTest::newRow("NUL before the date") << "nul"
                                             << "offline" << error << noConnection;
        QTest::newRow("10 MB body") << "big"
                                    << "offline" << update << newer;
        QTest::newRow("stalls past the limit") << "stall"
                                               << "stall" << error << noConnection;
        QTest::newRow("closed halfway") << "halfway"
                                        << "offline" << error << noConnection;
        QTest::newRow("redirect not followed") << "redirect"
                                               << "offline" << error << noConnection;
        QTest::newRow("offline") << "offline"
                                 << "offline" << error << noConnection;
        QTest::newRow("fallback answers") << "status-500"
                                          << "date-2099-01-01" << update << newer;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        // "Yes" would open the browser.
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "deleteLater");
    }

    void checkByHand_data() { addAnswers(); }

    void checkByHand()
    {
        QFETCH(QString, primary);
        QFETCH(QString, fallback);
        QFETCH(QString, dialog);
        QFETCH(QString, message);
        useServers(primary, fallback);
        ModalAnswerer answerer;
        App::theApp()->slotCheckUpdate();
        QVERIFY(answerer.answered());
        QCOMPARE(answerer.className(), dialog);
        QVERIFY2(answerer.texts().contains(message), qPrintable(answerer.texts()));
        // Nothing but the application's name went out, to the servers named.
        for (const QString& request : m_server.requests()) {
            QVERIFY2(request.endsWith(QLatin1String("/apps/appscontrol/updaterequest.php?appname=tonariumtest")),
                qPrintable(request));
        }
    }

    void automaticCheck_data() { addAnswers(); }

    // Only a newer release is told; the rest stays silent.
    void automaticCheck()
    {
        QFETCH(QString, primary);
        QFETCH(QString, fallback);
        QFETCH(QString, dialog);
        QFETCH(QString, message);
        App* app = App::theApp();
        useServers(primary, fallback);
        app->setSettingsValue(QStringLiteral("LastUpdateCheckDate"),
            QDate::currentDate().addDays(-6).toString(QStringLiteral("yyyy-MM-dd")));
        ModalAnswerer answerer;
        QMetaObject::invokeMethod(app, "nop_cuos");
        QCOMPARE(answerer.answered(), message == QLatin1String(newer));
        if (answerer.answered())
            QVERIFY(answerer.texts().contains(message));
        QVERIFY(!m_server.requests().isEmpty() || primary == QLatin1String("offline"));
        QCOMPARE(app->settingsValue(QStringLiteral("LastUpdateCheckDate")).toString(),
            QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")));
    }

    void automaticSchedule_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("requests");
        QTest::addColumn<bool>("storesToday");
        const auto daysAgo
            = [](int days) { return QDate::currentDate().addDays(-days).toString(QStringLiteral("yyyy-MM-dd")); };
        QTest::newRow("first start") << QString() << 0 << true;
        QTest::newRow("unreadable date") << "next tuesday" << 0 << true;
        QTest::newRow("five days ago") << daysAgo(5) << 0 << false;
        QTest::newRow("six days ago") << daysAgo(6) << 1 << true;
    }

    void automaticSchedule()
    {
        QFETCH(QString, stored);
        QFETCH(int, requests);
        QFETCH(bool, storesToday);
        App* app = App::theApp();
        useServers(QStringLiteral("date-2000-01-01"), QStringLiteral("offline"));
        const QString key = QStringLiteral("LastUpdateCheckDate");
        app->settings()->remove(QCoreApplication::applicationName() + QLatin1Char('/') + key);
        if (!stored.isNull())
            app->setSettingsValue(key, stored);
        QMetaObject::invokeMethod(app, "nop_cuos");
        QCOMPARE(m_server.requests().size(), requests);
        const QString today = QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"));
        QCOMPARE(app->settingsValue(key).toString(), storesToday ? today : stored);
    }

    void windowRepaintsWhileARequestWaits()
    {
        PaintCounter window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTimer repaint;
        connect(&repaint, &QTimer::timeout, &window, qOverload<>(&QWidget::update));
        repaint.start(10);
        useServers(QStringLiteral("stall"), QStringLiteral("stall"));
        window.paints = 0;
        QVERIFY(App::theApp()->getUpdateRequest().isEmpty());
        QVERIFY2(window.paints >= 3, qPrintable(QString::number(window.paints)));
    }

    void checkFromInsideAModalDialog()
    {
        useServers(QStringLiteral("date-2099-01-01"), QStringLiteral("offline"));
        QDialog help;
        ModalAnswerer answerer(QStringLiteral("No"), "QMWidgets::AppUpdateDialog");
        QTimer::singleShot(0, &help, [&help]() {
            App::theApp()->slotCheckUpdate();
            help.accept();
        });
        QCOMPARE(help.exec(), int(QDialog::Accepted));
        QVERIFY(answerer.answered());
        QVERIFY(answerer.texts().contains(QLatin1String(newer)));
    }

    void modalDialogOpensWhileARequestRuns()
    {
        useServers(QStringLiteral("stall"), QStringLiteral("stall"));
        bool opened = false;
        QTimer::singleShot(0, this, [&opened]() {
            QDialog reminder;
            opened = true;
            reminder.exec();
        });
        ModalAnswerer answerer;
        QVERIFY(App::theApp()->getUpdateRequest().isEmpty());
        QVERIFY(opened);
        QVERIFY(answerer.answered());
    }

    void launchCountSentOnce()
    {
        App* app = App::theApp();
        app->setCounterServers(
            ServerPair { m_server.url(QStringLiteral("empty")), server(QStringLiteral("text")), 1000 });
        m_server.clearRequests();
        app->startCount();
        QCOMPARE(app->settingsValue(QStringLiteral("Initialized")).toBool(), true);
        QTRY_COMPARE(m_server.requests().size(), 2);
        QCOMPARE(m_server.requests(),
            QStringList({ QStringLiteral("/empty/apps/appscontrol/appcounter.php?appname=tonariumtest"),
                QStringLiteral("/text/apps/appscontrol/appcounter.php?appname=tonariumtest") }));
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    // The check that construction schedules stays out of the way of the tests.
    {
        const QString support = home.path() + QStringLiteral("/Library/Application Support/TonariumTest/");
        QDir().mkpath(support);
        QSettings settings(support + QStringLiteral("settings.plist"), QSettings::IniFormat);
        settings.setValue(QStringLiteral("TonariumTest/checkupdates"), false);
    }
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("TonariumTest"));
    tst_AppUpdateCheck test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AppUpdateCheck.moc"
