#pragma once

#include <QObject>

namespace Platform {

class SingleInstanceChannel;

// Turns a request to bring the program forward into the signal dockClicked().
// On Linux that request is a second launch, which reaches the running copy
// through a SingleInstanceChannel named after the application and the user.
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

private:
    SingleInstanceChannel* m_channel = nullptr;
};

} // namespace Platform
