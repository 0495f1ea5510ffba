#include "App_mac.h"

#include "SingleInstanceChannel.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

#include <unistd.h>

namespace Platform {

namespace {

App_mac* s_instance = nullptr;

} // namespace

App_mac* App_mac::instance()
{
    if (!s_instance)
        s_instance = new App_mac(defaultServerName(), QCoreApplication::instance());
    return s_instance;
}

App_mac::App_mac(const QString& serverName, QObject* parent)
    : QObject(parent)
    , m_channel(new SingleInstanceChannel(serverName, this))
{
    connect(m_channel, &SingleInstanceChannel::reopenRequested, this, &App_mac::emitClick);
}

App_mac::~App_mac()
{
    if (s_instance == this)
        s_instance = nullptr;
}

QString App_mac::defaultServerName()
{
    // The home folder joins the key: copies with different homes keep
    // different settings and so are different instances.
    const QByteArray home = QCryptographicHash::hash(QDir::homePath().toUtf8(), QCryptographicHash::Sha1).toHex();
    return QCoreApplication::applicationName() + QLatin1Char('-') + QString::number(::getuid()) + QLatin1Char('-')
        + QString::fromLatin1(home.left(12));
}

bool App_mac::isRunningElsewhere() const
{
    return m_channel->isRunningElsewhere();
}

void App_mac::emitClick()
{
    emit dockClicked();
}

} // namespace Platform
