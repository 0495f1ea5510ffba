#include "SettingsStore.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMWidgets;

class tst_SettingsStore : public QObject
{
    Q_OBJECT

private slots:
    void brokenFileIsKeptAside_data();
    void brokenFileIsKeptAside();
    void wrongValuesFallBack_data();
    void wrongValuesFallBack();
};

void tst_SettingsStore::brokenFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("keptAside");

    QByteArray random(4096, '\0');
    quint32 seed = 12345;
    for (char& byte : random) {
        seed = seed * 1103515245u + 12345u;
        byte = char(seed >> 24);
    }
    QTest::newRow("random bytes") << random << true;
    QTest::newRow("a settings file with a NUL in it")
        << QByteArray("[GuitarTonarium]\nLanguage=de\0\0\0Width=900\n", 40) << true;
    QTest::newRow("an empty file") << QByteArray() << false;
    QTest::newRow("a sound settings file") << QByteArray("[GuitarTonarium]\r\nLanguage=de\r\nWidth=900\r\n") << false;
}

// Nothing the user had is lost: a broken file moves aside whole, and the
// store starts empty; a sound one stays where it is, untouched.
void tst_SettingsStore::brokenFileIsKeptAside()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, keptAside);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.plist"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();

    QObject owner;
    QSettings* settings = SettingsStore::open(path, QStringLiteral("GuitarTonarium"), &owner);
    QCOMPARE(settings->status(), QSettings::NoError);
    const QStringList aside = QDir(dir.path()).entryList({ QStringLiteral("settings.plist.broken-*") });
    QCOMPARE(aside.size(), keptAside ? 1 : 0);
    if (keptAside) {
        QFile kept(dir.filePath(aside.first()));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), content);
        QVERIFY(settings->allKeys().isEmpty());
        settings->setValue(QStringLiteral("GuitarTonarium/Language"), QStringLiteral("ru"));
        settings->sync();
        QCOMPARE(QSettings(path, QSettings::IniFormat).value(QStringLiteral("GuitarTonarium/Language")).toString(),
            QStringLiteral("ru"));
    } else {
        QFile same(path);
        QVERIFY(same.open(QIODevice::ReadOnly));
        QCOMPARE(same.readAll(), content);
    }
}

void tst_SettingsStore::wrongValuesFallBack_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("kept");

    QTest::newRow("width of a big screen") << QByteArray("Width=2560") << true;
    QTest::newRow("width of 16777215") << QByteArray("Width=16777215") << false;
    QTest::newRow("height of 100000") << QByteArray("Height=100000") << false;
    QTest::newRow("negative height") << QByteArray("Height=-600") << false;
    QTest::newRow("width as a word") << QByteArray("Width=wide") << false;
    QTest::newRow("width as a list") << QByteArray("Width=800, 600") << false;
    QTest::newRow("width as a typed size") << QByteArray("Width=@Size(800 600)") << false;
    QTest::newRow("switch that is true") << QByteArray("checkupdates=true") << true;
    QTest::newRow("switch as a number") << QByteArray("NeverShowItAgain=1") << true;
    QTest::newRow("switch as a word") << QByteArray("checkupdates=banana") << false;
    QTest::newRow("switch as a list") << QByteArray("AutoReminder=true, false") << false;
    QTest::newRow("count of reminders") << QByteArray("AutoReminderCount=7") << true;
    QTest::newRow("count beyond an int") << QByteArray("AutoReminderCount=99999999999999") << false;
    QTest::newRow("pitch as a float") << QByteArray("Pitch=440.5") << false;
    QTest::newRow("language as a list") << QByteArray("Language=de, ru") << false;
    QTest::newRow("language as bytes") << QByteArray("Language=@ByteArray(de)") << false;
    QTest::newRow("a key of another program") << QByteArray("Colour=@Size(1 2)") << true;
}

// A value that would mislead the program is removed, so that its default
// applies, and the file on disk is corrected; sound values stay.
void tst_SettingsStore::wrongValuesFallBack()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, kept);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.plist"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[GuitarTonarium]\nLanguage=de\n" + line + "\n");
    file.close();
    const QString key = QStringLiteral("GuitarTonarium/") + QString::fromLatin1(line.left(line.indexOf('=')));

    QObject owner;
    QSettings* settings = SettingsStore::open(path, QStringLiteral("GuitarTonarium"), &owner);
    QCOMPARE(settings->contains(key), kept);
    QCOMPARE(QSettings(path, QSettings::IniFormat).contains(key), kept);
    if (key != QLatin1String("GuitarTonarium/Language"))
        QCOMPARE(settings->value(QStringLiteral("GuitarTonarium/Language")).toString(), QStringLiteral("de"));
}

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
