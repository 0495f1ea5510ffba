#include "App.h"

#include "AboutDialog.h"
#include "AppPalette.h"
#include "AppStyle.h"
#include "AppUpdateDialog.h"
#include "App_mac.h"
#include "BlenderWidget.h"
#include "CorvaneSite.h"
#include "FocusRing.h"
#include "HelpDialog.h"
#include "JoinDialog.h"
#include "JoinReminderDialog.h"
#include "MMessageBox.h"
#include "MessageLog.h"
#include "ProductLinks.h"
#include "RateReminderDialog.h"
#include "ReminderChoice.h"
#include "SettingsLock.h"
#include "SettingsStore.h"
#include "TellDialog.h"
#include "TellReminderDialog.h"
#include "ThirdPartyNotices.h"
#include "TranslationsManager.h"
#include "UpdateCheck.h"
#include "UserDirectories.h"

#include <QDateTime>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QSysInfo>
#include <QTime>
#include <QTimer>
#include <QUrl>

#include <pwd.h>
#include <unistd.h>

namespace QMWidgets {

namespace {

const char* const monthAbbreviations[]
    = { "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };

} // namespace

App::App(int& argc, char** argv, const QString& organizationName, const QString& applicationName)
    : QApplication(argc, argv)
{
    // Every directory lies under the home directory: without HOME, take the
    // account's own home rather than the file system's root.
    if (qEnvironmentVariableIsEmpty("HOME")) {
        if (const passwd* account = getpwuid(getuid()))
            qputenv("HOME", account->pw_dir);
    }

    // Directory paths contain these names, so they come first.
    QCoreApplication::setOrganizationName(organizationName);
    QCoreApplication::setApplicationName(applicationName);

    // Decided before anything below creates a directory.
    m_firstStart = isFirstStartInternal();

    connect(Platform::App_mac::instance(), &Platform::App_mac::dockClicked, this, &App::dockClicked);

    m_openDirPath = workDirectory(true);
    m_saveDirPath = m_openDirPath;

    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, supportDirectory(true));
    // INI text in spite of the file name: existing files must keep loading.
    m_settings = SettingsStore::open(supportDirectory(true) + QStringLiteral("settings.plist"), applicationName, this);

    m_bundleResourcePath = bundleResourcePathFor(QCoreApplication::applicationDirPath());

    m_isDirectDistribution = true;

    disableTerminalOuput();

    // Every window shows where Tab took the focus, in the program's colours.
    new FocusRing(this);
    // The style first: setting it resets the palette.
    QApplication::setStyle(new AppStyle);
    AppPalette::apply();

