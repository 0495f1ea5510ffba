#include "ProductLinks.h"

#include <QCoreApplication>
#include <QTest>

using QMWidgets::ProductLinks;

class tst_ProductLinks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("TonariumTest"));
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    }

    void links_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("supportPage");
        QTest::addColumn<bool>("storeBuild");
        QTest::addColumn<QString>("expected");
        const QString page = QStringLiteral("https://www.corvane.com/apps/tonariumtest/");
        const QString tell = QStringLiteral("mailto:?subject=Check out the cool TonariumTest app!&body=Hi, check out "
                                            "this cool TonariumTest app - available in the App Stores: ");
        QTest::newRow("rate in the store")
            << "rate"
            << "" << false << "https://apps.apple.com/app/tonariumtest/id918273645?ls=1&mt=12";
        QTest::newRow("promoted application in the store")
            << "promoted"
            << "" << false << "https://apps.apple.com/app/chords/id42?ls=1&mt=12";
        QTest::newRow("support page: the maker's site without one") << "support"
                                                                    << "" << false << "https://www.corvane.com";
        QTest::newRow("support page as set") << "support" << page << false << page;
        QTest::newRow("contact mail: version, system, language, I outside the store")
            << "contact"
            << "" << false << "mailto:support@corvane.com?subject=Contact (TonariumTest 1.2) Linux de I&body=";
        QTest::newRow("contact mail from the store build")
            << "contact"
            << "" << true << "mailto:support@corvane.com?subject=Contact (TonariumTest 1.2) Linux de &body=";
        QTest::newRow("tell a friend: the support page") << "tell" << page << false << tell + page;
        QTest::newRow("tell a friend: the maker's page without one")
            << "tell"
            << "" << false << tell + "https://www.corvane.com/apps/tonariumtest.html";
        QTest::newRow("tell a friend: the store entry in the store's language")
            << "tell"
            << "" << true << tell + "https://apps.apple.com/de/app/tonariumtest/id918273645?ls=1&mt=12";
        QTest::newRow("maker's links: facebook") << "facebook"
                                                 << "maker" << false << page + "facebook.php";
        QTest::newRow("maker's links: support page") << "support"
                                                     << "maker" << false << page;
    }

    void links()
    {
        QFETCH(QString, link);
        QFETCH(QString, supportPage);
        QFETCH(bool, storeBuild);
        QFETCH(QString, expected);
        ProductLinks links;
        links.setAppId(QStringLiteral("id918273645"));
        links.setPromotedAppNameAndID(QStringLiteral("Chords"), QStringLiteral("id42"));
        if (supportPage == QLatin1String("maker"))
            links.setMakerLinks();
        else
            links.setSupportPage(supportPage);
        QString text;
        if (link == QLatin1String("rate"))
            text = links.rateAppUrl();
        else if (link == QLatin1String("promoted"))
            text = links.promotedAppUrl();
        else if (link == QLatin1String("support"))
            text = links.supportPageUrl();
        else if (link == QLatin1String("contact"))
            text = ProductLinks::contactUsLink(QStringLiteral("Linux"), QStringLiteral("de"), storeBuild);
        else if (link == QLatin1String("tell"))
            text = links.tellFriendLink(storeBuild, QStringLiteral("de/"));
        else
            text = links.faceBookShareLink();
        QCOMPARE(text, expected);
    }

    void promotedLinkWinsOverTheStoreEntry()
    {
        ProductLinks links;
        links.setPromotedAppNameAndID(QStringLiteral("Chords"), QStringLiteral("id42"));
        links.setPromotedLink(QStringLiteral("https://example.org/chords"));
        QCOMPARE(links.promotedAppUrl(), QStringLiteral("https://example.org/chords"));
    }
};

QTEST_APPLESS_MAIN(tst_ProductLinks)
#include "tst_ProductLinks.moc"
