#include "App.h"
#include "TranslationsManager.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using QMWidgets::App;
using QMWidgets::TranslationsManager;

// The language is chosen once from the settings or the system locale; the
// compiled catalogues for it are found and installed.
class tst_TranslationsManager : public QObject
{
    Q_OBJECT

private slots:
    void firstUseTakesTheSystemLocaleAndStoresIt();
    void languageFor_data();
    void languageFor();
    void initialLanguageFromTheSettings_data();
    void initialLanguageFromTheSettings();
    void cataloguePaths_data();
    void cataloguePaths();
    void cataloguesAreCompiledIn_data();
    void cataloguesAreCompiledIn();
    void setTranslation_data();
    void setTranslation();
    void retranslateRewritesTheKey();

private:
    static QString storedLanguage() { return App::theApp()->settingsValue(QStringLiteral("Language")).toString(); }
};

void tst_TranslationsManager::firstUseTakesTheSystemLocaleAndStoresIt()
{
    // main() started with no settings file and a system locale de_AT.
    QVERIFY(!App::theApp()->settings()->contains(QStringLiteral("TonariumTest/Language")));
    QCOMPARE(App::theApp()->currentLanguage(), QStringLiteral("de"));
    QCOMPARE(TranslationsManager::instance()->currentLanguage(), QStringLiteral("de"));
    QCOMPARE(storedLanguage(), QStringLiteral("de"));
    QCOMPARE(QCoreApplication::translate("QMWidgets::App", "About"), QStringLiteral("Über"));
}

void tst_TranslationsManager::languageFor_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    QTest::newRow("de_DE") << "de_DE"
                           << "de";
    QTest::newRow("de_AT") << "de_AT"
                           << "de";
    QTest::newRow("ru_RU") << "ru_RU"
                           << "ru";
    QTest::newRow("plain fr") << "fr"
                              << "fr";
    QTest::newRow("pt_BR") << "pt_BR"
                           << "pt";
    QTest::newRow("hi_IN") << "hi_IN"
                           << "hi";
    QTest::newRow("ar_EG") << "ar_EG"
                           << "ar";
    QTest::newRow("es_AR takes the earlier es") << "es_AR"
                                                << "es";
    QTest::newRow("zh_CN") << "zh_CN"
                           << "zh_CN";
    QTest::newRow("zh_TW is not known") << "zh_TW"
                                        << "en";
    QTest::newRow("zh_HK is not known") << "zh_HK"
                                        << "en";
    QTest::newRow("en_US") << "en_US"
                           << "en";
    QTest::newRow("case matters") << "DE"
                                  << "en";
    QTest::newRow("unknown code") << "xx"
                                  << "en";
    QTest::newRow("empty") << ""
                           << "en";
}

void tst_TranslationsManager::languageFor()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QCOMPARE(TranslationsManager::languageFor(locale), language);
}

void tst_TranslationsManager::initialLanguageFromTheSettings_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("language");
    QTest::newRow("absent: system de_AT") << ""
                                          << "de";
    QTest::newRow("stored ru") << "ru"
                               << "ru";
    QTest::newRow("stored xx") << "xx"
                               << "en";
    QTest::newRow("stored zh_CN") << "zh_CN"
                                  << "zh_CN";
    QTest::newRow("stored zh_HK") << "zh_HK"
                                  << "en";
}

void tst_TranslationsManager::initialLanguageFromTheSettings()
{
    QFETCH(QString, stored);
    QFETCH(QString, language);
    App* app = App::theApp();
    if (stored.isEmpty())
        app->settings()->remove(QStringLiteral("TonariumTest/Language"));
    else
        app->setSettingsValue(QStringLiteral("Language"), stored);
    QCOMPARE(TranslationsManager::initialLanguage(), language);
}

void tst_TranslationsManager::cataloguePaths_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("qt");
    QTest::addColumn<QString>("libs");
    QTest::addColumn<QString>("app");
    QTest::newRow("no base") << ""
                             << ":/Translations/qt_ru"
                             << "://Translations/libs_ru"
                             << ":/Translations/TonariumTest_ru";
    QTest::newRow("with base") << "Music"
                               << ":/MusicTranslations/qt_ru"
                               << ":/Music/Translations/libs_ru"
                               << ":/MusicTranslations/TonariumTest_ru";
}

