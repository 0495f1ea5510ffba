#pragma once

#include <QApplication>
#include <QDate>
#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include "CorvaneServers.h"
#include "ProductLinks.h"

#include <QRandomGenerator>
#include <functional>

class QSettings;
class QDateTime;

namespace QMWidgets {

class BlenderWidget;
class HelpDialog;

// The application object: what the whole frame reaches through theApp().
// The settings, the per-user directories, the message log and the product's
// links are classes of their own (SettingsStore, UserDirectories,
// MessageLog, ProductLinks) that it hands on to.
class App : public QApplication
{
    Q_OBJECT
    Q_DISABLE_COPY(App)

public:
    App(int& argc, char** argv, const QString& organizationName, const QString& applicationName);
    ~App() override;

    static App* theApp();

    // Settings store ("settings.plist", INI text, keys under the application name)
    QVariant settingsValue(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void setSettingsValue(const QString& key, const QVariant& value);
    // Stores change(value) under key, safe against another program that
    // changes the same key at the same moment; returns the value before.
    QVariant updateSettingsValue(
        const QString& key, const QVariant& defaultValue, const std::function<QVariant(const QVariant&)>& change);
    void setOldSettingsMode(bool on);
    QSettings* settings() const;

    // Per-user directories; all but dataDirectory end in "/".
    static QString supportDirectory(bool create);
    static QString workDirectory(bool create);
    static QString cachesDirectory(bool create);
    static QString picturesDirectory(bool create);
    static QString musicDirectory(bool create);
    static QString moviesDirectory(bool create);
    static QString downloadsDirectory(bool create);
    static QString documentsDirectory(bool create);
    static QString dataDirectory(bool create);
    static void ensureDirExists(const QString& path);

    QString bundleResourcePath() const;
    // The executable's folder without "MacOS", then "Resources/".
    static QString bundleResourcePathFor(const QString& applicationDir);
    QString resourceOffset() const;
    void setResourceOffset(const QString& offset);
    double devicePixelRatio() const;

    bool isPocketDevice() const;
    int smallestDimention() const;
    bool isLandscape() const;
    bool isPortrait() const;
    // The same rules for a given desktop size.
    static bool isPocketSize(const QSize& desktop);
    static int smallestDimention(const QSize& desktop);

    QString openDirPath() const;
    QString saveDirPath() const;
    void setOpenDirPath(const QString& fileOrDir);
    void setSaveDirPath(const QString& fileOrDir);
    static bool copyTo(const QString& source, const QString& directory, const QString& name);
    bool copyToSupportDirectory(const QString& source, const QString& name);

    // Start-up
    void setMainWidget(QWidget* widget);
    QWidget* mainWidget() const;
    bool isFirstStart() const;
    // True when none of the nine per-user directories exists.
    static bool isFirstStartInternal();
    bool notify(QObject* receiver, QEvent* event) override;
    bool isDeactivated() const;
    void showHelpOnStart();
    void setIntroductionSlides(const QStringList& slides);
    QStringList introductionSlides() const;
    // Slides exist in "en", "de" and "ru"; any other language shows "en".
    static QString slideLanguage(const QString& language);
    // The seven slide files beside the program for a language.
    static QStringList introductionSlidesFor(const QString& resourcePath, const QString& language);

    // Message handlers: silent, or one line per message into "protocol.log".
    static void disableTerminalOuput();
    static void setTerminalOuputToFile();
    // The log line of a message; empty for types that are not logged.
    static QString logLine(
        QtMsgType type, const QMessageLogContext& context, const QString& message, const QDateTime& time);

    // Build and platform information
    QString build() const;
    QDate buildDate() const;
    QString osInfo() const;
    static bool isAppStore();
    QString bundleIdentifier();
    // "Aug  1 2014" (the compiler's date) gives "8/1/2014".
    static QString buildFromCompilerDate(const QString& compilerDate);
    static QDate dateFromBuild(const QString& build);
    static bool isStoreBuild(bool directDistribution, const QString& resourcePath);

    QString currentLanguage() const;
    void setCurrentLanguage(const QString& language);
    QString currentLanguageOptimized() const;

    bool isKidsMode() const;
    void setKidsMode(bool on);
    bool isSandboxed() const;
    void setSandboxed(bool on);
    QString legalNotices() const;
    void addLegalNotices(const QString& notices);

    // Links of the product
    void setAppId(const QString& id);
    QString appId() const;
    void setAppSupportPage(const QString& page);
    QString appSupportPage() const;
    void setFaceBookShareLink(const QString& link);
    QString faceBookShareLink() const;
    void setTwitterShareLink(const QString& link);
    QString twitterShareLink() const;
    void setVKontakteShareLink(const QString& link);
    QString vkontakteShareLink() const;
    void setPromotedAppNameAndID(const QString& name, const QString& id);
    void setPromotedLink(const QString& link);
    void setCorvaneLinks();

    // The addresses the openers below hand to the browser or mail program.
    QString rateAppUrl() const;
    QString promotedAppUrl() const;
    QString moreAppsUrl() const;
    QString supportPageUrl() const;
    QString contactUsLink() const;
    QString tellFriendLink() const;

    // Reminders to rate, share or join, at every count-th launch
    void callReminder(int count, int mask);
    void callRateReminder(int count);
    void callTellReminder(int count);
    void callJoinReminder(int count);
    void setRemiderCount(int count);
    void setRemiderDelay(int delay);

    // Update check and launch counter
    void startCount();
    // 1 a newer release exists, -1 none, 0 no answer.
    int isUpdateAvailable();
    QString getUpdateRequest();
    QString getUpdateRequest(const QString& server);
    void showUpdateIsAvailable(bool available);
    // The servers asked; the program keeps the maker's, a test its own.
    void setUpdateServers(const QMRequest::ServerPair& servers);
    void setCounterServers(const QMRequest::ServerPair& servers);

    // Widget helpers
    static bool isChildOf(QObject* child, QObject* parent);
    QWidget* getWidgetByClassName(const QString& name);
    static QPoint calculateMousePosition(QWidget* widget, int x, int y);
    static void mousePress(QWidget* widget, int x, int y, Qt::MouseButton button = Qt::LeftButton,
        Qt::MouseButtons buttons = Qt::LeftButton);
    static void mouseRelease(QWidget* widget, int x, int y, Qt::MouseButton button = Qt::LeftButton,
        Qt::MouseButtons buttons = Qt::NoButton);
    static void mouseClick(QWidget* widget, int x, int y, Qt::MouseButton button = Qt::LeftButton,
        Qt::MouseButtons buttons = Qt::LeftButton);

public slots:
    void slotRateApp();
    void slotShowMoreApps();
    void slotSupportPage();
    void slotContactUs();
    void slotTellFriend();
    void slotShareApp();
    void slotJoin();
    void slotAbout();
    void slotHelp();
    void slotGoToPromotedApp();
    void slotCheckUpdate();
    void slotCallRateReminder();
    void slotCallTellReminder();
    void slotCallJoinReminder();
    // Shows the reminder of the stored kind when the launch is due, and
    // counts the launch.
    void slotCallRateReminderInternal();
    void slotStartCount();
    void slotSetBlendMainWidget(bool on);
    void slotFocusChanged(QWidget* old, QWidget* now);

signals:
    void applicationActivated();
    void applicationDeactivated();
    void dockClicked();

private slots:
    // The automatic update check, two seconds after start.
    void nop_cuos();

private:
    static QString directoryOf(const QString& fileOrDir);
    QString settingsKey(const QString& key) const;
    void scheduleReminder(int kind, int count);
    QSize desktopSize() const;

    QSettings* m_settings = nullptr;
    QString m_currentLanguage = QStringLiteral("en");
    bool m_deactivated = false;
    QString m_openDirPath;
    QString m_saveDirPath;
    bool m_sandboxed = false;
    ProductLinks m_links;
    QPointer<HelpDialog> m_helpDialog;
    QStringList m_introductionSlides;
    bool m_oldSettingsMode = false;
    QString m_resourceOffset;
    QPointer<QWidget> m_mainWidget;
    QPointer<BlenderWidget> m_blender;
    QString m_bundleResourcePath;
    bool m_kidsMode = false;
    QString m_legalNotices;
    bool m_firstStart = false;
    bool m_isDirectDistribution = false;
    int m_reminderCount = 10;
    int m_reminderDelay = 4000;
    int m_reminderKind = 0;
    QRandomGenerator m_random;
    QMRequest::ServerPair m_updateServers = QMRequest::CorvaneServers::updateServers();
    QMRequest::ServerPair m_counterServers = QMRequest::CorvaneServers::counterServers();
};

} // namespace QMWidgets
