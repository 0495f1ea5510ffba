#include "MusicShopBase.h"

namespace QMMusic {

namespace {

struct StoreAddress
{
    const char* host;
    const char* path;
};

// In the order of StoreFront.
const StoreAddress kStores[] = {
    { "www.amazon.com", "/corvane_music_us-20" },
    { "www.amazon.de", "/corvane_music_de-21" },
    { "www.amazon.ca", "/corvane_music_ca-20" },
    { "www.amazon.fr", "/corvane_music_fr-21" },
    { "www.amazon.co.uk", "/corvane_music_uk-21" },
};

QString articleLink(const char* host, const char* title)
{
    return QLatin1String(host) + QStringLiteral("/wiki/") + QString::fromUtf8(title);
}

} // namespace

MusicShopBase::MusicShopBase(QObject* parent)
    : QObject(parent)
{
}

MusicShopBase::StoreFront MusicShopBase::storeFrontOf(QLocale::Country country)
{
    switch (country) {
    case QLocale::Austria:
    case QLocale::Germany:
    case QLocale::Switzerland:
        return StoreFront::Germany;
    case QLocale::Canada:
        return StoreFront::Canada;
    case QLocale::France:
        return StoreFront::France;
    case QLocale::UnitedKingdom:
        return StoreFront::UnitedKingdom;
    default:
        return StoreFront::UnitedStates;
    }
}

QString MusicShopBase::storeLink(StoreFront front, int shelf)
{
    const StoreAddress& store = kStores[static_cast<int>(front)];
    return QStringLiteral("http://") + QLatin1String(store.host) + QLatin1String(store.path)
        + QStringLiteral("?_encoding=UTF8&node=") + QString::number(shelf);
}

void MusicShopBase::fillLinks(const Catalogue& catalogue, QLocale::Country country)
{
    const StoreFront front = storeFrontOf(country);
    const Shelves& shelves = catalogue.shelves[static_cast<int>(front)];
    m_mustHave = storeLink(front, shelves.mustHave);
    m_niceToHave = storeLink(front, shelves.niceToHave);
    m_read = storeLink(front, shelves.read);
    m_hear = storeLink(front, shelves.hear);
    m_see = storeLink(front, shelves.see);

    // The article follows the language of the store front; Canada and the
    // United Kingdom read the English one.
    switch (front) {
    case StoreFront::Germany:
        m_wikipedia = articleLink("http://de.wikipedia.org", catalogue.germanArticle);
        break;
    case StoreFront::France:
        m_wikipedia = articleLink("http://fr.wikipedia.org", catalogue.frenchArticle);
        break;
    default:
        m_wikipedia = articleLink("http://en.wikipedia.org", catalogue.englishArticle);
        break;
    }
}

QString MusicShopBase::mustHave() const
{
    return m_mustHave;
}

QString MusicShopBase::niceToHave() const
{
    return m_niceToHave;
}

QString MusicShopBase::read() const
{
    return m_read;
}

QString MusicShopBase::hear() const
{
    return m_hear;
}

QString MusicShopBase::see() const
{
    return m_see;
}

QString MusicShopBase::wikipedia() const
{
    return m_wikipedia;
}

} // namespace QMMusic
