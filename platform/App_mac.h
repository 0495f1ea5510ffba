#pragma once

#include <QObject>

class QLocalServer;

namespace Platform {

// Turns a request to bring the program forward into the signal dockClicked().
// On Linux that request is a second launch: it finds the running copy over a
// local socket named after the application and the user, and the running
// copy emits the signal while the new launch steps aside.
class App_mac : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(App_mac)

public:
    static App_mac* instance();

    explicit App_mac(const QString& serverName, QObject* parent = nullptr);
    ~App_mac() override;

    // Application name, user id and home folder: one running copy per user
    // and settings store.
    static QString defaultServerName();

    // True when another copy was running and has been told to come forward.
    bool isRunningElsewhere() const;
    void emitClick();

signals:
    void dockClicked();

private slots:
    void slotNewConnection();

private:
    static bool tellRunningCopy(const QString& serverName);

    QLocalServer* m_server = nullptr;
    bool m_runningElsewhere = false;
};

} // namespace Platform
