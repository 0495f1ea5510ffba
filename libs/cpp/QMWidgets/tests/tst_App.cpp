#include "App.h"
#include "BlenderWidget.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using QMWidgets::App;

namespace {

const char testAppName[] = "TonariumTest";

// Points the home directory at a fresh empty folder for as long as it lives.
class ScopedHome
{
public:
    ScopedHome()
        : m_previous(qgetenv("HOME"))
    {
        qputenv("HOME", m_dir.path().toUtf8());
    }
    ~ScopedHome() { qputenv("HOME", m_previous); }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    QByteArray m_previous;
};

// Remembers where mouse presses and releases arrived.
class MouseRecorder : public QWidget
{
public:
    QPoint pressedAt { -100, -100 };
    QPoint releasedAt { -100, -100 };

protected:
    void mousePressEvent(QMouseEvent* event) override { pressedAt = event->pos(); }
    void mouseReleaseEvent(QMouseEvent* event) override { releasedAt = event->pos(); }
};

// Counts the application activation events that reach it.
class EventCounter : public QObject
{
public:
    int activations = 0;
    int deactivations = 0;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationActivate)
            ++activations;
        else if (event->type() == QEvent::ApplicationDeactivate)
            ++deactivations;
        return QObject::event(event);
    }
};

using DirectoryFunction = std::function<QString(bool)>;

} // namespace

Q_DECLARE_METATYPE(DirectoryFunction)

class tst_App : public QObject
{
    Q_OBJECT

public:
    explicit tst_App(const QString& startHome)
        : m_startHome(startHome)
    {
    }

private slots:
    void firstStartOfAnEmptyHome();
    void settingsStoreIsIniUnderTheApplicationGroup();
    void settingsOfTwoApplicationsSharingOneFile_data();
    void settingsOfTwoApplicationsSharingOneFile();
    void directoryPaths_data();
    void directoryPaths();
    void firstStartDetection_data();
    void firstStartDetection();
    void logLine_data();
    void logLine();
    void logToFileAndSilence();
    void bundleResourcePath_data();
    void bundleResourcePath();
    void bundleResourcePathOfThisProgram();
    void desktopShapes_data();
    void desktopShapes();
    void activationFlipsStateAndSignals();
    void blenderCoversTheMainWidget();
    void slideLanguage_data();
    void slideLanguage();

    void buildFromCompilerDate_data();
    void buildFromCompilerDate();
    void buildOfThisProgramIsADate();
    void storeBuild_data();
    void storeBuild();
    void bundleIdentifier_data();
    void bundleIdentifier();
    void currentLanguageOptimized_data();
    void currentLanguageOptimized();
    void copyTo_data();
    void copyTo();
    void openDirPathKeepsTheDirectory();
    void corvaneLinks();
    void storeLinks_data();
    void storeLinks();
    void mailLinks_data();
    void mailLinks();
    void mouseClickPosition_data();
    void mouseClickPosition();
    void isChildOf_data();
    void isChildOf();
    void widgetByClassName_data();
    void widgetByClassName();

private:
    App* app() const { return App::theApp(); }

    QString m_startHome;
};

void tst_App::firstStartOfAnEmptyHome()
{
    // The test started on an empty home, and construction itself creates
    // directories: the flag must have been taken before that.
    QVERIFY(app()->isFirstStart());
    QVERIFY(QDir(App::supportDirectory(false)).exists());
    QVERIFY(!App::isFirstStartInternal());
}

