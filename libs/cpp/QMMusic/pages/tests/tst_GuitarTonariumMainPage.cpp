#include "App.h"
#include "GuitarShop.h"
#include "GuitarTonarium.h"
#include "GuitarTonariumMainPage.h"
#include "PromoMenuBar.h"

#include <QAction>
#include <QDesktopServices>
#include <QLayout>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

using namespace QMMusic;

// Catches the addresses the page hands to the browser.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QStringList urls;
public slots:
    void openUrl(const QUrl& url) { urls.append(url.toString()); }
};

class TestGuitarTonariumMainPage : public QObject
{
    Q_OBJECT

private:
    UrlCatcher m_catcher;

    static QStringList entries(const QMenu* menu)
    {
        QStringList names;
        for (const QAction* action : menu->actions())
            names.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        return names;
    }

private slots:
    void initTestCase()
    {
        for (const char* scheme : { "http", "https" })
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_catcher, "openUrl");
    }

    void barOnTopOfTheGuitarPage()
    {
        GuitarTonariumMainPage page;
        QCOMPARE(page.layout()->itemAt(0)->widget(), page.promoMenuBar());
        QCOMPARE(page.layout()->itemAt(1)->widget(), page.guitarTonarium());
    }

    void shopEntriesFollowTheAppsOwn()
    {
        GuitarTonariumMainPage page;
        page.promoMenuBar()->addMenuLink(QPixmap(), QStringLiteral("Own product"), QStringLiteral("https://x.org/"));
        page.addShopMenu();
        QVERIFY(qobject_cast<GuitarShop*>(page.shop()));
        QCOMPARE(entries(page.promoMenuBar()->shopMenu()),
            (QStringList { "Own product", "-", "Must Have", "Nice to Have", "Read", "Hear", "See", "-", "Wikipedia" }));
    }

    void entryOpensItsShelf_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("link");
        QTest::newRow("Must Have") << "Must Have" << 0;
        QTest::newRow("Nice to Have") << "Nice to Have" << 1;
        QTest::newRow("Read") << "Read" << 2;
        QTest::newRow("Hear") << "Hear" << 3;
        QTest::newRow("See") << "See" << 4;
        QTest::newRow("Wikipedia") << "Wikipedia" << 5;
    }

    void entryOpensItsShelf()
    {
        QFETCH(QString, entry);
        QFETCH(int, link);

        GuitarTonariumMainPage page;
        page.addShopMenu();
        const MusicShopBase* shop = page.shop();
        const QStringList links { shop->mustHave(), shop->niceToHave(), shop->read(), shop->hear(), shop->see(),
            shop->wikipedia() };
        m_catcher.urls.clear();
        for (QAction* action : page.promoMenuBar()->shopMenu()->actions()) {
            if (action->text() == entry)
                action->trigger();
        }
        QCOMPARE(m_catcher.urls, QStringList { links.at(link) });
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    TestGuitarTonariumMainPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuitarTonariumMainPage.moc"
