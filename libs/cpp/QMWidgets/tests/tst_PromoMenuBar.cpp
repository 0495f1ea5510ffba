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

#include <algorithm>

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

    void barButtonsLeftToRight_data()
    {
        QTest::addColumn<bool>("kidsMode");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("direct build")
            << false
            << QStringList{ "MoreButton", "Centre", "IntroButton", "ShareButton", "JoinButton", "AppButton" };
        QTest::newRow("kids mode keeps intro and centre") << true << QStringList{ "Centre", "IntroButton" };
    }

    void barButtonsLeftToRight()
    {
        QFETCH(bool, kidsMode);
        QFETCH(QStringList, expected);
        App::theApp()->setKidsMode(kidsMode);

        PromoMenuBar bar;
        auto* centre = new QLabel(QStringLiteral("centre"));
        centre->setObjectName(QStringLiteral("Centre"));
        bar.addCenterWidget(centre);
        bar.resize(800, 45);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));

        QList<QWidget*> shown;
        for (QWidget* child : bar.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isVisible() && !child->objectName().isEmpty())
                shown.append(child);
        }
        std::sort(shown.begin(), shown.end(), [](QWidget* a, QWidget* b) { return a->x() < b->x(); });
        QStringList names;
        for (QWidget* widget : shown)
            names.append(widget->objectName());
        QCOMPARE(names, expected);
    }

    void pictureButtonsHaveFixedSize()
    {
        PromoMenuBar bar;
        const QList<QPushButton*> buttons = bar.findChildren<QPushButton*>();
        QCOMPARE(buttons.size(), 7);
        for (const QPushButton* button : buttons) {
            QVERIFY2(button->isFlat(), qPrintable(button->objectName()));
            QCOMPARE(button->minimumSize(), QSize(60, 32));
            QCOMPARE(button->maximumSize(), QSize(60, 32));
        }
    }

    void appMenuEntries_data()
    {
        QTest::addColumn<bool>("kidsMode");
        QTest::addColumn<bool>("hideRate");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("direct build shows Check Updates, no rate entry")
            << false << false
            << QStringList{ "Share",        "Join Us",       "More Apps", "Contacts Us", "Support Page",
                            "Check Updates", "About",        "-",         "Quit" };
        QTest::newRow("hiding the rate action hides Check Updates")
            << false << true
            << QStringList{ "Share", "Join Us", "More Apps", "Contacts Us", "Support Page", "About", "-", "Quit" };
        QTest::newRow("kids mode hides the update check with the rate entry")
            << true << false << QStringList{ "Contacts Us", "About", "-", "Quit" };
    }

    void appMenuEntries()
    {
        QFETCH(bool, kidsMode);
        QFETCH(bool, hideRate);
        QFETCH(QStringList, expected);
        App::theApp()->setKidsMode(kidsMode);

        PromoMenuBar bar;
        if (hideRate)
            bar.hideRateAction();
        QCOMPARE(visibleEntries(bar.appButton()->appMenu()), expected);
        QCOMPARE(bar.appButton()->menu(), bar.appButton()->appMenu());
    }

    void quitEntryReachesTheButton()
    {
        AppButton button;
        QSignalSpy spy(&button, &AppButton::quitPressed);
        const QList<QAction*> actions = button.appMenu()->actions();
        auto quit = std::find_if(actions.begin(), actions.end(),
                                 [](const QAction* action) { return action->text() == QLatin1String("Quit"); });
        QVERIFY(quit != actions.end());
        QVERIFY((*quit)->shortcut().isEmpty());
        (*quit)->trigger();
        QCOMPARE(spy.count(), 1);
    }

    void shopMenuKeepsCallOrder()
    {
        PromoMenuBar bar;
        bar.addMenuLink(QPixmap(), QStringLiteral("First"), QStringLiteral("https://example.org/1"));
        bar.addMenuSeparator();
        bar.addMenuAppLink(QPixmap(), QStringLiteral("Second"), QStringLiteral("Second"), QStringLiteral("id1"));
        bar.addMenuAction(new QAction(QStringLiteral("Third"), &bar));
        bar.addMoreAppsLink();
        QCOMPARE(visibleEntries(bar.shopMenu()),
                 (QStringList{ "First", "-", "Second", "Third", "-", "More Apps", "-" }));
        QCOMPARE(bar.findChild<QPushButton*>(QStringLiteral("MoreButton"))->menu(), bar.shopMenu());
    }

    void menuLinksOpenTheirAddress_data()
    {
        QTest::addColumn<bool>("appLink");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("storeId");
        QTest::addColumn<QString>("expected");
        QTest::newRow("web link as given") << false << "https://www.corvane.com/apps/chordtonarium/" << ""
                                           << "https://www.corvane.com/apps/chordtonarium/";
        QTest::newRow("store link with lower-case name")
            << true << "ChordTonarium" << "id123456789"
            << "https://apps.apple.com/app/chordtonarium/id123456789?ls=1&mt=12";
    }

    void menuLinksOpenTheirAddress()
    {
        QFETCH(bool, appLink);
        QFETCH(QString, target);
        QFETCH(QString, storeId);
        QFETCH(QString, expected);

        PromoMenuBar bar;
        MoreAppsButton button;
        if (appLink) {
            bar.addMenuAppLink(QPixmap(), QStringLiteral("Entry"), target, storeId);
            button.addMenuAppLink(QPixmap(), QStringLiteral("Entry"), target, storeId);
        } else {
            bar.addMenuLink(QPixmap(), QStringLiteral("Entry"), target);
            button.addMenuLink(QPixmap(), QStringLiteral("Entry"), target);
        }
        bar.shopMenu()->actions().constLast()->trigger();
        button.menu()->actions().constLast()->trigger();
        QCOMPARE(m_catcher.urls, (QStringList{ expected, expected }));
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