void tst_App::settingsStoreIsIniUnderTheApplicationGroup()
{
    app()->setSettingsValue(QStringLiteral("Width"), 1024);
    app()->settings()->sync();

    const QString file = m_startHome + QStringLiteral("/Library/Application Support/") + testAppName
        + QStringLiteral("/settings.plist");
    QVERIFY(QFile::exists(file));
    QFile text(file);
    QVERIFY(text.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString content = QString::fromUtf8(text.readAll());
    const int group = content.indexOf(QStringLiteral("[TonariumTest]"));
    const int key = content.indexOf(QStringLiteral("\nWidth=1024"));
    QVERIFY2(group >= 0, qPrintable(content));
    QVERIFY2(key > group, qPrintable(content));
    QVERIFY(!content.startsWith(QStringLiteral("Width=")));
    QCOMPARE(app()->settingsValue(QStringLiteral("Width"), 0).toInt(), 1024);
}

void tst_App::settingsOfTwoApplicationsSharingOneFile_data()
{
    QTest::addColumn<bool>("oldMode");
    QTest::addColumn<int>("seenByOther");
    QTest::newRow("grouped keys stay apart") << false << -1;
    QTest::newRow("old mode shares the keys") << true << 7;
}

void tst_App::settingsOfTwoApplicationsSharingOneFile()
{
    QFETCH(bool, oldMode);
    QFETCH(int, seenByOther);
    const QString key = QStringLiteral("SharedKey") + QString::number(oldMode);

    app()->setOldSettingsMode(oldMode);
    app()->setSettingsValue(key, 7);
    // The other application writes into the same file under its own name.
    QCoreApplication::setApplicationName(QStringLiteral("OtherTonarium"));
    const int seen = app()->settingsValue(key, -1).toInt();
    QCoreApplication::setApplicationName(QLatin1String(testAppName));
    app()->setOldSettingsMode(false);

    QCOMPARE(seen, seenByOther);
    QCOMPARE(app()->settings()->contains(key), oldMode);
}

void tst_App::directoryPaths_data()
{
    QTest::addColumn<DirectoryFunction>("directory");
    QTest::addColumn<QString>("relative");

    QTest::newRow("support") << DirectoryFunction(&App::supportDirectory)
                             << "/Library/Application Support/TonariumTest/";
    QTest::newRow("work") << DirectoryFunction(&App::workDirectory) << "/Library/TonariumTest/";
    QTest::newRow("caches") << DirectoryFunction(&App::cachesDirectory) << "/Library/Caches/TonariumTest/";
    QTest::newRow("pictures") << DirectoryFunction(&App::picturesDirectory) << "/Pictures/TonariumTest/";
    QTest::newRow("music") << DirectoryFunction(&App::musicDirectory) << "/Music/TonariumTest/";
    QTest::newRow("movies") << DirectoryFunction(&App::moviesDirectory) << "/Movies/TonariumTest/";
    QTest::newRow("downloads") << DirectoryFunction(&App::downloadsDirectory) << "/Downloads/TonariumTest/";
    QTest::newRow("documents hold the organisation")
        << DirectoryFunction(&App::documentsDirectory) << "/Documents/Corvane/TonariumTest/";
    QTest::newRow("data without slash")
        << DirectoryFunction(&App::dataDirectory) << "/.local/share/Corvane/TonariumTest";
}

void tst_App::directoryPaths()
{
    QFETCH(DirectoryFunction, directory);
    QFETCH(QString, relative);
    ScopedHome home;

    const QString path = directory(false);
    QCOMPARE(path, home.path() + relative);
    QVERIFY2(!QDir(path).exists(), "asking without create must not create");
    QCOMPARE(directory(true), path);
    QVERIFY(QDir(path).exists());
}

void tst_App::firstStartDetection_data()
{
    QTest::addColumn<DirectoryFunction>("present");
    QTest::addColumn<bool>("firstStart");

    QTest::newRow("nothing present") << DirectoryFunction() << true;
    QTest::newRow("support") << DirectoryFunction(&App::supportDirectory) << false;
    QTest::newRow("documents") << DirectoryFunction(&App::documentsDirectory) << false;
    QTest::newRow("caches") << DirectoryFunction(&App::cachesDirectory) << false;
    QTest::newRow("data") << DirectoryFunction(&App::dataDirectory) << false;
    QTest::newRow("work") << DirectoryFunction(&App::workDirectory) << false;
    QTest::newRow("pictures") << DirectoryFunction(&App::picturesDirectory) << false;
    QTest::newRow("music") << DirectoryFunction(&App::musicDirectory) << false;
    QTest::newRow("movies") << DirectoryFunction(&App::moviesDirectory) << false;
    QTest::newRow("downloads") << DirectoryFunction(&App::downloadsDirectory) << false;
    QTest::newRow("unrelated folders only") << DirectoryFunction([](bool) {
        QDir().mkpath(QDir::homePath() + QStringLiteral("/Library/Application Support/SomeoneElse"));
        QDir().mkpath(QDir::homePath() + QStringLiteral("/Music"));
        return QString();
    }) << true;
}

void tst_App::firstStartDetection()
{
    QFETCH(DirectoryFunction, present);
    QFETCH(bool, firstStart);
    ScopedHome home;
    if (present)
        present(true);
    QCOMPARE(App::isFirstStartInternal(), firstStart);
}

void tst_App::logLine_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("line");
    QTest::newRow("debug") << int(QtDebugMsg) << "09.03.14-07:05 Debug: tuned, Board.cpp\n";
    QTest::newRow("warning") << int(QtWarningMsg) << "09.03.14-07:05 Warning: tuned, Board.cpp\n";
    QTest::newRow("critical") << int(QtCriticalMsg) << "09.03.14-07:05 Critical: tuned, Board.cpp\n";
    QTest::newRow("fatal") << int(QtFatalMsg) << "09.03.14-07:05 Fatal: tuned, Board.cpp\n";
    QTest::newRow("info is not logged") << int(QtInfoMsg) << QString();
}

