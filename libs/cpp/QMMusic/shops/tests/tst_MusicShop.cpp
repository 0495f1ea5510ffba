#include "BalalaikaShop.h"
#include "BanjoShop.h"
#include "BassShop.h"
#include "GuitarShop.h"
#include "MandolinShop.h"
#include "PianoShop.h"
#include "UkuleleShop.h"
#include "ViolinShop.h"

#include <QTest>

#include <memory>

using namespace QMMusic;

class TestMusicShop : public QObject
{
    Q_OBJECT

private:
    static std::unique_ptr<MusicShopBase> makeShop(const QString& instrument, QLocale::Country country)
    {
        if (instrument == QLatin1String("Guitar"))
            return std::make_unique<GuitarShop>(nullptr, country);
        if (instrument == QLatin1String("Ukulele"))
            return std::make_unique<UkuleleShop>(nullptr, country);
        if (instrument == QLatin1String("Banjo"))
            return std::make_unique<BanjoShop>(nullptr, country);
        if (instrument == QLatin1String("Bass"))
            return std::make_unique<BassShop>(nullptr, country);
        if (instrument == QLatin1String("Balalaika"))
            return std::make_unique<BalalaikaShop>(nullptr, country);
        if (instrument == QLatin1String("Piano"))
            return std::make_unique<PianoShop>(nullptr, country);
        if (instrument == QLatin1String("Mandolin"))
            return std::make_unique<MandolinShop>(nullptr, country);
        return std::make_unique<ViolinShop>(nullptr, country);
    }

    static QString store(const QString& hostAndPath, int shelf)
    {
        return QStringLiteral("http://") + hostAndPath + QStringLiteral("?_encoding=UTF8&node=")
            + QString::number(shelf);
    }

private slots:
    void storeLinks_data()
    {
        QTest::addColumn<QString>("instrument");
        QTest::addColumn<QLocale::Country>("country");
        QTest::addColumn<QString>("store");
        QTest::addColumn<QList<int>>("shelves");
        QTest::addColumn<QString>("wikipedia");

        const QString us = QStringLiteral("www.amazon.com/corvane_music_us-20");
        const QString de = QStringLiteral("www.amazon.de/corvane_music_de-21");
        const QString ca = QStringLiteral("www.amazon.ca/corvane_music_ca-20");
        const QString fr = QStringLiteral("www.amazon.fr/corvane_music_fr-21");
        const QString uk = QStringLiteral("www.amazon.co.uk/corvane_music_uk-21");

        // An empty article: not checked in that row.
        QTest::newRow("guitar, Austria: German store, must have 8, hear 12")
            << "Guitar" << QLocale::Austria << de << QList<int> { 8, 9, 10, 12, 13 }
            << "http://de.wikipedia.org/wiki/Gitarre";
        QTest::newRow("guitar, United States")
            << "Guitar" << QLocale::UnitedStates << us << QList<int> { 8, 9, 10, 11, 12 } << "";
        QTest::newRow("guitar, country without a row")
            << "Guitar" << QLocale::Japan << us << QList<int> { 8, 9, 10, 11, 12 }
            << "http://en.wikipedia.org/wiki/Guitar";
        QTest::newRow("guitar, Canada: English article")
            << "Guitar" << QLocale::Canada << ca << QList<int> { 6, 7, 8, 9, 10 }
            << "http://en.wikipedia.org/wiki/Guitar";
        QTest::newRow("ukulele, France: French article, accents kept")
            << "Ukulele" << QLocale::France << fr << QList<int> { 31, 32, 33, 34, 36 }
            << QString::fromUtf8("http://fr.wikipedia.org/wiki/Ukulélé");
        QTest::newRow("ukulele, United Kingdom")
            << "Ukulele" << QLocale::UnitedKingdom << uk << QList<int> { 32, 33, 34, 35, 36 } << "";
        QTest::newRow("bass, default with its gap")
            << "Bass" << QLocale::Brazil << us << QList<int> { 19, 20, 21, 23, 24 } << "";
        QTest::newRow("balalaika, German store swaps read and hear")
            << "Balalaika" << QLocale::Germany << de << QList<int> { 30, 31, 33, 32, 34 } << "";
        QTest::newRow("mandolin, United Kingdom")
            << "Mandolin" << QLocale::UnitedKingdom << uk << QList<int> { 11, 13, 14, 15, 16 } << "";
        QTest::newRow("violin, default") << "Violin" << QLocale::AnyCountry << us << QList<int> { 1, 3, 4, 5, 7 }
                                         << "http://en.wikipedia.org/wiki/Violin";
    }

    void storeLinks()
    {
        QFETCH(QString, instrument);
        QFETCH(QLocale::Country, country);
        QFETCH(QString, store);
        QFETCH(QList<int>, shelves);
        QFETCH(QString, wikipedia);

        const std::unique_ptr<MusicShopBase> shop = makeShop(instrument, country);
        const QStringList links { shop->mustHave(), shop->niceToHave(), shop->read(), shop->hear(), shop->see() };
        QStringList expected;
        for (int shelf : shelves)
            expected.append(TestMusicShop::store(store, shelf));
        QCOMPARE(links, expected);
        if (!wikipedia.isEmpty())
            QCOMPARE(shop->wikipedia(), wikipedia);
    }
};

QTEST_GUILESS_MAIN(TestMusicShop)
#include "tst_MusicShop.moc"
