#include "ProductLinks.h"

#include "CorvaneSite.h"

#include <QCoreApplication>

namespace QMWidgets {

namespace {

QString applicationNameLower()
{
    return QCoreApplication::applicationName().toLower();
}

QString storeEntry(const QString& prefix, const QString& lowerName, const QString& id)
{
    return QLatin1String(CorvaneSite::storeHost) + prefix + QStringLiteral("app/") + lowerName + QLatin1Char('/') + id
        + QStringLiteral("?ls=1&mt=12");
}

} // namespace

void ProductLinks::setAppId(const QString& id)
{
    m_appId = id;
}

QString ProductLinks::appId() const
{
    return m_appId;
}

void ProductLinks::setSupportPage(const QString& page)
{
    m_supportPage = page;
}

QString ProductLinks::supportPage() const
{
    return m_supportPage;
}

void ProductLinks::setFaceBookShareLink(const QString& link)
{
    m_faceBookShareLink = link;
}

QString ProductLinks::faceBookShareLink() const
{
    return m_faceBookShareLink;
}

void ProductLinks::setTwitterShareLink(const QString& link)
{
    m_twitterShareLink = link;
}

QString ProductLinks::twitterShareLink() const
{
    return m_twitterShareLink;
}

void ProductLinks::setVKontakteShareLink(const QString& link)
{
    m_vkontakteShareLink = link;
}

QString ProductLinks::vkontakteShareLink() const
{
    return m_vkontakteShareLink;
}

void ProductLinks::setPromotedAppNameAndID(const QString& name, const QString& id)
{
    m_promotedAppName = name;
    m_promotedAppId = id;
}

void ProductLinks::setPromotedLink(const QString& link)
{
    m_promotedLink = link;
}

void ProductLinks::setMakerLinks()
{
    const QString base
        = QLatin1String(CorvaneSite::webHost) + QStringLiteral("/apps/") + applicationNameLower() + QLatin1Char('/');
    m_faceBookShareLink = base + QStringLiteral("facebook.php");
    m_twitterShareLink = base + QStringLiteral("twitter.php");
    m_vkontakteShareLink = base + QStringLiteral("vkontakte.php");
    m_supportPage = base;
}

QString ProductLinks::rateAppUrl() const
{
    return storeEntry(QStringLiteral("/"), applicationNameLower(), m_appId);
}

QString ProductLinks::promotedAppUrl() const
{
    if (!m_promotedLink.isEmpty())
        return m_promotedLink;
    return storeEntry(QStringLiteral("/"), m_promotedAppName.toLower(), m_promotedAppId);
}

QString ProductLinks::moreAppsUrl()
{
    return QLatin1String(CorvaneSite::webHost) + QStringLiteral("/apps");
}

QString ProductLinks::supportPageUrl() const
{
    return m_supportPage.isEmpty() ? QString::fromLatin1(CorvaneSite::webHost) : m_supportPage;
}

QString ProductLinks::contactUsLink(const QString& osInfo, const QString& language, bool storeBuild)
{
    return QStringLiteral("mailto:") + QLatin1String(CorvaneSite::contactAddress) + QStringLiteral("?subject=Contact (")
        + QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion()
        + QStringLiteral(") ") + osInfo + QLatin1Char(' ') + language + QLatin1Char(' ')
        + (storeBuild ? QString() : QStringLiteral("I")) + QStringLiteral("&body=");
}

QString ProductLinks::tellFriendLink(bool storeBuild, const QString& storeLanguage) const
{
    const QString name = QCoreApplication::applicationName();
    QString productLink = m_supportPage;
    if (productLink.isEmpty()) {
        if (storeBuild)
            productLink = storeEntry(QLatin1Char('/') + storeLanguage, applicationNameLower(), m_appId);
        else
            productLink = QLatin1String(CorvaneSite::webHost) + QStringLiteral("/apps/") + applicationNameLower()
                + QStringLiteral(".html");
    }
    // These texts stay English: the friend's language is unknown.
    return QStringLiteral("mailto:?subject=Check out the cool ") + name
        + QStringLiteral(" app!&body=Hi, check out this cool ") + name
        + QStringLiteral(" app - available in the App Stores: ") + productLink;
}

} // namespace QMWidgets
