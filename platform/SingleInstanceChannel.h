#pragma once

#include <QObject>

class QLocalServer;

namespace Platform {

// One running copy per name: a new launch tells the running copy to come
// forward over a local socket, and steps aside only when that copy answers.
// A copy that does not answer in time is taken as hung or gone, and the new
// launch takes the name over.
class SingleInstanceChannel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SingleInstanceChannel)

public:
    explicit SingleInstanceChannel(const QString& serverName, QObject* parent = nullptr);

    // True when another copy answered; this one then has no server.
    bool isRunningElsewhere() const;
    bool isListening() const;

signals:
    void reopenRequested();

private slots:
    void slotNewConnection();

private:
    static bool tellRunningCopy(const QString& serverName);

    QLocalServer* m_server = nullptr;
    bool m_runningElsewhere = false;
};

} // namespace Platform
