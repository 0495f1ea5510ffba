#include "App.h"
#include "AppButton.h"
#include "AppMenu.h"
#include "MoreAppsButton.h"
#include "PromoMenuBar.h"

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace QMWidgets;

// Catches the addresses the bar hands to the browser.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QStringList urls;
public slots:
    void openUrl(const QUrl& url) { urls.append(url.toString()); }
};

class TestPromoMenuBar : public QObject
{
    Q_OBJECT

private:
    // Names of the visible entries of a menu, a separator as "-".
    static QStringList visibleEntries(const QMenu* menu)
    {
        QStringList entries;
        for (const QAction* action : menu->actions()) {
            if (action->isVisible())
                entries.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        }
        return entries;
    }

    UrlCatcher m_catcher;

private slots:
    void initTestCase()
    {
        for (const char* scheme : { "http", "https", "mailto" })
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_catcher, "openUrl");
    }

    void cleanup()
    {
        App::theApp()->setKidsMode(false);
        m_catcher.urls.clear();
    }

    void barButtonsAndAppMenu_data()
    {
        QTest::addColumn<bool>("kidsMode");
        QTest::addColumn<bool>("hideRate");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QStringList>("entries");
        const QStringList bar { "MoreButton", "Centre", "IntroButton", "ShareButton", "JoinButton", "AppButton" };
        QTest::newRow("direct build: Check Updates, no rate entry")
            << false << false << bar
            << QStringList { "Share", "Join Us", "More Apps", "Contacts Us", "Support Page", "Check Updates", "About",
                   "-", "Quit" };
        QTest::newRow("hiding the rate action hides Check Updates")
            << false << true << bar
            << QStringList { "Share", "Join Us", "More Apps", "Contacts Us", "Support Page", "About", "-", "Quit" };
        QTest::newRow("kids mode keeps intro and centre, hides the update check")
            << true << false << QStringList { "Centre", "IntroButton" }
            << QStringList { "Contacts Us", "About", "-", "Quit" };
    }

    void barButtonsAndAppMenu()
    {
        QFETCH(bool, kidsMode);
        QFETCH(bool, hideRate);
        QFETCH(QStringList, buttons);
        QFETCH(QStringList, entries);
        App::theApp()->setKidsMode(kidsMode);
        PromoMenuBar bar;
        auto* centre = new QLabel(QStringLiteral("centre"));
        centre->setObjectName(QStringLiteral("Centre"));
        bar.addCenterWidget(centre);
        if (hideRate)
            bar.hideRateAction();
        bar.resize(800, 45);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QMap<int, QString> namesByX;
        for (QWidget* child : bar.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isVisible() && !child->objectName().isEmpty())
                namesByX.insert(child->x(), child->objectName());
        }
        QCOMPARE(namesByX.values(), buttons);

        QMenu* menu = bar.appButton()->appMenu();
        QCOMPARE(visibleEntries(menu), entries);
        QCOMPARE(bar.appButton()->menu(), menu);
        QSignalSpy quit(bar.appButton(), &AppButton::quitPressed);
        menu->actions().constLast()->trigger();
        QCOMPARE(quit.count(), 1);
    }

    void barButtonsShowPicturesAndNameThemInToolTips_data()
    {
        QTest::addColumn<QString>("objectName");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("intro") << "IntroButton"
                               << "Introduction";
        QTest::newRow("more") << "MoreButton"
                              << "More";
        QTest::newRow("rate") << "RateButton"
                              << "Rate App";
        QTest::newRow("more apps") << "MoreAppsButton"
                                   << "More Apps";
        QTest::newRow("share") << "ShareButton"
                               << "Share";
        QTest::newRow("join") << "JoinButton"
                              << "Join Us";
        QTest::newRow("app menu") << "AppButton"
                                  << "App Menu";
    }

    // A text would be painted over the style sheet's picture.
    void barButtonsShowPicturesAndNameThemInToolTips()
    {
        QFETCH(QString, objectName);
        QFETCH(QString, toolTip);
        PromoMenuBar bar;
        auto* button = bar.findChild<QPushButton*>(objectName);
        QVERIFY(button);
        QCOMPARE(button->toolTip(), toolTip);
        QCOMPARE(button->text(), QString());
    }

    void shopMenuKeepsCallOrderAndOpensItsLinks()
    {
        const QString web = QStringLiteral("https://www.corvane.com/apps/chordtonarium/");
        PromoMenuBar bar;
        bar.addMenuLink(QPixmap(), QStringLiteral("Web"), web);
        bar.addMenuSeparator();
        bar.addMenuAppLink(QPixmap(), QStringLiteral("Store"), QStringLiteral("ChordTonarium"), QStringLiteral("id1"));
        bar.addMenuAction(new QAction(QStringLiteral("Third"), &bar));
        bar.addMoreAppsLink();
        QCOMPARE(visibleEntries(bar.shopMenu()), (QStringList { "Web", "-", "Store", "Third", "-", "More Apps", "-" }));
        QCOMPARE(bar.findChild<QPushButton*>(QStringLiteral("MoreButton"))->menu(), bar.shopMenu());

        // The separate More Apps button builds its links the same way.
        MoreAppsButton button;
        button.addMenuLink(QPixmap(), QStringLiteral("Web"), web);
        button.addMenuAppLink(
            QPixmap(), QStringLiteral("Store"), QStringLiteral("ChordTonarium"), QStringLiteral("id1"));
        for (const QMenu* menu : { bar.shopMenu(), button.menu() }) {
            for (QAction* action : menu->actions()) {
                if (action->text() == QLatin1String("Web") || action->text() == QLatin1String("Store"))
                    action->trigger();
            }
        }
        const QString store = QStringLiteral("https://apps.apple.com/app/chordtonarium/id1?ls=1&mt=12");
        QCOMPARE(m_catcher.urls, (QStringList { web, store, web, store }));
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    TestPromoMenuBar test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PromoMenuBar.moc"
