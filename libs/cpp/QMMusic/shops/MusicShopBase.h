#pragma once

#include <QLocale>
#include <QObject>

namespace QMMusic {

// Six web links of an instrument's shop: five shelves of a store front and
// an encyclopedia article, chosen by the system's country.
class MusicShopBase : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MusicShopBase)

public:
    // The store fronts; several countries share one.
    enum class StoreFront
    {
        UnitedStates,
        Germany,
        Canada,
        France,
        UnitedKingdom
    };

    static StoreFront storeFrontOf(QLocale::Country country);

    QString mustHave() const;
    QString niceToHave() const;
    QString read() const;
    QString hear() const;
    QString see() const;
    QString wikipedia() const;

    // Shelf numbers in the order must have, nice to have, read, hear, see.
    struct Shelves
    {
        int mustHave;
        int niceToHave;
        int read;
        int hear;
        int see;
    };

    // What a shop knows of its instrument: shelves per store front in the
    // order of StoreFront, and the article's title per language.
    struct Catalogue
    {
        Shelves shelves[5];
        const char* englishArticle;
        const char* germanArticle;
        const char* frenchArticle;
    };

protected:
    explicit MusicShopBase(QObject* parent);

    void fillLinks(const Catalogue& catalogue, QLocale::Country country);

private:
    static QString storeLink(StoreFront front, int shelf);

    QString m_mustHave;
    QString m_niceToHave;
    QString m_read;
    QString m_hear;
    QString m_see;
    QString m_wikipedia;
};

} // namespace QMMusic
