#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QMutex>
#include <QObject>

namespace QMRequest {

class DownloadManager;

// A network request as a blocking call for the GUI thread: get() returns the
// whole body while a nested event loop keeps timers, paints and clicks
// running. Every failure gives an empty array. There is no time limit of
// its own: a caller that wants one starts a single-shot timer on
// slotAbort() just before the call.
class Downloader : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Downloader)

public:
    explicit Downloader(QObject* parent = nullptr);
    ~Downloader() override;

    QByteArray get(const QString& url, QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
    void getToFile(
        const QString& url, const QString& path, QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
    // "http://" in front of anything that doesn't start with it.
    QString fullRequest(const QString& url) const;
    bool isFinished() const;

public slots:
    void slotAbort();

signals:
    void progress(int bytes);
    void progressPercent(int percent);

private slots:
    void slotFinished(const QUrl& url, const QByteArray& body);
    void slotError();
    void slotProgress(qint64 received, qint64 total);

private:
    bool run(const QString& url, QEventLoop::ProcessEventsFlags flags);

    QMutex m_mutex;
    DownloadManager* m_manager = nullptr;
    bool m_finished = false;
    bool m_busy = false;
    QEventLoop m_loop;
    QByteArray m_data;
    bool m_replied = false;
};

} // namespace QMRequest
