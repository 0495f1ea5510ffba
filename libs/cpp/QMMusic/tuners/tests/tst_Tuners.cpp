#include "App.h"
#include "BassGuitarTuner.h"
#include "ButtonsPanel.h"
#include "FamilyPrograms.h"
#include "ModesPanel.h"
#include "TuneButton.h"
#include "TunerBasePage.h"
#include "TunersCommonPanel.h"
#include "TunersExplorer.h"
#include "TunersMainPage.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMusic;

namespace {

QMWidgets::App* app()
{
    return QMWidgets::App::theApp();
}

TunerBasePage* pageNamed(const TunersMainPage& main, const QString& className)
{
    for (TunerBasePage* page : main.pages()) {
        if (QLatin1String(page->metaObject()->className()) == QStringLiteral("QMMusic::") + className)
            return page;
    }
    return nullptr;
}

void writeExecutable(const QString& path, const QByteArray& script)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(script);
    file.close();
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
}

} // namespace

class tst_Tuners : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void stringsAndSamples_data();
    void stringsAndSamples();
    void storedPitch_data();
    void storedPitch();
    void repeatSoundsTheCheckedButtonOnly();
    void onlyTheVisiblePageSounds();
    void repeatSwitchReachesPages_data();
    void repeatSwitchReachesPages();
    void explorerChoosesThePage();
    void bassGuitarFifthString();
    void windowSizeIsStored();
    void familyProgramsBesideTheExecutable();
};

void tst_Tuners::init()
{
    app()->setSettingsValue(QStringLiteral("Pitch"), 440);
    app()->setSettingsValue(QStringLiteral("Repeat"), false);
    app()->setSettingsValue(QStringLiteral("Width"), 736);
    app()->setSettingsValue(QStringLiteral("Height"), 636);
}

void tst_Tuners::stringsAndSamples_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("files");

    // The files carry "440"; every pitch of the menu replaces it.
    QTest::newRow("guitar") << "GuitarTuner" << QStringList { "E2", "A2", "D3", "G3", "B3", "E4" }
                            << QStringList { "guitar_440_E2.mp3", "guitar_440_A2.mp3", "guitar_440_D3.mp3",
                                   "guitar_440_G3.mp3", "guitar_440_B3.mp3", "guitar_440_E4.mp3" };
    QTest::newRow("bass guitar") << "BassGuitarTuner" << QStringList { "B0", "E1", "A1", "D2", "G2" }
                                 << QStringList { "bassguitar_440_B0.mp3", "bassguitar_440_E1.mp3",
                                        "bassguitar_440_A1.mp3", "bassguitar_440_D2.mp3", "bassguitar_440_G2.mp3" };
    QTest::newRow("ukulele") << "UkuleleTuner" << QStringList { "G4", "C4", "E4", "A4" }
                             << QStringList { "ukulele_440_G4.mp3", "ukulele_440_C4.mp3", "ukulele_440_E4.mp3",
                                    "ukulele_440_A4.mp3" };
    // The second button reads D3 and plays the C3 recording.
    QTest::newRow("banjo") << "BanjoTuner" << QStringList { "G4", "D3", "G3", "B3", "D4" }
                           << QStringList { "banjo_440_G4.mp3", "banjo_440_C3.mp3", "banjo_440_G3.mp3",
                                  "banjo_440_B3.mp3", "banjo_440_D4.mp3" };
    QTest::newRow("violin") << "ViolinTuner" << QStringList { "G3", "D4", "A4", "E5" }
                            << QStringList { "violine_440_G3.mp3", "violine_440_D4.mp3", "violine_440_A4.mp3",
                                   "violine_440_E5.mp3" };
    QTest::newRow("viola") << "ViolaTuner" << QStringList { "C3", "G3", "D4", "A4" }
                           << QStringList { "violine_440_C3.mp3", "violine_440_G3.mp3", "violine_440_D4.mp3",
                                  "violine_440_A4.mp3" };
    QTest::newRow("cello") << "CelloTuner" << QStringList { "C2", "G2", "D3", "A3" }
                           << QStringList { "cello_440_C2.mp3", "cello_440_G2.mp3", "cello_440_D3.mp3",
                                  "cello_440_A3.mp3" };
    QTest::newRow("double bass") << "DoubleBassTuner" << QStringList { "E1", "A1", "D2", "G2" }
                                 << QStringList { "doublebass_440_E1.mp3", "doublebass_440_A1.mp3",
                                        "doublebass_440_D2.mp3", "doublebass_440_G2.mp3" };
    QTest::newRow("balalaika") << "BalalaikaTuner" << QStringList { "E4", "E4", "A4" }
                               << QStringList { "balalaika_440_E4.mp3", "balalaika_440_E4.mp3",
                                      "balalaika_440_A4.mp3" };
    QTest::newRow("mandolin") << "MandolinTuner" << QStringList { "G3", "D4", "A4", "E5" }
                              << QStringList { "mandolin_440_G3.mp3", "mandolin_440_D4.mp3", "mandolin_440_A4.mp3",
                                     "mandolin_440_E5.mp3" };
    // The dombra's two buttons play each other's recordings.
    QTest::newRow("dombra") << "DombraTuner" << QStringList { "D3", "G3" }
                            << QStringList { "dombra_440_G3.mp3", "dombra_440_D3.mp3" };
}

