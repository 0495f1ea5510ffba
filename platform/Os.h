#pragma once

#include <QDBusConnection>
#include <QObject>

class QDBusObjectPath;
class QDBusPendingCallWatcher;
class QWidget;

namespace Platform {

// The operations of the frame that differ by operating system. On Linux:
// sleep, wake and the end of the session come from logind on the system bus
// and from the Qt session manager, the badge is the launcher-entry signal on
// the session bus, log-on start an XDG autostart entry, and the reveal of a
// file the file manager's D-Bus interface.
class Os : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Os)

public:
    static Os* instance();

    // Every D-Bus conversation goes over the two buses given here; a bus that
    // is not connected turns its operations into quiet no-ops.
    Os(const QDBusConnection& systemBus, const QDBusConnection& sessionBus, QObject* parent = nullptr);
    ~Os() override;

    // The name of the program's desktop entry, without ".desktop".
    static QString desktopId();

    void setAppIconNumber(int number);
    void unsetAppIconNumber();

    bool isAutorunAtLogon() const;
    void changeAutorunAtLogon(bool on);

    void hideWindowFromTaskBar(QWidget* widget);
    static QString nativeLibraryName(const QString& name);
    // True when the file manager was asked to show the file, or else the
    // file's folder could be opened.
    bool openFolderAndSelectFile(const QString& path);
    static double scaleFactor();
    void setDisableSleepMode(bool on);

signals:
    void atSwitchToStandBy();
    void atWakeUpFromStandBy();
    void atUserLogout();

private slots:
    void slotPrepareForSleep(bool start);
    void slotSessionRemoved(const QString& id, const QDBusObjectPath& path);
    void slotOwnSessionFound(QDBusPendingCallWatcher* call);

private:
    void sendLauncherEntry(qint64 count, bool visible);

    QDBusConnection m_systemBus;
    QDBusConnection m_sessionBus;
    QString m_ownSessionPath;
};

} // namespace Platform