    if (settingsValue(QStringLiteral("checkupdates"), true).toBool())
        QTimer::singleShot(2000, this, &App::nop_cuos);
}

App::~App()
{
    // Without a window to belong to, the introduction belongs to no one else.
    delete m_helpDialog;
}

App* App::theApp()
{
    return qobject_cast<App*>(QCoreApplication::instance());
}

// ---- Settings

QString App::settingsKey(const QString& key) const
{
    if (m_oldSettingsMode)
        return key;
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

QVariant App::updateSettingsValue(
    const QString& key, const QVariant& defaultValue, const std::function<QVariant(const QVariant&)>& change)
{
    return SettingsLock::update(m_settings, settingsKey(key), defaultValue, change);
}

void App::setOldSettingsMode(bool on)
{
    m_oldSettingsMode = on;
}

QSettings* App::settings() const
{
    return m_settings;
}

// ---- Directories

QString App::supportDirectory(bool create)
{
    return UserDirectories::support(create);
}

QString App::workDirectory(bool create)
{
    return UserDirectories::work(create);
}

QString App::cachesDirectory(bool create)
{
    return UserDirectories::caches(create);
}

QString App::picturesDirectory(bool create)
{
    return UserDirectories::pictures(create);
}

QString App::musicDirectory(bool create)
{
    return UserDirectories::music(create);
}

QString App::moviesDirectory(bool create)
{
    return UserDirectories::movies(create);
}

QString App::downloadsDirectory(bool create)
{
    return UserDirectories::downloads(create);
}

QString App::documentsDirectory(bool create)
{
    return UserDirectories::documents(create);
}

QString App::dataDirectory(bool create)
{
    return UserDirectories::data(create);
}

void App::ensureDirExists(const QString& path)
{
    UserDirectories::ensureExists(path);
}

bool App::isFirstStartInternal()
{
    return UserDirectories::noneExists();
}

bool App::isFirstStart() const
{
    return m_firstStart;
}

// ---- Resources and screen

QString App::bundleResourcePathFor(const QString& applicationDir)
{
    QString path = applicationDir;
    path.remove(QStringLiteral("MacOS"));
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path + QStringLiteral("Resources/");
}

QString App::bundleResourcePath() const
{
    return m_bundleResourcePath;
}

QString App::resourceOffset() const
{
    return m_resourceOffset;
}

void App::setResourceOffset(const QString& offset)
{
    m_resourceOffset = offset;
}

double App::devicePixelRatio() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

QSize App::desktopSize() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->virtualSize() : QSize();
}

bool App::isPocketSize(const QSize& desktop)
{
    return desktop.width() < 480 || desktop.height() < 480;
}

int App::smallestDimention(const QSize& desktop)
{
    return qMin(desktop.width(), desktop.height());
}

bool App::isPocketDevice() const
{
    return isPocketSize(desktopSize());
}

int App::smallestDimention() const
{
    return smallestDimention(desktopSize());
}

bool App::isLandscape() const
{
    const QSize desktop = desktopSize();
    return desktop.width() > desktop.height();
}

bool App::isPortrait() const
{
    return !isLandscape();
}

// ---- Files

QString App::openDirPath() const
{
    return m_openDirPath;
}

QString App::saveDirPath() const
{
    return m_saveDirPath;
}

void App::setOpenDirPath(const QString& fileOrDir)
{
    m_openDirPath = QFileInfo(fileOrDir).absolutePath();
}

void App::setSaveDirPath(const QString& fileOrDir)
{
    m_saveDirPath = QFileInfo(fileOrDir).absolutePath();
}

bool App::copyTo(const QString& source, const QString& directory, const QString& name)
{
    ensureDirExists(directory);
    const QString target = directory + QLatin1Char('/') + (name.isEmpty() ? QFileInfo(source).fileName() : name);
    // Files copied out of the bundle are never overwritten.
    if (QFile::exists(target))
        return true;

    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    const QByteArray data = in.readAll();
    QFile out(target);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    out.write(data);
    out.close();
    return true;
}

bool App::copyToSupportDirectory(const QString& source, const QString& name)
{
    return copyTo(source, supportDirectory(true), name);
}

// ---- Main widget, events, start-up timers

void App::setMainWidget(QWidget* widget)
{
    m_mainWidget = widget;
    if (!widget)
        return;

    m_blender = new BlenderWidget(widget);
    m_blender->setObjectName(QStringLiteral("MainWidgetBlender"));
    m_blender->hide();

    auto* menuBar = new QMenuBar(widget);
    auto* menu = new QMenu(widget);
    QAction* about = menu->addAction(QIcon(QStringLiteral(":/appicon.png")), tr("About"), this, &App::slotAbout);
    about->setMenuRole(QAction::AboutRole);
    menuBar->addMenu(menu);
    // A desktop with a global menu takes the bar; without one it would lie
    // over the page's own bar, which carries the About button already.
    menuBar->setVisible(menuBar->isNativeMenuBar());
}

QWidget* App::mainWidget() const
{
    return m_mainWidget;
}

void App::slotSetBlendMainWidget(bool on)
{
    if (!m_mainWidget || !m_blender)
        return;
    if (on) {
        m_blender->resize(m_mainWidget->size());
        m_blender->show();
        m_blender->raise();
    } else {
        m_blender->hide();
    }
}

void App::slotFocusChanged(QWidget* /*old*/, QWidget* /*now*/)
{
    slotSetBlendMainWidget(QApplication::activeWindow() != m_mainWidget);
}

bool App::notify(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::ApplicationDeactivate) {
        m_deactivated = true;
        emit applicationDeactivated();
    } else if (event->type() == QEvent::ApplicationActivate) {
        m_deactivated = false;
        emit applicationActivated();
    }
    return QApplication::notify(receiver, event);
}

