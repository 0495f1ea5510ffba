#include "PrivateBus.h"

#include <QFile>

PrivateBus::PrivateBus()
{
    const QString config = m_dir.filePath(QStringLiteral("bus.conf"));
    QFile file(config);
    if (!m_dir.isValid() || !file.open(QIODevice::WriteOnly))
        return;
    file.write(QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                              "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                              "<busconfig><type>session</type><listen>unix:dir=%1</listen>"
                              "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                              "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n")
                   .arg(m_dir.path())
                   .toUtf8());
    file.close();
    m_daemon.start(QStringLiteral("dbus-daemon"),
        { QStringLiteral("--config-file=") + config, QStringLiteral("--nofork"), QStringLiteral("--print-address=1") });
    while (!m_daemon.canReadLine()) {
        if (!m_daemon.waitForReadyRead(10000))
            return;
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    if (m_daemon.state() == QProcess::NotRunning)
        return;
    m_daemon.terminate();
    m_daemon.waitForFinished(5000);
}

QString PrivateBus::address() const
{
    return m_address;
}
