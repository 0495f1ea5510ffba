#include "App_mac.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

namespace Platform {

namespace {

App_mac* s_instance = nullptr;

// How long a new launch waits for the running copy to answer.
constexpr int handOverTimeoutMs = 500;

} // namespace

App_mac* App_mac::instance()
{
    if (!s_instance)
        s_instance = new App_mac(defaultServerName(), QCoreApplication::instance());
    return s_instance;
}

App_mac::App_mac(const QString& serverName, QObject* parent)
    : QObject(parent)
{
    if (tellRunningCopy(serverName)) {
        m_runningElsewhere = true;
        return;
    }
    // Nobody answered: a socket file left by a crashed copy is stale.
    QLocalServer::removeServer(serverName);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &App_mac::slotNewConnection);
    m_server->listen(serverName);
}

App_mac::~App_mac()
{
    if (s_instance == this)
        s_instance = nullptr;
}

QString App_mac::defaultServerName()
{
    // The home folder joins the key: copies with different homes keep
    // different settings and so are different instances.
    const QByteArray home = QCryptographicHash::hash(QDir::homePath().toUtf8(), QCryptographicHash::Sha1).toHex();
    return QCoreApplication::applicationName() + QLatin1Char('-') + QString::number(::getuid()) + QLatin1Char('-')
        + QString::fromLatin1(home.left(12));
}

bool App_mac::isRunningElsewhere() const
{
    return m_runningElsewhere;
}

void App_mac::emitClick()
{
    emit dockClicked();
}

bool App_mac::tellRunningCopy(const QString& serverName)
{
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (!socket.waitForConnected(handOverTimeoutMs))
        return false;
    socket.write("reopen\n");
    socket.waitForBytesWritten(handOverTimeoutMs);
    socket.disconnectFromServer();
    return true;
}

void App_mac::slotNewConnection()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        emitClick();
    }
}

} // namespace Platform
