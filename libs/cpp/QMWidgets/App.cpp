#include "App.h"

#include <QDir>
#include <QScreen>
#include <QSettings>

namespace QMWidgets {

App::App(int& argc, char** argv, const QString& organizationName, const QString& applicationName)
    : QApplication(argc, argv)
{
    QCoreApplication::setOrganizationName(organizationName);
    QCoreApplication::setApplicationName(applicationName);

    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, supportDirectory(true));
    m_settings = new QSettings(supportDirectory(true) + QStringLiteral("settings.plist"), QSettings::IniFormat, this);

    m_bundleResourcePath = QDir::cleanPath(QCoreApplication::applicationDirPath().remove(QStringLiteral("MacOS")))
        + QStringLiteral("/Resources/");
}

App::~App() = default;

App* App::theApp()
{
    return qobject_cast<App*>(QCoreApplication::instance());
}

QString App::settingsKey(const QString& key) const
{
    return QCoreApplication::applicationName() + QLatin1Char('/') + key;
}

QVariant App::settingsValue(const QString& key, const QVariant& defaultValue) const
{
    return m_settings->value(settingsKey(key), defaultValue);
}

void App::setSettingsValue(const QString& key, const QVariant& value)
{
    m_settings->setValue(settingsKey(key), value);
}

QSettings* App::settings() const
{
    return m_settings;
}

QString App::supportDirectory(bool create)
{
    const QString path = QDir::homePath() + QStringLiteral("/Library/Application Support/")
        + QCoreApplication::applicationName() + QLatin1Char('/');
    if (create)
        QDir().mkpath(path);
    return path;
}

QString App::bundleResourcePath() const
{
    return m_bundleResourcePath;
}

double App::devicePixelRatio() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

} // namespace QMWidgets