void tst_App::logLine()
{
    QFETCH(int, type);
    QFETCH(QString, line);
    const QMessageLogContext context("Board.cpp", 12, "void f()", "default");
    const QDateTime time(QDate(2014, 3, 9), QTime(7, 5, 59));
    QCOMPARE(App::logLine(QtMsgType(type), context, QStringLiteral("tuned"), time), line);
}

void tst_App::logToFileAndSilence()
{
    const QString log = App::supportDirectory(false) + QStringLiteral("protocol.log");
    QFile::remove(log);

    App::setTerminalOuputToFile();
    qWarning("first %d", 1);
    qCritical("second");
    App::disableTerminalOuput();
    qWarning("silenced");

    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    const QRegularExpression form(QStringLiteral("^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Warning: first 1, .*$"));
    QVERIFY2(form.match(lines.at(0)).hasMatch(), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).contains(QStringLiteral(" Critical: second, ")), qPrintable(lines.at(1)));
}

void tst_App::bundleResourcePath_data()
{
    QTest::addColumn<QString>("applicationDir");
    QTest::addColumn<QString>("resources");
    QTest::newRow("mac bundle") << "/Applications/GuitarTonarium.app/Contents/MacOS"
                                << "/Applications/GuitarTonarium.app/Contents/Resources/";
    QTest::newRow("linux build") << "/work/build/bin"
                                 << "/work/build/bin/Resources/";
    QTest::newRow("every MacOS goes") << "/MacOS/x/MacOS" << "//x/Resources/";
}

void tst_App::bundleResourcePath()
{
    QFETCH(QString, applicationDir);
    QFETCH(QString, resources);
    QCOMPARE(App::bundleResourcePathFor(applicationDir), resources);
}