// Each button's text, and the file it plays at every pitch of the menu,
// which the build has generated.
void tst_Tuners::stringsAndSamples()
{
    QFETCH(QString, page);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, files);

    TunersMainPage main;
    TunerBasePage* tuner = pageNamed(main, page);
    QVERIFY(tuner);
    for (int key = 0; key < ButtonsPanel::buttonCount; ++key) {
        TuneButton* button = tuner->button(key);
        QVERIFY(button);
        QCOMPARE(button->text(), texts.value(key));
        QCOMPARE(!button->isHidden(), key < texts.size() && !(page == "BassGuitarTuner" && key == 0));
    }
    QVERIFY(!tuner->button(ButtonsPanel::buttonCount));

    const QString resources = app()->bundleResourcePath();
    for (const int pitch : TunersCommonPanel::pitches()) {
        for (int key = 0; key < files.size(); ++key) {
            const QString expected
                = resources + QString(files.at(key)).replace(QStringLiteral("440"), QString::number(pitch));
            QCOMPARE(tuner->samplePath(key, pitch), expected);
            QVERIFY2(QFile::exists(expected), qPrintable(expected));
        }
    }
    QVERIFY(tuner->samplePath(files.size(), 440).isEmpty());
}

void tst_Tuners::storedPitch_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("used");

    QTest::newRow("concert") << QVariant(440) << 440;
    QTest::newRow("baroque") << QVariant(415) << 415;
    QTest::newRow("renaissance as text") << QVariant("460") << 460;
    QTest::newRow("between two") << QVariant(441) << 440;
    QTest::newRow("zero") << QVariant(0) << 440;
    QTest::newRow("negative") << QVariant(-440) << 440;
    QTest::newRow("a word") << QVariant("high") << 440;
}

// A pitch that has no recordings is never used: the bar shows and stores
// 440 instead, and the pages play 440's files.
void tst_Tuners::storedPitch()
{
    QFETCH(QVariant, stored);
    QFETCH(int, used);

    app()->setSettingsValue(QStringLiteral("Pitch"), stored);
    TunersCommonPanel panel;
    QCOMPARE(panel.pitchButton()->text(), QStringLiteral("A4:%1Hz").arg(used));
    QCOMPARE(app()->settingsValue(QStringLiteral("Pitch")).toInt(), used);

    // A choice from the menu reaches the next sound of every page.
    panel.pitchButton()->menu()->actions().at(8)->trigger();
    QCOMPARE(panel.pitchButton()->text(), QStringLiteral("A4:452Hz"));
    TunersMainPage main;
    main.show();
    TunerBasePage* guitar = pageNamed(main, QStringLiteral("GuitarTuner"));
    QSignalSpy played(guitar, &TunerBasePage::played);
    QTest::mouseClick(guitar->button(1), Qt::LeftButton);
    QCOMPARE(played.count(), 1);
    QVERIFY(played.first().at(0).toString().endsWith(QStringLiteral("guitar_452_A2.mp3")));
}

