#pragma once

#include <QProcess>
#include <QStringList>
#include <QTcpServer>

// The tests' HTTP server: answer_server.py in a process of its own on
// 127.0.0.1. url("newer") is the address whose answers the script gives for
// that first path segment; requests() lists the paths that reached it.
class LocalHttpServer
{
public:
    bool start()
    {
        m_process.setProgram(QStringLiteral("python3"));
        m_process.setArguments({ QStringLiteral(QM_ANSWER_SERVER) });
        m_process.start();
        if (!m_process.waitForStarted())
            return false;
        while (!readLines()) {
            if (!m_process.waitForReadyRead(20000))
                return false;
        }
        return true;
    }

    ~LocalHttpServer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    int port() const { return m_port; }
    QString url(const QString& answer) const
    {
        return QStringLiteral("http://127.0.0.1:%1/%2").arg(m_port).arg(answer);
    }
    QStringList requests()
    {
        readLines();
        return m_requests;
    }
    void clearRequests()
    {
        readLines();
        m_requests.clear();
    }

    // A port where nothing listens: a computer without network.
    static QString offlineUrl()
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        const quint16 port = probe.serverPort();
        probe.close();
        return QStringLiteral("http://127.0.0.1:%1").arg(port);
    }

private:
    bool readLines()
    {
        // Whatever the script printed so far, without waiting for more.
        while (m_process.waitForReadyRead(0)) { }
        while (m_process.canReadLine()) {
            const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
            if (line.startsWith(QLatin1String("PORT ")))
                m_port = line.mid(5).toInt();
            else if (line.startsWith(QLatin1String("GET ")))
                m_requests.append(line.mid(4));
        }
        return m_port > 0;
    }

    QProcess m_process;
    int m_port = 0;
    QStringList m_requests;
};
