#pragma once

#include <QProcess>
#include <QTemporaryDir>

// A D-Bus daemon of the test's own, with no services to start on demand:
// a name on it is owned only when a test registers it.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();

    // Empty when the daemon could not be started.
    QString address() const;

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
    QString m_address;
};
