#include "AutostartEntry.h"
#include "Os.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

using Platform::AutostartEntry;
using Platform::Os;

// Start at log-on as an XDG autostart entry, in a private configuration folder.
class tst_AutostartEntry : public QObject
{
    Q_OBJECT

    QTemporaryDir m_config;
    QString m_folder;

    QString entryPath() const { return m_folder + QStringLiteral("/com.example.TestTool.desktop"); }

    QString ownEntry() const
    {
        return QStringLiteral("[Desktop Entry]\nType=Application\nName=tst_AutostartEntry\nExec=%1\n"
                              "X-GNOME-Autostart-enabled=true\n")
            .arg(QCoreApplication::applicationFilePath());
    }

    QString read(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_config.isValid());
        qputenv("XDG_CONFIG_HOME", m_config.path().toUtf8());
        m_folder = m_config.path() + QStringLiteral("/autostart");
        QCoreApplication::setApplicationName(QStringLiteral("tst_AutostartEntry"));
        QGuiApplication::setDesktopFileName(QStringLiteral("com.example.TestTool"));
    }

    void cleanup() { QDir(m_folder).removeRecursively(); }

    void turnOnAndOff_data()
    {
        const QString exe = QCoreApplication::applicationFilePath();
        QTest::addColumn<QString>("before");
        QTest::addColumn<QList<bool>>("steps");
        QTest::addColumn<bool>("enabledBefore");
        QTest::addColumn<bool>("enabledAfter");
        QTest::addColumn<QString>("after");
        const QString foreign = QStringLiteral("[Desktop Entry]\nType=Application\nExec=/usr/bin/other-tool\n");
        const QString notAnEntry = QStringLiteral("remember to practise scales\nExec=%1\n").arg(exe);
        const QString otherGroupFirst
            = QStringLiteral("[Settings]\nExec=%1\n[Desktop Entry]\nType=Application\n").arg(exe);
        QTest::newRow("on") << QString() << QList<bool> { true } << false << true << "ours";
        QTest::newRow("on twice") << QString() << QList<bool> { true, true } << false << true << "ours";
        QTest::newRow("on, then off") << QString() << QList<bool> { true, false } << false << false << "none";
        QTest::newRow("off twice without an entry")
            << QString() << QList<bool> { false, false } << false << false << "none";
        QTest::newRow("another program's entry, on")
            << foreign << QList<bool> { true } << false << false << "unchanged";
        QTest::newRow("another program's entry, off")
            << foreign << QList<bool> { false } << false << false << "unchanged";
        QTest::newRow("no desktop entry, on") << notAnEntry << QList<bool> { true } << false << false << "unchanged";
        QTest::newRow("no desktop entry, off") << notAnEntry << QList<bool> { false } << false << false << "unchanged";
        QTest::newRow("exec outside the entry group")
            << otherGroupFirst << QList<bool> { false } << false << false << "unchanged";
        QTest::newRow("own entry hidden by the desktop, on")
            << QStringLiteral("[Desktop Entry]\nExec=%1\nHidden=true\n").arg(exe) << QList<bool> { true } << false
            << true << "ours";
        QTest::newRow("own entry written by hand, off")
            << QStringLiteral("# started at log-on\n[Desktop Entry]\nExec=\"%1\" --quiet\n").arg(exe)
            << QList<bool> { false } << true << false << "none";
    }

    void turnOnAndOff()
    {
        QFETCH(QString, before);
        QFETCH(QList<bool>, steps);
        QFETCH(bool, enabledBefore);
        QFETCH(bool, enabledAfter);
        QFETCH(QString, after);
        if (!before.isNull()) {
            QVERIFY(QDir().mkpath(m_folder));
            QFile file(entryPath());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(before.toUtf8());
        }
        Os os(QDBusConnection(QStringLiteral("absent")), QDBusConnection(QStringLiteral("absent")));
        QCOMPARE(os.isAutorunAtLogon(), enabledBefore);
        for (const bool on : steps)
            os.changeAutorunAtLogon(on);

        QCOMPARE(os.isAutorunAtLogon(), enabledAfter);
        if (after == QLatin1String("none")) {
            QVERIFY(!QFile::exists(entryPath()));
            // Turning off what was never on leaves no trace, not even the folder.
            QCOMPARE(QDir(m_folder).exists(), !before.isNull() || steps.contains(true));
        } else {
            QCOMPARE(
                QDir(m_folder).entryList(QDir::Files), QStringList(QStringLiteral("com.example.TestTool.desktop")));
            QCOMPARE(read(entryPath()), after == QLatin1String("ours") ? ownEntry() : before);
        }
    }

    void executablePaths_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::addColumn<QString>("exec");
        QTest::newRow("plain") << "/usr/lib/tonarium/GuitarTonarium"
                               << "/usr/lib/tonarium/GuitarTonarium";
        QTest::newRow("spaces") << "/opt/My Apps/Guitar Tonarium"
                                << "\"/opt/My Apps/Guitar Tonarium\"";
        QTest::newRow("quote and dollar") << "/opt/a$b\"c"
                                          << "\"/opt/a\\$b\\\"c\"";
        QTest::newRow("backslash") << "/opt/a\\b"
                                   << "\"/opt/a\\\\b\"";
        QTest::newRow("percent sign") << "/opt/100%/Tool"
                                      << "/opt/100%%/Tool";
    }

    // The entry must start exactly this program, wherever it lies.
    void executablePaths()
    {
        QFETCH(QString, executable);
        QFETCH(QString, exec);
        QCOMPARE(AutostartEntry::execValue(executable), exec);
        const AutostartEntry entry(m_folder, QStringLiteral("com.example.TestTool"), executable);
        QVERIFY(entry.setEnabled(true));
        QVERIFY(entry.isEnabled());
        QVERIFY(
            !AutostartEntry(m_folder, QStringLiteral("com.example.TestTool"), QStringLiteral("/opt/My")).isEnabled());
    }
};

QTEST_GUILESS_MAIN(tst_AutostartEntry)
#include "tst_AutostartEntry.moc"