void tst_TranslationsManager::cataloguePaths()
{
    QFETCH(QString, base);
    QFETCH(QString, qt);
    QFETCH(QString, libs);
    QFETCH(QString, app);
    TranslationsManager* manager = TranslationsManager::instance();
    manager->setQtTranslationsBase(base);
    manager->setLibsTranslationsBase(base);
    manager->setAppTranslationsBase(base);
    const QStringList paths = { manager->qtCatalogue(QStringLiteral("ru")),
        manager->libsCatalogue(QStringLiteral("ru")), manager->appCatalogue(QStringLiteral("ru")) };
    manager->setQtTranslationsBase(QString());
    manager->setLibsTranslationsBase(QString());
    manager->setAppTranslationsBase(QString());
    QCOMPARE(paths, QStringList({ qt, libs, app }));
}

void tst_TranslationsManager::cataloguesAreCompiledIn_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("de") << "de";
    QTest::newRow("ru") << "ru";
}

void tst_TranslationsManager::cataloguesAreCompiledIn()
{
    QFETCH(QString, language);
    TranslationsManager* manager = TranslationsManager::instance();
    QTranslator libs;
    QVERIFY(libs.load(manager->libsCatalogue(language)));
    QVERIFY(!libs.isEmpty());
    QTranslator qt;
    QVERIFY(qt.load(manager->qtCatalogue(language)));
    QVERIFY(!qt.translate("QPlatformTheme", "Cancel").isEmpty());

    QCoreApplication::setApplicationName(QStringLiteral("GuitarTonarium"));
    const QString appCatalogue = manager->appCatalogue(language);
    QCoreApplication::setApplicationName(QStringLiteral("TonariumTest"));
    QVERIFY2(QFile::exists(appCatalogue + QStringLiteral(".qm")), qPrintable(appCatalogue));
}

void tst_TranslationsManager::setTranslation_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("about");
    QTest::newRow("German") << "de" << int(Qt::LeftToRight) << QStringLiteral("Über");
    QTest::newRow("Russian") << "ru" << int(Qt::LeftToRight) << QStringLiteral("О программе");
    QTest::newRow("Arabic without catalogue turns right-to-left") << "ar" << int(Qt::RightToLeft) << "About";
    QTest::newRow("English removes the catalogues") << "en" << int(Qt::LeftToRight) << "About";
    QTest::newRow("unknown code") << "xx" << int(Qt::LeftToRight) << "About";
}

void tst_TranslationsManager::setTranslation()
{
    QFETCH(QString, language);
    QFETCH(int, direction);
    QFETCH(QString, about);
    TranslationsManager::instance()->setTranslation(language);
    QCOMPARE(TranslationsManager::instance()->currentLanguage(), language);
    QCOMPARE(App::theApp()->currentLanguage(), language);
    QCOMPARE(storedLanguage(), language);
    QCOMPARE(int(QGuiApplication::layoutDirection()), direction);
    QCOMPARE(QCoreApplication::translate("QMWidgets::App", "About"), about);
}

void tst_TranslationsManager::retranslateRewritesTheKey()
{
    TranslationsManager* manager = TranslationsManager::instance();
    manager->setTranslation(QStringLiteral("ru"));
    App::theApp()->setSettingsValue(QStringLiteral("Language"), QStringLiteral("zz"));
    manager->retranslate();
    QCOMPARE(manager->currentLanguage(), QStringLiteral("ru"));
    QCOMPARE(storedLanguage(), QStringLiteral("ru"));
    QCOMPARE(QCoreApplication::translate("QMWidgets::App", "About"), QStringLiteral("О программе"));
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("LC_ALL", "de_AT.UTF-8");
    qputenv("LANG", "de_AT.UTF-8");
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("TonariumTest"));
    tst_TranslationsManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TranslationsManager.moc"
