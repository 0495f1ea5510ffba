#include "WebViewInQt.h"

#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

constexpr int loadTimeoutMs = 15000;

} // namespace

WebViewInQt::WebViewInQt(QWidget* parent)
    : QWidget(parent)
    , m_view(new QWebEngineView(this))
    , m_timeout(new QTimer(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    if (parent)
        resize(parent->size());

    m_timeout->setSingleShot(true);
    m_timeout->setInterval(loadTimeoutMs);
    connect(m_timeout, &QTimer::timeout, this, &WebViewInQt::slotTimedOut);
    connect(m_view, &QWebEngineView::loadStarted, this, &WebViewInQt::slotLoadStarted);
    connect(m_view, &QWebEngineView::loadFinished, this, &WebViewInQt::slotLoadFinished);
    connect(m_view, &QWebEngineView::urlChanged, this,
        [this](const QUrl& url) { emit urlChanged(url.toString(QUrl::FullyEncoded)); });
}

WebViewInQt::WebViewInQt(QString url, QWidget* parent)
    : WebViewInQt(parent)
{
    loadRequest(url);
}

void WebViewInQt::loadRequest(const QString& url)
{
    m_view->load(QUrl::fromUserInput(url));
}

void WebViewInQt::slotLoadStarted()
{
    m_timeout->start();
    // A page that has only begun to load has no text yet.
    emit loadStart(m_view->page()->requestedUrl().toString(QUrl::FullyEncoded), QString());
}

void WebViewInQt::slotLoadFinished(bool ok)
{
    if (!m_timeout->isActive())
        return;
    m_timeout->stop();
    if (!ok) {
        emit loadError();
        return;
    }
    const QString url = m_view->url().toString(QUrl::FullyEncoded);
    // The text comes back later; the view may be gone by then.
    const QPointer<WebViewInQt> self(this);
    m_view->page()->toHtml([self, url](const QString& body) {
        if (self)
            emit self->loadFinish(url, body);
    });
}

void WebViewInQt::slotTimedOut()
{
    m_view->stop();
    emit loadError();
}
