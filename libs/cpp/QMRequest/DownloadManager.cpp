#include "DownloadManager.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace QMRequest {

DownloadManager::DownloadManager(QObject* parent)
    : QObject(parent)
    , m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::finished, this, &DownloadManager::slotFinished);
}

void DownloadManager::download(const QUrl& url)
{
    QNetworkRequest request(url);
    // A request goes to the host it names and nowhere else.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    m_reply = m_manager->get(request);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &DownloadManager::slotDownloadProgress);
}

void DownloadManager::slotFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    // An aborted reply has been answered already.
    if (reply != m_reply)
        return;
    m_reply = nullptr;

    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const bool success = status.isNull() || (status.toInt() >= 200 && status.toInt() < 300);
    if (reply->error() == QNetworkReply::NoError && success)
        emit done(reply->url(), reply->readAll());
    else
        emit error();
}

void DownloadManager::slotAbort()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    m_reply = nullptr;
    reply->abort();
    reply->deleteLater();
    emit error();
}

void DownloadManager::slotDownloadProgress(qint64 received, qint64 total)
{
    emit downloadProgress(received, total);
}

} // namespace QMRequest
