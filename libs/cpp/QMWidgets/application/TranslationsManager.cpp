#include "TranslationsManager.h"

#include "App.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

// The libraries' compiled catalogues live in a static library; this pulls
// its resources in. It must be called outside any namespace.
static void initLibraryCatalogues()
{
    Q_INIT_RESOURCE(libs_translations);
}

namespace QMWidgets {

namespace {

TranslationsManager* s_instance = nullptr;

// Tried in this order as substrings of the stored or system locale.
const char* const knownLanguages[] = { "de", "ru", "es", "fr", "hi", "it", "pt", "ko", "ar", "zh_CN" };

} // namespace

TranslationsManager* TranslationsManager::instance()
{
    if (!s_instance)
        s_instance = new TranslationsManager(QCoreApplication::instance());
    return s_instance;
}

TranslationsManager::TranslationsManager(QObject* parent)
    : QObject(parent)
    , m_qtTranslator(new QTranslator(this))
    , m_libsTranslator(new QTranslator(this))
    , m_appTranslator(new QTranslator(this))
{
    initLibraryCatalogues();
    setTranslation(initialLanguage());
}

QString TranslationsManager::initialLanguage()
{
    const QString systemName = QLocale::system().name();
    const App* app = App::theApp();
    return languageFor(app ? app->settingsValue(QStringLiteral("Language"), systemName).toString() : systemName);
}

QString TranslationsManager::languageFor(const QString& localeOrCode)
{
    for (const char* code : knownLanguages) {
        if (localeOrCode.contains(QLatin1String(code)))
            return QLatin1String(code);
    }
    return QStringLiteral("en");
}

QString TranslationsManager::qtCatalogue(const QString& language) const
{
    return QStringLiteral(":/") + m_qtTranslationsBase + QStringLiteral("Translations/qt_") + language;
}

// The extra "/" matches how the libraries lay out their resource tree.
QString TranslationsManager::libsCatalogue(const QString& language) const
{
    return QStringLiteral(":/") + m_libsTranslationsBase + QStringLiteral("/Translations/libs_") + language;
}

QString TranslationsManager::appCatalogue(const QString& language) const
{
    return QStringLiteral(":/") + m_appTranslationsBase + QStringLiteral("Translations/")
        + QCoreApplication::applicationName() + QLatin1Char('_') + language;
}

void TranslationsManager::setTranslation(const QString& language)
{
    QCoreApplication::removeTranslator(m_qtTranslator);
    QCoreApplication::removeTranslator(m_libsTranslator);
    QCoreApplication::removeTranslator(m_appTranslator);

    if (language != QLatin1String("en")) {
        // A missing catalogue leaves the built-in English text.
        if (m_qtTranslator->load(qtCatalogue(language)))
            QCoreApplication::installTranslator(m_qtTranslator);
        if (m_libsTranslator->load(libsCatalogue(language)))
            QCoreApplication::installTranslator(m_libsTranslator);
        if (m_appTranslator->load(appCatalogue(language)))
            QCoreApplication::installTranslator(m_appTranslator);
    }

    m_currentLanguage = language;
    QGuiApplication::setLayoutDirection(language == QLatin1String("ar") ? Qt::RightToLeft : Qt::LeftToRight);

    if (App* app = App::theApp()) {
        app->setSettingsValue(QStringLiteral("Language"), language);
        app->setCurrentLanguage(language);
    }
}

QString TranslationsManager::currentLanguage() const
{
    return m_currentLanguage;
}

void TranslationsManager::retranslate()
{
    setTranslation(m_currentLanguage);
}

void TranslationsManager::setQtTranslationsBase(const QString& base)
{
    m_qtTranslationsBase = base;
}

void TranslationsManager::setAppTranslationsBase(const QString& base)
{
    m_appTranslationsBase = base;
}

void TranslationsManager::setLibsTranslationsBase(const QString& base)
{
    m_libsTranslationsBase = base;
}

} // namespace QMWidgets
