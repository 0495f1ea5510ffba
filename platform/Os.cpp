#include "Os.h"

#include "AutostartEntry.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QUrl>

#include <unistd.h>

namespace Platform {

namespace {

Os* s_instance = nullptr;

const QString loginService = QStringLiteral("org.freedesktop.login1");
const QString loginPath = QStringLiteral("/org/freedesktop/login1");
const QString loginManager = QStringLiteral("org.freedesktop.login1.Manager");

const QString fileManagerService = QStringLiteral("org.freedesktop.FileManager1");
const QString fileManagerPath = QStringLiteral("/org/freedesktop/FileManager1");

// A file manager that D-Bus has to start first may take a moment.
constexpr int showItemsTimeoutMs = 5000;

} // namespace

Os* Os::instance()
{
    if (!s_instance)
        s_instance = new Os(QDBusConnection::systemBus(), QDBusConnection::sessionBus(), QCoreApplication::instance());
    return s_instance;
}

Os::Os(const QDBusConnection& systemBus, const QDBusConnection& sessionBus, QObject* parent)
    : QObject(parent)
    , m_systemBus(systemBus)
    , m_sessionBus(sessionBus)
{
    // Both ends of a session give the one signal.
    if (auto* guiApp = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        connect(guiApp, &QGuiApplication::commitDataRequest, this, &Os::atUserLogout);

    if (!m_systemBus.isConnected())
        return;
    m_systemBus.connect(loginService, loginPath, loginManager, QStringLiteral("PrepareForSleep"), this,
        SLOT(slotPrepareForSleep(bool)));
    m_systemBus.connect(loginService, loginPath, loginManager, QStringLiteral("SessionRemoved"), this,
        SLOT(slotSessionRemoved(QString, QDBusObjectPath)));
    // Only the removal of this process's own session means that the user leaves.
    QDBusMessage ownSession
        = QDBusMessage::createMethodCall(loginService, loginPath, loginManager, QStringLiteral("GetSessionByPID"));
    ownSession << quint32(::getpid());
    auto* watcher = new QDBusPendingCallWatcher(m_systemBus.asyncCall(ownSession), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Os::slotOwnSessionFound);
}

Os::~Os()
{
    if (s_instance == this)
        s_instance = nullptr;
}

QString Os::desktopId()
{
    const QString name = QGuiApplication::desktopFileName();
    return name.isEmpty() ? QCoreApplication::applicationName() : name;
}

void Os::setAppIconNumber(int number)
{
    sendLauncherEntry(number, true);
}

void Os::unsetAppIconNumber()
{
    sendLauncherEntry(0, false);
}

bool Os::isAutorunAtLogon() const
{
    return AutostartEntry(AutostartEntry::defaultFolder(), desktopId(), QCoreApplication::applicationFilePath())
        .isEnabled();
}

void Os::changeAutorunAtLogon(bool on)
{
    AutostartEntry(AutostartEntry::defaultFolder(), desktopId(), QCoreApplication::applicationFilePath())
        .setEnabled(on);
}

void Os::hideWindowFromTaskBar(QWidget* widget)
{
    Q_ASSERT(widget);
    Q_UNUSED(widget)
}

QString Os::nativeLibraryName(const QString& name)
{
    return QStringLiteral("lib") + name + QStringLiteral(".so");
}

bool Os::openFolderAndSelectFile(const QString& path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return false;
    if (m_sessionBus.isConnected()) {
        QDBusMessage showItems = QDBusMessage::createMethodCall(
            fileManagerService, fileManagerPath, fileManagerService, QStringLiteral("ShowItems"));
        showItems << QStringList(QUrl::fromLocalFile(file.absoluteFilePath()).toString(QUrl::FullyEncoded))
                  << QString();
        if (m_sessionBus.call(showItems, QDBus::Block, showItemsTimeoutMs).type() == QDBusMessage::ReplyMessage)
            return true;
    }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absolutePath()));
}

double Os::scaleFactor()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

void Os::setDisableSleepMode(bool on)
{
    Q_UNUSED(on)
}

void Os::slotPrepareForSleep(bool start)
{
    if (start)
        emit atSwitchToStandBy();
    else
        emit atWakeUpFromStandBy();
}

void Os::slotSessionRemoved(const QString& id, const QDBusObjectPath& path)
{
    Q_UNUSED(id)
    if (!m_ownSessionPath.isEmpty() && path.path() == m_ownSessionPath)
        emit atUserLogout();
}

void Os::slotOwnSessionFound(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<QDBusObjectPath> reply = *call;
    if (reply.isValid())
        m_ownSessionPath = reply.value().path();
    call->deleteLater();
}

void Os::sendLauncherEntry(qint64 count, bool visible)
{
    if (!m_sessionBus.isConnected())
        return;
    const QString id = desktopId();
    // An object path allows letters, digits and '_' only.
    QString objectPath = QStringLiteral("/com/canonical/unity/launcherentry/") + id;
    objectPath.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_/]")), QStringLiteral("_"));
    QDBusMessage update = QDBusMessage::createSignal(
        objectPath, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://") + id + QStringLiteral(".desktop")
           << QVariantMap { { QStringLiteral("count"), count }, { QStringLiteral("count-visible"), visible } };
    m_sessionBus.send(update);
}

} // namespace Platform