// In repeat mode the checked button sounds at each tick of the clock, one
// button at most is checked, and a second click releases it.
void tst_Tuners::repeatSoundsTheCheckedButtonOnly()
{
    ButtonsPanel panel;
    QVERIFY(!panel.repeatTimer()->isActive());
    panel.slotSetRepeatMode(true);
    QVERIFY(panel.repeatTimer()->isActive());
    QCOMPARE(panel.repeatTimer()->interval(), 1000);
    QSignalSpy second(panel.button(1), &TuneButton::play);
    QSignalSpy fourth(panel.button(3), &TuneButton::play);

    panel.slotTimeOut();
    QCOMPARE(second.count() + fourth.count(), 0);

    QTest::mouseClick(panel.button(1), Qt::LeftButton);
    QCOMPARE(second.count(), 1);
    panel.slotTimeOut();
    panel.slotTimeOut();
    QCOMPARE(second.count(), 3);

    QTest::mouseClick(panel.button(3), Qt::LeftButton);
    QVERIFY(!panel.button(1)->isChecked());
    panel.slotTimeOut();
    QCOMPARE(second.count(), 3);
    QCOMPARE(fourth.count(), 2);

    QTest::mouseClick(panel.button(3), Qt::LeftButton);
    QVERIFY(!panel.button(3)->isChecked());
    panel.slotTimeOut();
    QCOMPARE(fourth.count(), 3);

    QTest::mouseClick(panel.button(3), Qt::LeftButton);
    panel.slotSetRepeatMode(false);
    QVERIFY(!panel.repeatTimer()->isActive());
    QVERIFY(!panel.button(3)->isCheckable());
    QVERIFY(!panel.button(3)->isChecked());
    panel.slotTimeOut();
    QCOMPARE(fourth.count(), 4);
}

// A hidden page's repeat clock runs and sounds nothing, until the page is
// chosen again; the sound comes back by the clock alone.
void tst_Tuners::onlyTheVisiblePageSounds()
{
    TunersMainPage main;
    main.show();
    TunerBasePage* cello = pageNamed(main, QStringLiteral("CelloTuner"));
    main.slotShowCello();
    main.slotSetRepeatMode(true);
    QTest::mouseClick(cello->button(2), Qt::LeftButton);
    QSignalSpy played(cello, &TunerBasePage::played);
    QVERIFY(played.wait(3000));

    main.slotShowViolin();
    played.clear();
    cello->buttonsPanel()->slotTimeOut();
    cello->slotPlay(QStringLiteral("cello_%1_C2.mp3"));
    QVERIFY(played.isEmpty());

    main.slotShowCello();
    QVERIFY(played.wait(3000));
    QVERIFY(played.first().at(0).toString().endsWith(QStringLiteral("cello_440_D3.mp3")));
}

void tst_Tuners::repeatSwitchReachesPages_data()
{
    QTest::addColumn<bool>("fromExplorer");
    QTest::newRow("explorer's bar") << true;
    QTest::newRow("a page's bar") << false;
}

// The explorer's switch reaches all eleven pages; a page's own only that
// page. Either way the choice is stored and read by the next start.
void tst_Tuners::repeatSwitchReachesPages()
{
    QFETCH(bool, fromExplorer);

    TunersMainPage main;
    main.show();
    TunerBasePage* mandolin = pageNamed(main, QStringLiteral("MandolinTuner"));
    QPushButton* repeat
        = fromExplorer ? main.explorer()->commonPanel()->repeatButton() : mandolin->modesPanel()->repeatButton();
    repeat->click();
    for (TunerBasePage* page : main.pages())
        QCOMPARE(page->buttonsPanel()->isRepeatMode(), fromExplorer || page == mandolin);
    QCOMPARE(app()->settingsValue(QStringLiteral("Repeat")).toBool(), true);

    TunersMainPage next;
    QVERIFY(next.explorer()->commonPanel()->repeatButton()->isChecked());
    for (TunerBasePage* page : next.pages())
        QVERIFY(page->buttonsPanel()->isRepeatMode());
}

