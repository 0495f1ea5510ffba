#pragma once

#include <QWidget>

class QTimer;
class QWebEngineView;

// A web page inside a Qt window, filling its parent. It tells when a page
// starts and finishes loading, with the URL and the page's text, when the
// URL changes and when a load fails or takes longer than 15 s.
class WebViewInQt : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(WebViewInQt)

public:
    explicit WebViewInQt(QWidget* parent = nullptr);
    WebViewInQt(QString url, QWidget* parent = nullptr);

    void loadRequest(const QString& url);

signals:
    void loadStart(QString url, QString body);
    void loadFinish(QString url, QString body);
    void loadError();
    void urlChanged(QString url);

private slots:
    void slotLoadStarted();
    void slotLoadFinished(bool ok);
    void slotTimedOut();

private:
    QWebEngineView* m_view = nullptr;
    QTimer* m_timeout = nullptr;
};
