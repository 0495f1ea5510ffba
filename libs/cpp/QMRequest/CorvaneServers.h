#pragma once

#include <QByteArray>
#include <QString>

namespace QMRequest {

// The two servers of one conversation, each as scheme and host, and the time
// limit of one request in milliseconds (0: none).
struct ServerPair
{
    QString primary;
    QString fallback;
    int timeLimit = 0;
};

// The maker's servers, all in this one place: the update servers in plain
// text, the launch counter's hosts and path as base64 of their big-endian
// UTF-16 text, decoded when asked for.
class CorvaneServers
{
public:
    static ServerPair updateServers();
    static QString updatePath(const QString& applicationName);
    static ServerPair counterServers();
    static QString counterPath(const QString& applicationName);

    // The text of base64 that holds big-endian UTF-16; empty when it doesn't.
    static QString decodeQString(const QByteArray& base64);
};

} // namespace QMRequest