bool App::isDeactivated() const
{
    return m_deactivated;
}

void App::showHelpOnStart()
{
    if (!settingsValue(QStringLiteral("NeverShowItAgain"), false).toBool())
        QTimer::singleShot(500, this, &App::slotHelp);
}

void App::setIntroductionSlides(const QStringList& slides)
{
    m_introductionSlides = slides;
}

QStringList App::introductionSlides() const
{
    return m_introductionSlides;
}

QString App::slideLanguage(const QString& language)
{
    if (language == QLatin1String("de") || language == QLatin1String("ru"))
        return language;
    return QStringLiteral("en");
}

QStringList App::introductionSlidesFor(const QString& resourcePath, const QString& language)
{
    const QString slideCode = slideLanguage(language);
    QStringList slides;
    for (int n = 0; n < 7; ++n)
        slides << resourcePath + QStringLiteral("TRXSlide%1_%2.jpg").arg(n).arg(slideCode);
    return slides;
}

// ---- Message handlers

QString App::logLine(QtMsgType type, const QMessageLogContext& context, const QString& message, const QDateTime& time)
{
    return MessageLog::line(type, context, message, time);
}

void App::disableTerminalOuput()
{
    MessageLog::silence();
}

void App::setTerminalOuputToFile()
{
    MessageLog::toFile();
}

// ---- Build and platform information

QString App::buildFromCompilerDate(const QString& compilerDate)
{
    QString build = compilerDate.simplified().replace(QLatin1Char(' '), QLatin1Char('/'));
    for (int month = 0; month < 12; ++month)
        build.replace(QLatin1String(monthAbbreviations[month]), QString::number(month + 1));
    return build;
}

QDate App::dateFromBuild(const QString& build)
{
    return QDate::fromString(build, QStringLiteral("M/d/yyyy"));
}

QString App::build() const
{
    return buildFromCompilerDate(QStringLiteral(__DATE__));
}

QDate App::buildDate() const
{
    const QString b = build();
    const QDate date = dateFromBuild(b);
    qDebug() << "&&&BUILD:" << b;
    qDebug() << "&&&DATE:" << date;
    return date;
}

QString App::osInfo() const
{
    return QSysInfo::prettyProductName();
}

bool App::isStoreBuild(bool directDistribution, const QString& resourcePath)
{
    if (directDistribution)
        return false;
    // An empty marker file tells a directly distributed copy of a store build.
    return !QFile::exists(resourcePath + QStringLiteral("independent"));
}

bool App::isAppStore()
{
    const App* app = theApp();
    if (!app)
        return false;
    return isStoreBuild(app->m_isDirectDistribution, app->m_bundleResourcePath);
}

QString App::bundleIdentifier()
{
    const QStringList parts = QCoreApplication::organizationDomain().split(QLatin1Char('.'), Qt::KeepEmptyParts);
    return parts.last() + QLatin1Char('.') + parts.first() + QLatin1Char('.') + QCoreApplication::applicationName();
}

QString App::currentLanguage() const
{
    TranslationsManager::instance();
    return m_currentLanguage;
}

void App::setCurrentLanguage(const QString& language)
{
    m_currentLanguage = language;
}

QString App::currentLanguageOptimized() const
{
    const QString language = currentLanguage();
    if (language.contains(QStringLiteral("en")))
        return QString();
    return language + QLatin1Char('/');
}

bool App::isKidsMode() const
{
    return m_kidsMode;
}

void App::setKidsMode(bool on)
{
    m_kidsMode = on;
}

bool App::isSandboxed() const
{
    return m_sandboxed;
}

