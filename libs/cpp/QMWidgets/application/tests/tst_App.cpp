#include "App.h"
#include "BlenderWidget.h"

#include <QDir>
#include <QMenuBar>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using QMWidgets::App;

namespace {

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

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void writeFile(const QString& path, const QString& content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content.toUtf8());
}

} // namespace

class tst_App : public QObject
{
    Q_OBJECT

    App* app() const { return App::theApp(); }

private slots:
    void firstStartOfAnEmptyHome()
    {
        // Construction itself creates directories: the flag must have been taken before that.
        QVERIFY(app()->isFirstStart());
        QVERIFY(!App::isFirstStartInternal());
    }

    void settingsStoreIsIniUnderTheApplicationGroup()
    {
        app()->setSettingsValue(QStringLiteral("Width"), 1024);
        app()->settings()->sync();
        const QString content = readFile(App::supportDirectory(false) + QStringLiteral("settings.plist"));
        const QRegularExpression keyInGroup(QStringLiteral("\\[TonariumTest\\]\\n([^[].*\\n)*Width=1024\\n"));
        QVERIFY2(keyInGroup.match(content).hasMatch(), qPrintable(content));
    }

    void settingsOfTwoApplicationsSharingOneFile_data()
    {
        QTest::addColumn<bool>("oldMode");
        QTest::addColumn<int>("seenByOther");
        QTest::newRow("grouped keys stay apart") << false << -1;
        QTest::newRow("old mode shares the keys") << true << 7;
    }

    void settingsOfTwoApplicationsSharingOneFile()
    {
        QFETCH(bool, oldMode);
        QFETCH(int, seenByOther);
        const QString key = QStringLiteral("SharedKey") + QString::number(oldMode);
        app()->setOldSettingsMode(oldMode);
        app()->setSettingsValue(key, 7);
        // The other application writes into the same file under its own name.
        QCoreApplication::setApplicationName(QStringLiteral("OtherTonarium"));
        const int seen = app()->settingsValue(key, -1).toInt();
        QCoreApplication::setApplicationName(QStringLiteral("TonariumTest"));
        app()->setOldSettingsMode(false);
        QCOMPARE(seen, seenByOther);
        QCOMPARE(app()->settings()->contains(key), oldMode);
    }

    void bundleResourcePath_data()
    {
        QTest::addColumn<QString>("applicationDir");
        QTest::addColumn<QString>("resources");
        QTest::newRow("mac bundle") << "/Applications/GuitarTonarium.app/Contents/MacOS"
                                    << "/Applications/GuitarTonarium.app/Contents/Resources/";
        QTest::newRow("linux build") << "/work/build/bin"
                                     << "/work/build/bin/Resources/";
    }

    void bundleResourcePath()
    {
        QFETCH(QString, applicationDir);
        QFETCH(QString, resources);
        QCOMPARE(App::bundleResourcePathFor(applicationDir), resources);
    }

    void activationFlipsStateAndSignals()
    {
        QSignalSpy activated(app(), &App::applicationActivated);
        QSignalSpy deactivated(app(), &App::applicationDeactivated);
        for (QEvent::Type type : { QEvent::ApplicationDeactivate, QEvent::ApplicationActivate }) {
            QEvent event(type);
            QCoreApplication::sendEvent(&activated, &event);
            QCOMPARE(app()->isDeactivated(), type == QEvent::ApplicationDeactivate);
            QCOMPARE(deactivated.count(), 1);
            QCOMPARE(activated.count(), type == QEvent::ApplicationActivate ? 1 : 0);
        }
    }

