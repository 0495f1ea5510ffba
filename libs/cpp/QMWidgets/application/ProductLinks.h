#pragma once

#include <QString>

namespace QMWidgets {

// The addresses of the product: its store entry and support page, the share
// links, a promoted application, and the mails to the maker and to a friend.
// Addresses name the application by QCoreApplication's application name.
class ProductLinks
{
public:
    void setAppId(const QString& id);
    QString appId() const;
    void setSupportPage(const QString& page);
    QString supportPage() const;
    void setFaceBookShareLink(const QString& link);
    QString faceBookShareLink() const;
    void setTwitterShareLink(const QString& link);
    QString twitterShareLink() const;
    void setVKontakteShareLink(const QString& link);
    QString vkontakteShareLink() const;
    void setPromotedAppNameAndID(const QString& name, const QString& id);
    void setPromotedLink(const QString& link);
    // The share links and the support page on the maker's site.
    void setMakerLinks();

    QString rateAppUrl() const;
    QString promotedAppUrl() const;
    static QString moreAppsUrl();
    // The support page, else the maker's site.
    QString supportPageUrl() const;
    // A mail to the maker whose subject names the program, its version, the
    // system and the language, and "I" for a build outside the store.
    static QString contactUsLink(const QString& osInfo, const QString& language, bool storeBuild);
    // A mail to a friend with the support page, else the product's page in
    // the store (storeLanguage is its path prefix) or on the maker's site.
    QString tellFriendLink(bool storeBuild, const QString& storeLanguage) const;

private:
    QString m_appId;
    QString m_supportPage;
    QString m_faceBookShareLink;
    QString m_twitterShareLink;
    QString m_vkontakteShareLink;
    QString m_promotedAppName;
    QString m_promotedAppId;
    QString m_promotedLink;
};

} // namespace QMWidgets