void tst_App::bundleResourcePathOfThisProgram()
{
    QCOMPARE(app()->bundleResourcePath(), QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/"));
}

void tst_App::desktopShapes_data()
{
    QTest::addColumn<QSize>("desktop");
    QTest::addColumn<bool>("pocket");
    QTest::addColumn<int>("smallest");
    QTest::newRow("1024x400 wide but low") << QSize(1024, 400) << true << 400;
    QTest::newRow("479x800 narrow") << QSize(479, 800) << true << 479;
    QTest::newRow("480x480 just enough") << QSize(480, 480) << false << 480;
    QTest::newRow("1280x800 desktop") << QSize(1280, 800) << false << 800;
}

void tst_App::desktopShapes()
{
    QFETCH(QSize, desktop);
    QFETCH(bool, pocket);
    QFETCH(int, smallest);
    QCOMPARE(App::isPocketSize(desktop), pocket);
    QCOMPARE(App::smallestDimention(desktop), smallest);
}

void tst_App::activationFlipsStateAndSignals()
{
    QSignalSpy activated(app(), &App::applicationActivated);
    QSignalSpy deactivated(app(), &App::applicationDeactivated);
    EventCounter receiver;

    QEvent deactivate(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(&receiver, &deactivate);
    QVERIFY(app()->isDeactivated());
    QCOMPARE(deactivated.count(), 1);
    QCOMPARE(activated.count(), 0);

    QEvent activate(QEvent::ApplicationActivate);
    QCoreApplication::sendEvent(&receiver, &activate);
    QVERIFY(!app()->isDeactivated());
    QCOMPARE(activated.count(), 1);
    QCOMPARE(deactivated.count(), 1);

    QCOMPARE(receiver.deactivations, 1);
    QCOMPARE(receiver.activations, 1);
}

void tst_App::blenderCoversTheMainWidget()
{
    // Without a main widget the slot has nothing to cover.
    app()->slotSetBlendMainWidget(true);

    MouseRecorder page;
    page.resize(320, 240);
    app()->setMainWidget(&page);
    QCOMPARE(app()->mainWidget(), &page);
    page.show();

    auto* blender = page.findChild<QMWidgets::BlenderWidget*>(QStringLiteral("MainWidgetBlender"));
    QVERIFY(blender);
    QVERIFY(!blender->isVisible());

    app()->slotSetBlendMainWidget(true);
    QVERIFY(blender->isVisible());
    QCOMPARE(blender->size(), page.size());
    // Presses on the blender never reach the page below.
    QTest::mouseClick(blender, Qt::LeftButton, Qt::NoModifier, QPoint(40, 30));
    QCOMPARE(page.pressedAt, QPoint(-100, -100));

    app()->slotSetBlendMainWidget(false);
    QVERIFY(!blender->isVisible());
    QTest::mouseClick(&page, Qt::LeftButton, Qt::NoModifier, QPoint(40, 30));
    QCOMPARE(page.pressedAt, QPoint(40, 30));

    const auto* menuBar = page.findChild<QMenuBar*>();
    QVERIFY(menuBar);
    const QList<QAction*> menus = menuBar->actions();
    QCOMPARE(menus.size(), 1);
    QVERIFY(menus.first()->menu());
    const QList<QAction*> entries = menus.first()->menu()->actions();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first()->text(), QStringLiteral("About"));
    QVERIFY(entries.first()->shortcut().isEmpty());

    app()->setMainWidget(nullptr);
}

void tst_App::slideLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("slideFile");
    QTest::newRow("en") << "en" << "TRXSlide3_en.jpg";
    QTest::newRow("de") << "de" << "TRXSlide3_de.jpg";
    QTest::newRow("ru") << "ru" << "TRXSlide3_ru.jpg";
    QTest::newRow("fr has no slides") << "fr" << "TRXSlide3_en.jpg";
    QTest::newRow("zh_CN has no slides") << "zh_CN" << "TRXSlide3_en.jpg";
}

void tst_App::slideLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, slideFile);
    const QStringList slides = App::introductionSlidesFor(QStringLiteral("/r/Resources/"), language);
    QCOMPARE(slides.size(), 7);
    QCOMPARE(slides.at(3), QStringLiteral("/r/Resources/") + slideFile);
    QVERIFY(slides.first().endsWith(QStringLiteral("TRXSlide0_") + slideFile.mid(10)));
    QVERIFY(slides.last().endsWith(QStringLiteral("TRXSlide6_") + slideFile.mid(10)));
}

void tst_App::buildFromCompilerDate_data()
{
    QTest::addColumn<QString>("compilerDate");
    QTest::addColumn<QString>("build");
    QTest::addColumn<QDate>("date");
    QTest::newRow("single-digit day") << "Aug  1 2014" << "8/1/2014" << QDate(2014, 8, 1);
    QTest::newRow("december") << "Dec 31 2026" << "12/31/2026" << QDate(2026, 12, 31);
    QTest::newRow("january") << "Jan  9 2020" << "1/9/2020" << QDate(2020, 1, 9);
    QTest::newRow("november") << "Nov 22 2026" << "11/22/2026" << QDate(2026, 11, 22);
    QTest::newRow("not a date") << "garbage" << "garbage" << QDate();
}