    void blenderCoversTheMainWidget()
    {
        // Without a main widget the slot has nothing to cover.
        app()->slotSetBlendMainWidget(true);
        MouseRecorder page;
        page.resize(320, 240);
        app()->setMainWidget(&page);
        page.show();
        auto* blender = page.findChild<QMWidgets::BlenderWidget*>(QStringLiteral("MainWidgetBlender"));
        QVERIFY(blender && !blender->isVisible());
        for (bool on : { true, false }) {
            app()->slotSetBlendMainWidget(on);
            QCOMPARE(blender->isVisible(), on);
            // Presses on the blender never reach the page below.
            QTest::mouseClick(
                on ? static_cast<QWidget*>(blender) : &page, Qt::LeftButton, Qt::NoModifier, QPoint(40, 30));
            QCOMPARE(page.pressedAt, on ? QPoint(-100, -100) : QPoint(40, 30));
        }
        QCOMPARE(blender->size(), page.size());

        const QList<QAction*> menus = page.findChild<QMenuBar*>()->actions();
        QCOMPARE(menus.size(), 1);
        const QList<QAction*> entries = menus.first()->menu()->actions();
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries.first()->text(), QStringLiteral("About"));
        app()->setMainWidget(nullptr);
    }

    void slideLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("en") << "en"
                            << "_en.jpg";
        QTest::newRow("de") << "de"
                            << "_de.jpg";
        QTest::newRow("fr has no slides") << "fr"
                                          << "_en.jpg";
    }

    void slideLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, suffix);
        const QStringList slides = App::introductionSlidesFor(QStringLiteral("/r/Resources/"), language);
        QCOMPARE(slides.size(), 7);
        QCOMPARE(slides.first(), QStringLiteral("/r/Resources/TRXSlide0") + suffix);
        QCOMPARE(slides.last(), QStringLiteral("/r/Resources/TRXSlide6") + suffix);
    }

    void buildFromCompilerDate_data()
    {
        QTest::addColumn<QString>("compilerDate");
        QTest::addColumn<QString>("build");
        QTest::addColumn<QDate>("date");
        QTest::newRow("single-digit day") << "Aug  1 2014"
                                          << "8/1/2014" << QDate(2014, 8, 1);
        QTest::newRow("december") << "Dec 31 2026"
                                  << "12/31/2026" << QDate(2026, 12, 31);
        QTest::newRow("not a date") << "garbage"
                                    << "garbage" << QDate();
    }

    void buildFromCompilerDate()
    {
        QFETCH(QString, compilerDate);
        QFETCH(QString, build);
        QFETCH(QDate, date);
        QCOMPARE(App::buildFromCompilerDate(compilerDate), build);
        QCOMPARE(App::dateFromBuild(build), date);
    }

    // The build reads back as its date (month first, no leading zeros), and
    // both are written where all messages go.
    void buildDateReadsBackAsTheBuildAndIsLogged()
    {
        const QString log = App::supportDirectory(false) + QStringLiteral("protocol.log");
        QFile::remove(log);
        App::setTerminalOuputToFile();
        const QDate date = app()->buildDate();
        App::disableTerminalOuput();
        QVERIFY(date.isValid());
        QCOMPARE(date.toString(QStringLiteral("M/d/yyyy")), app()->build());
        const QStringList lines = readFile(log).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines.at(0).contains(QStringLiteral(" Debug: &&&BUILD: \"%1\"").arg(app()->build())),
            qPrintable(lines.at(0)));
        QVERIFY2(lines.at(1).contains(QStringLiteral(" Debug: &&&DATE: QDate(\"%1\")").arg(date.toString(Qt::ISODate))),
            qPrintable(lines.at(1)));
    }

    void storeBuild_data()
    {
        QTest::addColumn<bool>("direct");
        QTest::addColumn<bool>("marker");
        QTest::addColumn<bool>("store");
        QTest::newRow("direct distribution with marker") << true << true << false;
        QTest::newRow("store build") << false << false << true;
        QTest::newRow("store build marked independent") << false << true << false;
    }

    void storeBuild()
    {
        QFETCH(bool, direct);
        QFETCH(bool, marker);
        QFETCH(bool, store);
        QTemporaryDir resources;
        if (marker)
            writeFile(resources.filePath(QStringLiteral("independent")), QString());
        QCOMPARE(App::isStoreBuild(direct, resources.path() + QLatin1Char('/')), store);
        QVERIFY(!App::isAppStore());
    }

    void currentLanguageOptimized_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("pathElement");
        QTest::newRow("en") << "en"
                            << "";
        QTest::newRow("de") << "de"
                            << "de/";
    }

    void currentLanguageOptimized()
    {
        QFETCH(QString, language);
        QFETCH(QString, pathElement);
        app()->currentLanguage(); // the translations manager settles first
        app()->setCurrentLanguage(language);
        QCOMPARE(app()->currentLanguageOptimized(), pathElement);
        app()->setCurrentLanguage(QStringLiteral("en"));
    }

    void copyTo_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("targetName");
        QTest::addColumn<QString>("existing");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("expectedFile");
        QTest::addColumn<QString>("expectedContent");
        QTest::newRow("new file under a new name") << "fresh"
                                                   << "copy.txt"
                                                   << "" << true << "copy.txt"
                                                   << "fresh";
        QTest::newRow("empty name keeps the source's") << "fresh"
                                                       << ""
                                                       << "" << true << "source.txt"
                                                       << "fresh";
        QTest::newRow("existing target is left alone") << "fresh"
                                                       << "copy.txt"
                                                       << "old" << true << "copy.txt"
                                                       << "old";
        QTest::newRow("missing source") << ""
                                        << "copy.txt"
                                        << "" << false << "copy.txt"
                                        << "";
    }

    void copyTo()
    {
        QFETCH(QString, source);
        QFETCH(QString, targetName);
        QFETCH(QString, existing);
        QFETCH(bool, result);
        QFETCH(QString, expectedFile);
        QFETCH(QString, expectedContent);
        QTemporaryDir dir;
        const QString targetDir = dir.filePath(QStringLiteral("not/yet/there"));
        if (!source.isEmpty())
            writeFile(dir.filePath(QStringLiteral("source.txt")), source);
        if (!existing.isEmpty() && QDir().mkpath(targetDir))
            writeFile(targetDir + QLatin1Char('/') + targetName, existing);
        QCOMPARE(App::copyTo(dir.filePath(QStringLiteral("source.txt")), targetDir, targetName), result);
        QVERIFY(QDir(targetDir).exists());
        QCOMPARE(readFile(targetDir + QLatin1Char('/') + expectedFile), expectedContent);
    }

    void mouseClickPosition_data()
    {
        QTest::addColumn<QPoint>("asked");
        QTest::addColumn<QPoint>("landed");
        QTest::newRow("negative asks for the middle") << QPoint(-1, -1) << QPoint(100, 50);
        QTest::newRow("given coordinates give the edge") << QPoint(10, 10) << QPoint(0, 0);
        QTest::newRow("centre column, top edge") << QPoint(-7, 30) << QPoint(100, 0);
        QTest::newRow("left edge, centre line") << QPoint(150, -1) << QPoint(0, 50);
    }

    void mouseClickPosition()
    {
        QFETCH(QPoint, asked);
        QFETCH(QPoint, landed);
        MouseRecorder widget;
        widget.resize(201, 101);
        App::mouseClick(&widget, asked.x(), asked.y());
        QTRY_COMPARE(widget.releasedAt, landed);
        QCOMPARE(widget.pressedAt, landed);
    }
};

int main(int argc, char* argv[])
{
    // Every directory of the application lands under an empty home.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("TonariumTest"));
    tst_App test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_App.moc"