void App::setSandboxed(bool on)
{
    m_sandboxed = on;
}

QString App::legalNotices() const
{
    // Made when asked for, so that it is in the language loaded by then.
    if (m_legalNotices.isNull())
        return tr("<H3>This Application Uses:</H3>") + QStringLiteral("Qt ") + QStringLiteral("5")
            + QStringLiteral(" Framework<BR>") + QStringLiteral("<a href=\"%1\">%1</a>").arg(CorvaneSite::qtWebSite)
            + QStringLiteral("<BR>") + ThirdPartyNotices::html();
    return m_legalNotices;
}

void App::addLegalNotices(const QString& notices)
{
    m_legalNotices = notices;
}

// ---- Links

void App::setAppId(const QString& id)
{
    m_links.setAppId(id);
}

QString App::appId() const
{
    return m_links.appId();
}

void App::setAppSupportPage(const QString& page)
{
    m_links.setSupportPage(page);
}

QString App::appSupportPage() const
{
    return m_links.supportPage();
}

void App::setFaceBookShareLink(const QString& link)
{
    m_links.setFaceBookShareLink(link);
}

QString App::faceBookShareLink() const
{
    return m_links.faceBookShareLink();
}

void App::setTwitterShareLink(const QString& link)
{
    m_links.setTwitterShareLink(link);
}

QString App::twitterShareLink() const
{
    return m_links.twitterShareLink();
}

void App::setVKontakteShareLink(const QString& link)
{
    m_links.setVKontakteShareLink(link);
}

QString App::vkontakteShareLink() const
{
    return m_links.vkontakteShareLink();
}

void App::setPromotedAppNameAndID(const QString& name, const QString& id)
{
    m_links.setPromotedAppNameAndID(name, id);
}

void App::setPromotedLink(const QString& link)
{
    m_links.setPromotedLink(link);
}

void App::setCorvaneLinks()
{
    m_links.setMakerLinks();
}

QString App::rateAppUrl() const
{
    return m_links.rateAppUrl();
}

QString App::promotedAppUrl() const
{
    return m_links.promotedAppUrl();
}

QString App::moreAppsUrl() const
{
    return ProductLinks::moreAppsUrl();
}

QString App::supportPageUrl() const
{
    return m_links.supportPageUrl();
}

QString App::contactUsLink() const
{
    return ProductLinks::contactUsLink(osInfo(), currentLanguage(), isAppStore());
}

QString App::tellFriendLink() const
{
    return m_links.tellFriendLink(isAppStore(), currentLanguageOptimized());
}

void App::slotRateApp()
{
    QDesktopServices::openUrl(QUrl(rateAppUrl()));
}

void App::slotGoToPromotedApp()
{
    QDesktopServices::openUrl(QUrl(promotedAppUrl()));
}

void App::slotShowMoreApps()
{
    QDesktopServices::openUrl(QUrl(moreAppsUrl()));
}

void App::slotSupportPage()
{
    QDesktopServices::openUrl(QUrl(supportPageUrl()));
}

void App::slotContactUs()
{
    QDesktopServices::openUrl(QUrl(contactUsLink()));
}

void App::slotTellFriend()
{
    QDesktopServices::openUrl(QUrl(tellFriendLink()));
}

void App::slotShareApp()
{
    TellDialog dialog(QApplication::activeWindow());
    QEventLoop loop;
    connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    dialog.open();
    loop.exec();
}

void App::slotJoin()
{
    JoinDialog dialog(QApplication::activeWindow());
    QEventLoop loop;
    connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    dialog.open();
    loop.exec();
}

void App::slotAbout()
{
    auto* dialog = new AboutDialog(m_mainWidget);
    dialog->exec();
    delete dialog;
}

void App::slotHelp()
{
    // Made once and kept for the run, so the slide show goes on from the
    // slide the user last saw.
    if (!m_helpDialog) {
        QWidget* parent = QApplication::activeWindow();
        m_helpDialog = new HelpDialog(parent ? parent : mainWidget());
        for (const QString& slide : m_introductionSlides)
            m_helpDialog->addSlide(slide);
    }
    m_helpDialog->exec();
}