void tst_Tuners::explorerChoosesThePage()
{
    TunersMainPage main;
    QCOMPARE(main.stack()->currentWidget(), pageNamed(main, QStringLiteral("GuitarTuner")));
    const QList<QPair<QString, QString>> tiles = { { "ViolinButton", "ViolinTuner" }, { "ViolaButton", "ViolaTuner" },
        { "CelloButton", "CelloTuner" }, { "DoubleBassButton", "DoubleBassTuner" },
        { "BassGuitarButton", "BassGuitarTuner" }, { "UkuleleButton", "UkuleleTuner" }, { "BanjoButton", "BanjoTuner" },
        { "MandolinButton", "MandolinTuner" }, { "BalalaikaButton", "BalalaikaTuner" },
        { "DombraButton", "DombraTuner" }, { "GuitarButton", "GuitarTuner" } };
    for (const auto& tile : tiles) {
        QPushButton* button = main.explorer()->instrumentButton(tile.first);
        QVERIFY2(button, qPrintable(tile.first));
        button->click();
        QCOMPARE(main.stack()->currentWidget(), pageNamed(main, tile.second));
        QVERIFY(button->isChecked());
    }
    QPushButton* more = main.explorer()->instrumentButton(QStringLiteral("OtherAppsButton"));
    QVERIFY(more && !more->isCheckable());
}

// The low B is hidden at first and comes and goes with the Modes menu; a
// checked hidden B goes on sounding in repeat mode.
void tst_Tuners::bassGuitarFifthString()
{
    BassGuitarTuner bass;
    bass.show();
    QVERIFY(bass.button(0)->isHidden());
    const QList<QAction*> modes = bass.modesPanel()->modesButton()->menu()->actions();
    QCOMPARE(modes.size(), 2);
    modes.at(0)->trigger();
    QVERIFY(!bass.button(0)->isHidden());

    bass.slotSetRepeatMode(true);
    QTest::mouseClick(bass.button(0), Qt::LeftButton);
    modes.at(1)->trigger();
    QVERIFY(bass.button(0)->isHidden());
    QSignalSpy played(&bass, &TunerBasePage::played);
    bass.buttonsPanel()->slotTimeOut();
    QCOMPARE(played.count(), 1);
    QVERIFY(played.first().at(0).toString().endsWith(QStringLiteral("bassguitar_440_B0.mp3")));
}

void tst_Tuners::windowSizeIsStored()
{
    TunersMainPage main;
    QCOMPARE(main.size(), QSize(736, 636));
    main.resize(900, 700);
    main.show();
    QTRY_COMPARE(app()->settingsValue(QStringLiteral("Width")).toInt(), 900);
    QCOMPARE(app()->settingsValue(QStringLiteral("Height")).toInt(), 700);
    TunersMainPage next;
    QCOMPARE(next.size(), QSize(900, 700));
}

// Only programs that lie beside the running one, executable, are offered,
// in the family's order; one chosen really starts.
void tst_Tuners::familyProgramsBesideTheExecutable()
{
    QTemporaryDir dir;
    const QString marker = dir.filePath(QStringLiteral("started"));
    writeExecutable(dir.filePath(QStringLiteral("Metronome")), "#!/bin/sh\ntouch '" + marker.toUtf8() + "'\n");
    writeExecutable(dir.filePath(QStringLiteral("BassTonarium")), "#!/bin/sh\n");
    QFile plain(dir.filePath(QStringLiteral("Chords")));
    QVERIFY(plain.open(QIODevice::WriteOnly));
    plain.close();

    QStringList offered;
    for (const QMWidgets::FamilyPrograms::Program& program : QMWidgets::FamilyPrograms::available(dir.path()))
        offered << QLatin1String(program.executable);
    QCOMPARE(offered, QStringList({ "BassTonarium", "Metronome" }));

    QVERIFY(!QMWidgets::FamilyPrograms::start("Chords", dir.path()));
    QVERIFY(QMWidgets::FamilyPrograms::start("Metronome", dir.path()));
    QTRY_VERIFY(QFile::exists(marker));
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tuners"));
    tst_Tuners test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Tuners.moc"