void tst_App::buildFromCompilerDate()
{
    QFETCH(QString, compilerDate);
    QFETCH(QString, build);
    QFETCH(QDate, date);
    QCOMPARE(App::buildFromCompilerDate(compilerDate), build);
    QCOMPARE(App::dateFromBuild(build), date);
}

void tst_App::buildOfThisProgramIsADate()
{
    const QDate date = app()->buildDate();
    QVERIFY(date.isValid());
    QVERIFY(date <= QDate::currentDate());
    QVERIFY(date.year() >= 2024);
}

void tst_App::storeBuild_data()
{
    QTest::addColumn<bool>("direct");
    QTest::addColumn<bool>("marker");
    QTest::addColumn<bool>("store");
    QTest::newRow("direct distribution") << true << false << false;
    QTest::newRow("direct distribution with marker") << true << true << false;
    QTest::newRow("store build") << false << false << true;
    QTest::newRow("store build marked independent") << false << true << false;
}

void tst_App::storeBuild()
{
    QFETCH(bool, direct);
    QFETCH(bool, marker);
    QFETCH(bool, store);
    QTemporaryDir resources;
    if (marker) {
        QFile file(resources.path() + QStringLiteral("/independent"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(App::isStoreBuild(direct, resources.path() + QLatin1Char('/')), store);
    QVERIFY(!App::isAppStore());
}

void tst_App::bundleIdentifier_data()
{
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("maker's domain") << "corvane.com" << "com.corvane.TonariumTest";
    QTest::newRow("three parts") << "www.corvane.com" << "com.www.TonariumTest";
    QTest::newRow("one part") << "local" << "local.local.TonariumTest";
    QTest::newRow("trailing dot keeps the empty part") << "corvane." << ".corvane.TonariumTest";
}

void tst_App::bundleIdentifier()
{
    QFETCH(QString, domain);
    QFETCH(QString, identifier);
    QCoreApplication::setOrganizationDomain(domain);
    QCOMPARE(app()->bundleIdentifier(), identifier);
}

void tst_App::currentLanguageOptimized_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("pathElement");
    QTest::newRow("en") << "en" << "";
    QTest::newRow("de") << "de" << "de/";
    QTest::newRow("ru") << "ru" << "ru/";
    QTest::newRow("zh_CN") << "zh_CN" << "zh_CN/";
}

void tst_App::currentLanguageOptimized()
{
    QFETCH(QString, language);
    QFETCH(QString, pathElement);
    app()->currentLanguage(); // the translations manager settles first
    app()->setCurrentLanguage(language);
    QCOMPARE(app()->currentLanguageOptimized(), pathElement);
    app()->setCurrentLanguage(QStringLiteral("en"));
}

void tst_App::copyTo_data()
{
    QTest::addColumn<QString>("targetName");
    QTest::addColumn<bool>("targetExists");
    QTest::addColumn<bool>("sourceExists");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("expectedFile");
    QTest::addColumn<QByteArray>("expectedContent");

    QTest::newRow("new file under a new name") << "copy.txt" << false << true << true << "copy.txt" << QByteArray("fresh");
    QTest::newRow("empty name keeps the source's") << "" << false << true << true << "source.txt" << QByteArray("fresh");
    QTest::newRow("existing target is left alone") << "copy.txt" << true << true << true << "copy.txt" << QByteArray("old");
    QTest::newRow("missing source") << "copy.txt" << false << false << false << "copy.txt" << QByteArray();
}

void tst_App::copyTo()
{
    QFETCH(QString, targetName);
    QFETCH(bool, targetExists);
    QFETCH(bool, sourceExists);
    QFETCH(bool, result);
    QFETCH(QString, expectedFile);
    QFETCH(QByteArray, expectedContent);

    QTemporaryDir dir;
    const QString source = dir.path() + QStringLiteral("/source.txt");
    if (sourceExists) {
        QFile file(source);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("fresh");
    }
    const QString targetDir = dir.path() + QStringLiteral("/not/yet/there");
    if (targetExists) {
        QVERIFY(QDir().mkpath(targetDir));
        QFile file(targetDir + QLatin1Char('/') + targetName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

    QCOMPARE(App::copyTo(source, targetDir, targetName), result);
    QVERIFY(QDir(targetDir).exists());
    QFile target(targetDir + QLatin1Char('/') + expectedFile);
    if (expectedContent.isEmpty()) {
        QVERIFY(!target.exists());
    } else {
        QVERIFY(target.open(QIODevice::ReadOnly));
        QCOMPARE(target.readAll(), expectedContent);
    }
}

void tst_App::openDirPathKeepsTheDirectory()
{
    QCOMPARE(app()->openDirPath(), App::workDirectory(false));
    QCOMPARE(app()->saveDirPath(), App::workDirectory(false));
    app()->setOpenDirPath(QStringLiteral("/music/scores/etude.wav"));
    QCOMPARE(app()->openDirPath(), QStringLiteral("/music/scores"));
    app()->setSaveDirPath(QStringLiteral("/music/takes/take1.wav"));
    QCOMPARE(app()->saveDirPath(), QStringLiteral("/music/takes"));
}

void tst_App::corvaneLinks()
{
    app()->setCorvaneLinks();
    QCOMPARE(app()->faceBookShareLink(), QStringLiteral("https://www.corvane.com/apps/tonariumtest/facebook.php"));
    QCOMPARE(app()->twitterShareLink(), QStringLiteral("https://www.corvane.com/apps/tonariumtest/twitter.php"));
    QCOMPARE(app()->vkontakteShareLink(), QStringLiteral("https://www.corvane.com/apps/tonariumtest/vkontakte.php"));
    QCOMPARE(app()->appSupportPage(), QStringLiteral("https://www.corvane.com/apps/tonariumtest/"));
    app()->setAppSupportPage(QString());
}

void tst_App::storeLinks_data()
{
    QTest::addColumn<QString>("promotedLink");
    QTest::addColumn<QString>("supportPage");
    QTest::addColumn<QString>("promoted");
    QTest::addColumn<QString>("support");
    QTest::newRow("store address of the promoted app")
        << "" << "" << "https://apps.apple.com/app/chordtonarium/id123456789?ls=1&mt=12"
        << "https://www.corvane.com";
    QTest::newRow("a promoted link wins, a support page is used")
        << "https://www.corvane.com/apps/x/" << "https://www.corvane.com/apps/tonariumtest/"
        << "https://www.corvane.com/apps/x/" << "https://www.corvane.com/apps/tonariumtest/";
}

void tst_App::storeLinks()
{
    QFETCH(QString, promotedLink);
    QFETCH(QString, supportPage);
    QFETCH(QString, promoted);
    QFETCH(QString, support);

    app()->setAppId(QStringLiteral("id918273645"));
    app()->setPromotedAppNameAndID(QStringLiteral("ChordTonarium"), QStringLiteral("id123456789"));
    app()->setPromotedLink(promotedLink);
    app()->setAppSupportPage(supportPage);

    QCOMPARE(app()->rateAppUrl(), QStringLiteral("https://apps.apple.com/app/tonariumtest/id918273645?ls=1&mt=12"));
    QCOMPARE(app()->promotedAppUrl(), promoted);
    QCOMPARE(app()->supportPageUrl(), support);
    QCOMPARE(app()->moreAppsUrl(), QStringLiteral("https://www.corvane.com/apps"));

    app()->setPromotedLink(QString());
    app()->setAppSupportPage(QString());
}

void tst_App::mailLinks_data()
{
    QTest::addColumn<QString>("supportPage");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("tellFriend");

    QTest::newRow("support page as the product link")
        << "https://www.corvane.com/apps/tonariumtest/" << "en"
        << "mailto:?subject=Check out the cool TonariumTest app!&body=Hi, check out this cool TonariumTest app - "
           "available in the App Stores: https://www.corvane.com/apps/tonariumtest/";
    QTest::newRow("maker's page outside the store")
        << "" << "de"
        << "mailto:?subject=Check out the cool TonariumTest app!&body=Hi, check out this cool TonariumTest app - "
           "available in the App Stores: https://www.corvane.com/apps/tonariumtest.html";
}

void tst_App::mailLinks()
{
    QFETCH(QString, supportPage);
    QFETCH(QString, language);
    QFETCH(QString, tellFriend);

    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    app()->currentLanguage();
    app()->setCurrentLanguage(language);
    app()->setAppSupportPage(supportPage);

    QCOMPARE(app()->contactUsLink(), QStringLiteral("mailto:support@corvane.com?subject=Contact (TonariumTest 1.2) ")
                 + app()->osInfo() + QLatin1Char(' ') + language + QStringLiteral(" I&body="));
    QCOMPARE(app()->tellFriendLink(), tellFriend);

    app()->setAppSupportPage(QString());
    app()->setCurrentLanguage(QStringLiteral("en"));
}

void tst_App::mouseClickPosition_data()
{
    QTest::addColumn<QPoint>("asked");
    QTest::addColumn<QPoint>("landed");
    QTest::newRow("negative asks for the middle") << QPoint(-1, -1) << QPoint(100, 50);
    QTest::newRow("given coordinates give the edge") << QPoint(10, 10) << QPoint(0, 0);
    QTest::newRow("centre column, top edge") << QPoint(-7, 30) << QPoint(100, 0);
    QTest::newRow("left edge, centre line") << QPoint(150, -1) << QPoint(0, 50);
}

void tst_App::mouseClickPosition()
{
    QFETCH(QPoint, asked);
    QFETCH(QPoint, landed);
    MouseRecorder widget;
    widget.resize(201, 101);
    App::mouseClick(&widget, asked.x(), asked.y());
    QTRY_COMPARE(widget.releasedAt, landed);
    QCOMPARE(widget.pressedAt, landed);
}

void tst_App::isChildOf_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<bool>("result");
    QTest::newRow("direct child") << "child" << true;
    QTest::newRow("grandchild") << "grandchild" << true;
    QTest::newRow("the parent itself") << "root" << false;
    QTest::newRow("unrelated") << "stranger" << false;
}

void tst_App::isChildOf()
{
    QFETCH(QString, child);
    QFETCH(bool, result);
    QObject root;
    root.setObjectName(QStringLiteral("root"));
    auto* direct = new QObject(&root);
    direct->setObjectName(QStringLiteral("child"));
    auto* grand = new QObject(direct);
    grand->setObjectName(QStringLiteral("grandchild"));
    QObject stranger;
    stranger.setObjectName(QStringLiteral("stranger"));

    QObject* candidates[] = { &root, direct, grand, &stranger };
    QObject* object = nullptr;
    for (QObject* candidate : candidates) {
        if (candidate->objectName() == child)
            object = candidate;
    }
    QVERIFY(object);
    QCOMPARE(App::isChildOf(object, &root), result);
}

void tst_App::widgetByClassName_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("found");
    QTest::newRow("top-level window") << "QDialog" << "dialog";
    QTest::newRow("child of a window") << "QPushButton" << "button";
    QTest::newRow("another child") << "QLabel" << "label";
    QTest::newRow("absent class") << "QSlider" << "";
}

void tst_App::widgetByClassName()
{
    QFETCH(QString, className);
    QFETCH(QString, found);
    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    auto* label = new QLabel(&window);
    label->setObjectName(QStringLiteral("label"));
    auto* button = new QPushButton(&window);
    button->setObjectName(QStringLiteral("button"));
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("dialog"));

    QWidget* widget = app()->getWidgetByClassName(className);
    if (found.isEmpty()) {
        QVERIFY(!widget);
    } else {
        QVERIFY(widget);
        QCOMPARE(widget->objectName(), found);
    }
}

int main(int argc, char* argv[])
{
    // Every directory of the application lands under an empty home.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    App app(argc, argv, QStringLiteral("Corvane"), QLatin1String(testAppName));
    tst_App test(home.path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_App.moc"
