#include "App.h"
#include "AppUpdateDialog.h"
#include "JoinDialog.h"
#include "JoinWidget.h"
#include "ModalAnswerer.h"
#include "TellDialog.h"
#include "TellWidget.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace QMWidgets;

class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QStringList urls;
public slots:
    void openUrl(const QUrl& url) { urls.append(url.toString()); }
};

class tst_TellAndJoin : public QObject
{
    Q_OBJECT

    UrlCatcher m_catcher;

    static QStringList visibleButtons(const QWidget& panel)
    {
        QStringList names;
        for (const QPushButton* button : panel.findChildren<QPushButton*>()) {
            if (!button->isHidden())
                names.append(button->objectName());
        }
        return names;
    }

private slots:
    void initTestCase()
    {
        for (const char* scheme : { "http", "https", "mailto" })
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_catcher, "openUrl");
    }

    void init()
    {
        App::theApp()->setCorvaneLinks();
        m_catcher.urls.clear();
    }

    void links_data()
    {
        QTest::addColumn<bool>("join");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("url");
        const QString share = QStringLiteral("https://www.corvane.com/apps/tonariumtest/");
        const QString joinPage
            = QStringLiteral("https://www.corvane.com/apps/appscontrol/index.php?app=TonariumTest&social=");
        QTest::newRow("share on facebook") << false << "FaceBookShareButton" << share + "facebook.php";
        QTest::newRow("share on twitter") << false << "TwitterShareButton" << share + "twitter.php";
        QTest::newRow("share on vkontakte") << false << "VKontakteShareButton" << share + "vkontakte.php";
        QTest::newRow("share by mail") << false << "EmailShareButton"
                                       << "mailto:?subject=Check out the cool TonariumTest app!&body=Hi, check out "
                                          "this cool TonariumTest app - available in the App Stores: "
                                          "https://www.corvane.com/apps/tonariumtest/";
        QTest::newRow("join on facebook") << true << "FaceBookJoinButton" << joinPage + "facebook";
        QTest::newRow("join on twitter, name not lowered") << true << "TwitterJoinButton" << joinPage + "twitter";
        QTest::newRow("join on vkontakte") << true << "VKontakteJoinButton" << joinPage + "vkontakte";
        QTest::newRow("join by mail") << true << "EmailJoinButton" << joinPage + "email";
    }

    void links()
    {
        QFETCH(bool, join);
        QFETCH(QString, button);
        QFETCH(QString, url);
        TellWidget tell;
        JoinWidget joinPanel;
        QWidget& panel = join ? static_cast<QWidget&>(joinPanel) : tell;
        auto* pushButton = panel.findChild<QPushButton*>(button);
        QVERIFY(pushButton);
        QCOMPARE(pushButton->size(), QSize(190, 35));
        QTest::mouseClick(pushButton, Qt::LeftButton);
        QCOMPARE(m_catcher.urls.size(), 1);
        QCOMPARE(QUrl(m_catcher.urls.first()), QUrl(url));
        // A clicked button stays down while the panel is open.
        QVERIFY(pushButton->isChecked());
    }

    void buttonsShown_data()
    {
        QTest::addColumn<bool>("withLinks");
        QTest::addColumn<QStringList>("share");
        QTest::addColumn<QStringList>("join");
        QTest::newRow("maker's links") << true
                                       << QStringList { "FaceBookShareButton", "TwitterShareButton",
                                              "VKontakteShareButton", "EmailShareButton" }
                                       << QStringList { "FaceBookJoinButton", "TwitterJoinButton",
                                              "VKontakteJoinButton", "EmailJoinButton" };
        QTest::newRow("no share links: mail alone")
            << false << QStringList { "EmailShareButton" } << QStringList { "EmailJoinButton" };
    }

    void buttonsShown()
    {
        QFETCH(bool, withLinks);
        QFETCH(QStringList, share);
        QFETCH(QStringList, join);
        App* app = App::theApp();
        if (!withLinks) {
            app->setFaceBookShareLink(QString());
            app->setTwitterShareLink(QString());
            app->setVKontakteShareLink(QString());
        }
        QCOMPARE(visibleButtons(TellWidget()), share);
        QCOMPARE(visibleButtons(JoinWidget()), join);
    }

    void menuOpensTheDialogs_data()
    {
        QTest::addColumn<bool>("join");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("share") << false << "QMWidgets::TellDialog"
                               << "Share TonariumTest"
                               << "please share it with your friends.";
        QTest::newRow("join") << true << "QMWidgets::JoinDialog"
                              << "Join us"
                              << "Join us and stay informed";
    }

    void menuOpensTheDialogs()
    {
        QFETCH(bool, join);
        QFETCH(QString, dialog);
        QFETCH(QString, title);
        QFETCH(QString, text);
        ModalAnswerer answerer(QStringLiteral("&Close"));
        if (join)
            App::theApp()->slotJoin();
        else
            App::theApp()->slotShareApp();
        QVERIFY(answerer.answered());
        QCOMPARE(answerer.className(), dialog);
        QCOMPARE(answerer.windowTitle(), title);
        QVERIFY2(answerer.texts().contains(text), qPrintable(answerer.texts()));
    }

    void updateCheckBoxStoresAtOnce_data()
    {
        QTest::addColumn<bool>("before");
        QTest::newRow("switched off") << true;
        QTest::newRow("switched on") << false;
    }

    void updateCheckBoxStoresAtOnce()
    {
        QFETCH(bool, before);
        App* app = App::theApp();
        app->setSettingsValue(QStringLiteral("checkupdates"), before);
        AppUpdateDialog dialog;
        auto* box = dialog.findChild<QCheckBox*>();
        QCOMPARE(box->isChecked(), before);
        box->click();
        QCOMPARE(app->settingsValue(QStringLiteral("checkupdates")).toBool(), !before);
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("No"))
                button->click();
        }
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(app->settingsValue(QStringLiteral("checkupdates")).toBool(), !before);
        QVERIFY(m_catcher.urls.isEmpty());
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("TonariumTest"));
    tst_TellAndJoin test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TellAndJoin.moc"
