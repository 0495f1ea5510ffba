#include "App.h"
#include "ModalAnswerer.h"
#include "ReminderChoice.h"
#include "SettingsLock.h"

#include <QDesktopServices>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using QMWidgets::App;
using QMWidgets::ReminderChoice;

namespace {

// What the next start of the program reads from the settings file.
QVariant storedValue(const QString& key)
{
    App::theApp()->settings()->sync();
    QSettings file(App::theApp()->settings()->fileName(), QSettings::IniFormat);
    return file.value(QCoreApplication::applicationName() + QLatin1Char('/') + key);
}

} // namespace

class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QStringList urls;
public slots:
    void openUrl(const QUrl& url) { urls.append(url.toString()); }
};

class tst_Reminders : public QObject
{
    Q_OBJECT

    UrlCatcher m_catcher;

private slots:
    void initTestCase()
    {
        for (const char* scheme : { "http", "https", "mailto" })
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_catcher, "openUrl");
        App::theApp()->setAppId(QStringLiteral("id123456789"));
        App::theApp()->setCorvaneLinks();
    }

    void kindFor_data()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<quint32>("random");
        QTest::addColumn<bool>("store");
        QTest::addColumn<int>("kind");
        QTest::newRow("all three, 0") << 7 << 0u << false << 1;
        QTest::newRow("all three, 1") << 7 << 1u << false << 2;
        QTest::newRow("all three, 2") << 7 << 2u << false << 4;
        QTest::newRow("all three, 5") << 7 << 5u << false << 4;
        QTest::newRow("rate or tell, even") << 3 << 10u << false << 1;
        QTest::newRow("rate or tell, odd") << 3 << 11u << false << 2;
        QTest::newRow("rate or join, even") << 5 << 4u << false << 1;
        QTest::newRow("rate or join, odd") << 5 << 7u << false << 4;
        QTest::newRow("tell or join, even gives join") << 6 << 8u << false << 4;
        QTest::newRow("tell or join, odd gives tell") << 6 << 9u << false << 2;
        QTest::newRow("8 in a store build") << 8 << 1u << true << 1;
        QTest::newRow("8 outside the store") << 8 << 0u << false << 2;
        QTest::newRow("join alone") << 4 << 1u << false << 4;
    }

    void kindFor()
    {
        QFETCH(int, mask);
        QFETCH(quint32, random);
        QFETCH(bool, store);
        QFETCH(int, kind);
        QCOMPARE(ReminderChoice::kindFor(mask, random, store), kind);
    }

    void manyLaunches_data()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<int>("divisor");
        QTest::addColumn<QList<int>>("permitted");
        QTest::newRow("main's call: tell or join every fifth") << 6 << 5 << QList<int> { 2, 4 };
        QTest::newRow("all kinds every tenth") << 7 << 10 << QList<int> { 1, 2, 4 };
        QTest::newRow("rate only every third") << 1 << 3 << QList<int> { 1 };
    }

    // 200 launches, each seeded as the program seeds: reminders come at
    // every divisor-th launch only, and every permitted kind comes up.
    void manyLaunches()
    {
        QFETCH(int, mask);
        QFETCH(int, divisor);
        QFETCH(QList<int>, permitted);
        QRandomGenerator random(1234);
        int count = 1;
        QList<int> shownAt;
        QSet<int> kinds;
        for (int launch = 1; launch <= 200; ++launch) {
            const int kind = ReminderChoice::kindFor(mask, random.generate(), false);
            if (ReminderChoice::isDue(count, divisor)) {
                shownAt.append(launch);
                kinds.insert(kind);
            }
            count = ReminderChoice::nextCount(count);
        }
        QCOMPARE(shownAt.size(), 200 / divisor);
        for (int launch : shownAt)
            QCOMPARE(launch % divisor, 0);
        QCOMPARE(kinds, QSet<int>(permitted.begin(), permitted.end()));
    }

    void nextCount_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("next");
        QTest::newRow("first launch") << 1 << 2;
        QTest::newRow("top of the range wraps") << std::numeric_limits<int>::max() << 1;
        QTest::newRow("corrupt negative starts over") << -7 << 1;
    }

    void nextCount()
    {
        QFETCH(int, count);
        QFETCH(int, next);
        QCOMPARE(ReminderChoice::nextCount(count), next);
    }

    void launch_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("autoReminder");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<bool>("autoReminderAfter");
        QTest::addColumn<int>("countAfter");
        QTest::addColumn<QString>("opened");
        QTest::newRow("first launch: none") << 2 << true << 1 << ""
                                            << "" << true << 2 << "";
        QTest::newRow("fifth: tell, later") << 2 << true << 5 << "&Maybe Later"
                                            << "QMWidgets::TellReminderDialog" << true << 6 << "";
        QTest::newRow("tenth: join, never") << 4 << true << 10 << "&Never Ask Me Again"
                                            << "QMWidgets::JoinReminderDialog" << false << 11 << "";
        QTest::newRow("rate now opens the store") << 1 << true << 15 << "&Rate It Now"
                                                  << "QMWidgets::RateReminderDialog" << false << 16
                                                  << "https://apps.apple.com/app/tonariumtest/id123456789?ls=1&mt=12";
        QTest::newRow("closed without a choice") << 2 << true << 20 << ""
                                                 << "QMWidgets::TellReminderDialog" << true << 21 << "";
        QTest::newRow("never again after a restart") << 2 << false << 25 << ""
                                                     << "" << false << 25 << "";
        QTest::newRow("top of the range wraps") << 2 << true << std::numeric_limits<int>::max() << ""
                                                << "" << true << 1 << "";
    }

    void launch()
    {
        QFETCH(int, kind);
        QFETCH(bool, autoReminder);
        QFETCH(int, count);
        QFETCH(QString, button);
        QFETCH(QString, dialog);
        QFETCH(bool, autoReminderAfter);
        QFETCH(int, countAfter);
        QFETCH(QString, opened);
        App* app = App::theApp();
        app->setSettingsValue(QStringLiteral("AutoReminder"), autoReminder);
        app->setSettingsValue(QStringLiteral("AutoReminderCount"), count);
        app->settings()->sync();
        m_catcher.urls.clear();

        ModalAnswerer answerer(button);
        app->setRemiderDelay(0);
        if (kind == 1)
            app->callRateReminder(5);
        else if (kind == 2)
            app->callTellReminder(5);
        else
            app->callJoinReminder(5);
        if (dialog.isEmpty()) {
            // A reminder with no delay is a queued call.
            QCoreApplication::processEvents();
            QCOMPARE(storedValue(QStringLiteral("AutoReminderCount")).toInt(), countAfter);
            QVERIFY(!answerer.answered());
        } else {
            QTRY_VERIFY(answerer.answered());
            QCOMPARE(answerer.className(), dialog);
            QTRY_COMPARE(storedValue(QStringLiteral("AutoReminderCount")).toInt(), countAfter);
        }
        QCOMPARE(storedValue(QStringLiteral("AutoReminder")).toBool(), autoReminderAfter);
        QCOMPARE(m_catcher.urls, opened.isEmpty() ? QStringList() : QStringList { opened });
    }

    // Two programs counting their launches in one settings file at the same
    // time: no launch is lost.
    void twoProgramsCountAtOnce()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("settings.plist"));
        const int bumps = 60;
        QList<QProcess*> programs;
        for (int i = 0; i < 2; ++i) {
            auto* program = new QProcess(this);
            program->start(
                QCoreApplication::applicationFilePath(), { QStringLiteral("--bump"), path, QString::number(bumps) });
            programs.append(program);
        }
        for (QProcess* program : programs) {
            QVERIFY(program->waitForFinished(60000));
            QCOMPARE(program->exitCode(), 0);
            delete program;
        }
        QSettings file(path, QSettings::IniFormat);
        QCOMPARE(file.value(QStringLiteral("Count")).toInt(), 2 * bumps);
    }
};

int main(int argc, char* argv[])
{
    // A second program for twoProgramsCountAtOnce.
    if (argc == 4 && QByteArray(argv[1]) == "--bump") {
        QCoreApplication core(argc, argv);
        QSettings settings(QString::fromLocal8Bit(argv[2]), QSettings::IniFormat);
        for (int i = QByteArray(argv[3]).toInt(); i > 0; --i) {
            QMWidgets::SettingsLock::update(
                &settings, QStringLiteral("Count"), 0, [](const QVariant& value) { return value.toInt() + 1; });
        }
        return 0;
    }
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("TonariumTest"));
    tst_Reminders test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Reminders.moc"
