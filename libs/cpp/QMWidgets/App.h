#pragma once

#include <QApplication>
#include <QVariant>

class QSettings;

namespace QMWidgets {

// The application object: settings store, per-user directories, resource
// paths and the other services the whole frame reaches through theApp().
class App : public QApplication
{
    Q_OBJECT
    Q_DISABLE_COPY(App)

public:
    App(int& argc, char** argv, const QString& organizationName, const QString& applicationName);
    ~App() override;

    static App* theApp();

    QVariant settingsValue(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void setSettingsValue(const QString& key, const QVariant& value);
    QSettings* settings() const;

    static QString supportDirectory(bool create);

    QString bundleResourcePath() const;
    double devicePixelRatio() const;

private:
    QString settingsKey(const QString& key) const;

    QSettings* m_settings = nullptr;
    QString m_bundleResourcePath;
};

} // namespace QMWidgets
