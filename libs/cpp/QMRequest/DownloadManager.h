#pragma once

#include <QObject>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

namespace QMRequest {

// Owns the network access and the one reply in flight. A reply ends in
// done() with its body when it succeeded with a 2xx status, and in error()
// otherwise: a failed connection, an HTTP error, a redirect (never
// followed) or an abort.
class DownloadManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(DownloadManager)

public:
    explicit DownloadManager(QObject* parent = nullptr);

    void download(const QUrl& url);

public slots:
    void slotAbort();

signals:
    void downloadProgress(qint64 received, qint64 total);
    void done(const QUrl& url, const QByteArray& body);
    void error();

private slots:
    void slotFinished(QNetworkReply* reply);
    void slotDownloadProgress(qint64 received, qint64 total);

private:
    QNetworkAccessManager* m_manager = nullptr;
    QNetworkReply* m_reply = nullptr;
};

} // namespace QMRequest
