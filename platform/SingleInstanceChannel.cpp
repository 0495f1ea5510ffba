#include "SingleInstanceChannel.h"

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>

namespace Platform {

namespace {

const QByteArray reopenMessage = QByteArrayLiteral("reopen\n");
const QByteArray answerMessage = QByteArrayLiteral("ok\n");

// The whole hand-over of a new launch stays well under two seconds, so that
// a hung copy delays the next start only briefly.
constexpr int handOverTimeoutMs = 1500;

} // namespace

SingleInstanceChannel::SingleInstanceChannel(const QString& serverName, QObject* parent)
    : QObject(parent)
{
    if (tellRunningCopy(serverName)) {
        m_runningElsewhere = true;
        return;
    }
    // Nobody answered: the socket file is stale, or its copy is hung.
    QLocalServer::removeServer(serverName);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstanceChannel::slotNewConnection);
    m_server->listen(serverName);
}

bool SingleInstanceChannel::isRunningElsewhere() const
{
    return m_runningElsewhere;
}

bool SingleInstanceChannel::isListening() const
{
    return m_server && m_server->isListening();
}

bool SingleInstanceChannel::tellRunningCopy(const QString& serverName)
{
    const QDeadlineTimer deadline(handOverTimeoutMs);
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (!socket.waitForConnected(deadline.remainingTime()))
        return false;
    socket.write(reopenMessage);
    // A connection alone proves nothing: the kernel accepts it for a copy
    // that has stopped running its event loop. Only the answer counts.
    while (!socket.canReadLine()) {
        if (deadline.hasExpired() || !socket.waitForReadyRead(deadline.remainingTime()))
            return false;
    }
    return socket.readLine() == answerMessage;
}

void SingleInstanceChannel::slotNewConnection()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        socket->write(answerMessage);
        socket->flush();
        emit reopenRequested();
    }
}

} // namespace Platform
