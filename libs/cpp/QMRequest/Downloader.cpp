#include "Downloader.h"

#include "DownloadManager.h"

#include <QFile>
#include <QUrl>

namespace QMRequest {

Downloader::Downloader(QObject* parent)
    : QObject(parent)
    , m_manager(new DownloadManager(this))
{
    connect(m_manager, &DownloadManager::done, this, &Downloader::slotFinished);
    connect(m_manager, &DownloadManager::error, this, &Downloader::slotError);
    connect(m_manager, &DownloadManager::downloadProgress, this, &Downloader::slotProgress);
}

// The manager goes with its children; a reply still in flight goes with it.
Downloader::~Downloader() = default;

QString Downloader::fullRequest(const QString& url) const
{
    if (url.startsWith(QLatin1String("http://")))
        return url;
    return QStringLiteral("http://") + url;
}

bool Downloader::isFinished() const
{
    return m_finished;
}

bool Downloader::run(const QString& url, QEventLoop::ProcessEventsFlags flags)
{
    // A call from a slot that runs inside the nested loop of a running
    // request must not start a second one.
    if (m_busy)
        return false;
    m_data.clear();
    m_busy = true;
    QMutexLocker locker(&m_mutex);
    m_replied = false;
    m_manager->download(QUrl(fullRequest(url)));
    m_finished = false;
    // A reply that ended before the loop runs would leave it waiting.
    if (!m_replied)
        m_loop.exec(flags);
    m_finished = true;
    m_busy = false;
    return true;
}

QByteArray Downloader::get(const QString& url, QEventLoop::ProcessEventsFlags flags)
{
    if (!run(url, flags))
        return QByteArray();
    return m_data;
}

void Downloader::getToFile(const QString& url, const QString& path, QEventLoop::ProcessEventsFlags flags)
{
    if (!run(url, flags))
        return;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(m_data);
        file.close();
    }
}

void Downloader::slotAbort()
{
    m_manager->slotAbort();
}

void Downloader::slotFinished(const QUrl& /*url*/, const QByteArray& body)
{
    m_data = body;
    m_replied = true;
    m_loop.quit();
}

void Downloader::slotError()
{
    m_replied = true;
    m_loop.quit();
}

void Downloader::slotProgress(qint64 received, qint64 total)
{
    emit progress(int(received));
    // Without a known total there is no share to tell.
    if (total > 0)
        emit progressPercent(int(float(received) * 100.0f / float(total)));
}

} // namespace QMRequest