// ---- Reminders

void App::callReminder(int count, int mask)
{
    if (mask != ReminderChoice::RateInStore)
        m_random.seed(quint32(QTime::currentTime().msec()));
    scheduleReminder(ReminderChoice::kindFor(mask, m_random.generate(), isAppStore()), count);
}

void App::callRateReminder(int count)
{
    m_random.seed(quint32(QTime::currentTime().msec()));
    scheduleReminder(ReminderChoice::Rate, count);
}

void App::callTellReminder(int count)
{
    m_random.seed(quint32(QTime::currentTime().msec()));
    scheduleReminder(ReminderChoice::Tell, count);
}

void App::callJoinReminder(int count)
{
    m_random.seed(quint32(QTime::currentTime().msec()));
    scheduleReminder(ReminderChoice::Join, count);
}

void App::scheduleReminder(int kind, int count)
{
    m_reminderKind = kind;
    m_reminderCount = count;
    QTimer::singleShot(m_reminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::setRemiderCount(int count)
{
    m_reminderCount = count;
}

void App::setRemiderDelay(int delay)
{
    m_reminderDelay = delay;
}

void App::slotCallRateReminder()
{
    m_reminderKind = ReminderChoice::Rate;
    QTimer::singleShot(m_reminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::slotCallTellReminder()
{
    m_reminderKind = ReminderChoice::Tell;
    QTimer::singleShot(m_reminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::slotCallJoinReminder()
{
    m_reminderKind = ReminderChoice::Join;
    QTimer::singleShot(m_reminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::slotCallRateReminderInternal()
{
    const QString autoReminder = QStringLiteral("AutoReminder");
    m_settings->sync();
    if (!settingsValue(autoReminder, true).toBool())
        return;
    const int count = settingsValue(QStringLiteral("AutoReminderCount"), 1).toInt();
    if (ReminderChoice::isDue(count, m_reminderCount)) {
        QWidget* parent = QApplication::activeWindow();
        ReminderDialog* dialog = nullptr;
        if (m_reminderKind == ReminderChoice::Rate)
            dialog = new RateReminderDialog(parent);
        else if (m_reminderKind == ReminderChoice::Tell)
            dialog = new TellReminderDialog(parent);
        else
            dialog = new JoinReminderDialog(parent);
        dialog->exec();
        if (dialog->state() == ReminderDialog::Never)
            setSettingsValue(autoReminder, false);
        if (dialog->state() == ReminderDialog::Now) {
            slotRateApp();
            setSettingsValue(autoReminder, false);
        }
        delete dialog;
    }
    // Counted only once the dialog has ended, so a crash in it counts nothing.
    updateSettingsValue(QStringLiteral("AutoReminderCount"), 1,
        [](const QVariant& value) { return ReminderChoice::nextCount(value.toInt()); });
}

// ---- Update check and launch counter

void App::setUpdateServers(const QMRequest::ServerPair& servers)
{
    m_updateServers = servers;
}

void App::setCounterServers(const QMRequest::ServerPair& servers)
{
    m_counterServers = servers;
}

QString App::getUpdateRequest(const QString& server)
{
    return QMRequest::UpdateCheck::fetch(
        server + QMRequest::CorvaneServers::updatePath(QCoreApplication::applicationName()), m_updateServers.timeLimit);
}

QString App::getUpdateRequest()
{
    const QString answer = getUpdateRequest(m_updateServers.primary);
    if (!answer.isEmpty())
        return answer;
    return getUpdateRequest(m_updateServers.fallback);
}

int App::isUpdateAvailable()
{
    return QMRequest::UpdateCheck::availability(getUpdateRequest(), buildDate());
}

void App::slotCheckUpdate()
{
    const int available = isUpdateAvailable();
    if (available == QMRequest::UpdateCheck::Unknown) {
        MMessageBox::critical(mainWidget(), QCoreApplication::applicationName() + tr(" Updates Check Error"),
            tr("<H3>No internet connection is available,<br>please, check the firewall settings and make sure "
               "that<br>you are not using the the internet connection via the proxy server.</H3>"),
            QMessageBox::Ok);
        return;
    }
    showUpdateIsAvailable(available == QMRequest::UpdateCheck::Available);
}

void App::showUpdateIsAvailable(bool available)
{
    auto* dialog = new AppUpdateDialog(mainWidget());
    if (available) {
        dialog->setMessage(tr("<CENTER><H2>The newer version of ") + QCoreApplication::applicationName()
            + tr(" is available.<br>Go to the updates web page?</H2></CENTER>"));
        dialog->setPic(QPixmap(QStringLiteral(":/update_available.png")));
    } else {
        dialog->setMessage(tr("<CENTER><H2>You are using the latest version available.<br>Go to the updates web page "
                              "anyway?</H2></CENTER>"));
        dialog->setPic(QPixmap(QStringLiteral(":/update_not_available.png")));
    }
    dialog->exec();
    delete dialog;
}

void App::nop_cuos()
{
    const QString key = QStringLiteral("LastUpdateCheckDate");
    const QString format = QStringLiteral("yyyy-MM-dd");
    const QDate lastCheck = QDate::fromString(settingsValue(key).toString(), format);
    const QDate today = QDate::currentDate();
    if (lastCheck.isValid()) {
        if (!QMRequest::UpdateCheck::isAutomaticCheckDue(lastCheck, today))
            return;
        // Only good news is told; no answer or no update stays silent.
        if (isUpdateAvailable() == QMRequest::UpdateCheck::Available)
            showUpdateIsAvailable(true);
    }
    setSettingsValue(key, today.toString(format));
}

void App::startCount()
{
    if (isAppStore())
        return;
    // Taken before the request runs: the count is tried once, whatever its fate.
    const bool initialized
        = updateSettingsValue(QStringLiteral("Initialized"), false, [](const QVariant&) { return true; }).toBool();
    if (!initialized)
        QTimer::singleShot(200, this, &App::slotStartCount);
}

void App::slotStartCount()
{
    // The answer isn't used.
    QMRequest::UpdateCheck::request(
        m_counterServers, QMRequest::CorvaneServers::counterPath(QCoreApplication::applicationName()));
}

// ---- Widget helpers

bool App::isChildOf(QObject* child, QObject* parent)
{
    if (!child || !parent)
        return false;
    return parent->findChildren<QObject*>().contains(child);
}

QWidget* App::getWidgetByClassName(const QString& name)
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget* topLevel : topLevels) {
        if (QLatin1String(topLevel->metaObject()->className()) == name)
            return topLevel;
        const QList<QWidget*> children = topLevel->findChildren<QWidget*>();
        for (QWidget* child : children) {
            if (QLatin1String(child->metaObject()->className()) == name)
                return child;
        }
    }
    return nullptr;
}

QPoint App::calculateMousePosition(QWidget* widget, int x, int y)
{
    // A negative coordinate asks for the centre line; any other gives the edge.
    return QPoint(x < 0 ? widget->width() / 2 : 0, y < 0 ? widget->height() / 2 : 0);
}

void App::mousePress(QWidget* widget, int x, int y, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QCoreApplication::postEvent(
        widget, new QMouseEvent(QEvent::MouseButtonPress, QPointF(x, y), button, buttons, Qt::NoModifier));
}

void App::mouseRelease(QWidget* widget, int x, int y, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QCoreApplication::postEvent(
        widget, new QMouseEvent(QEvent::MouseButtonRelease, QPointF(x, y), button, buttons, Qt::NoModifier));
}

void App::mouseClick(QWidget* widget, int x, int y, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    if (!widget)
        return;
    const QPoint position = calculateMousePosition(widget, x, y);
    mousePress(widget, position.x(), position.y(), button, buttons);
    mouseRelease(widget, position.x(), position.y(), button, buttons);
}

} // namespace QMWidgets
