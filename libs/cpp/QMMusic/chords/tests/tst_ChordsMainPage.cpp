#include "App.h"
#include "ChordTable.h"
#include "ChordView.h"
#include "ChordsButtonsPanel.h"
#include "ChordsMainPage.h"
#include "ChordsTabBar.h"
#include "ChordsWindow.h"
#include "Transposer.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMusic;

namespace {

QMWidgets::App* app()
{
    return QMWidgets::App::theApp();
}

} // namespace

class tst_ChordsMainPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyChordSoundsItsSamples_data();
    void everyChordSoundsItsSamples();
    void playSoundsTheChordInView();
    void switchingKeepsChordAndSong();
    void storedInstrument_data();
    void storedInstrument();
};

void tst_ChordsMainPage::init()
{
    app()->settings()->remove(QCoreApplication::applicationName());
}

void tst_ChordsMainPage::everyChordSoundsItsSamples_data()
{
    QTest::addColumn<QString>("key");
    for (const QString& key : ChordsWindow::instrumentKeys())
        QTest::newRow(qPrintable(key)) << key;
}

// Every chord of every instrument starts one player per sounding entry of
// its row, and each of those samples lies beside the program.
void tst_ChordsMainPage::everyChordSoundsItsSamples()
{
    QFETCH(QString, key);

    ChordsWindow window;
    window.slotShowInstrument(key);
    ChordsMainPage* page = window.page();
    QCOMPARE(page->chordView()->instrumentLabel()->objectName(), QStringLiteral("InstrumentLabel_") + key);
    const ChordTable& table = ChordTable::forKey(key);
    QSignalSpy played(page, &ChordsMainPage::chordPlayed);
    for (int chord = 0; chord < 132; ++chord) {
        const QVector<int> row = page->book().chordTab(chord);
        QCOMPARE(row, table.row(chord));
        int sounding = 0;
        for (int entry = 0; entry < row.size(); ++entry)
            sounding += !table.stemAt(entry, row.at(entry)).isEmpty();
        page->slotSetChordAndName(chord, QString());
        page->slotPlay();
        const QStringList samples = played.takeFirst().at(0).toStringList();
        QCOMPARE(samples.size(), sounding);
        for (const QString& sample : samples)
            QVERIFY2(QFile::exists(sample), qPrintable(QStringLiteral("%1 of chord %2").arg(sample).arg(chord)));
    }
}

// The play button and a tab clicked with the sound on both sound the chord
// that is in view at that moment.
void tst_ChordsMainPage::playSoundsTheChordInView()
{
    ChordsWindow window;
    ChordsMainPage* page = window.page();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(page->currentChordIndex(), 0);
    QSignalSpy played(page, &ChordsMainPage::chordPlayed);

    page->findChild<QPushButton*>(QStringLiteral("PlayButton"))->click();
    QCOMPARE(played.takeFirst().at(0).toStringList(), page->book().chordNotes(0).filter(QRegularExpression(".")));

    page->setCurrentTransposerChords({ QStringLiteral("A\n"), QStringLiteral("C\n7") });
    ChordsTabBar* tabs = page->transposer()->tabBar();
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center());
    const int c7 = 4 * 11 + 6;
    QCOMPARE(page->currentChordIndex(), c7);
    QCOMPARE(played.takeFirst().at(0).toStringList(), page->book().chordNotes(c7).filter(QRegularExpression(".")));
}

// Another instrument's page shows the same chord and the same song, and the
// choice is kept for the next start.
void tst_ChordsMainPage::switchingKeepsChordAndSong()
{
    ChordsWindow window;
    window.page()->setCurrentChord(QStringLiteral("F #m7"));
    const QStringList song = { QStringLiteral("B\nm"), QStringLiteral("E\n7"), QStringLiteral("A\n") };
    window.page()->setCurrentTransposerChords(song);
    window.page()->setCurrentTransposerChordIndex(2);

    for (QAction* action : window.instrumentMenu()->actions()) {
        if (action->data().toString() == QLatin1String("ukulele"))
            action->trigger();
    }
    ChordsMainPage* ukulele = window.page();
    QCOMPARE(window.instrumentKey(), QStringLiteral("ukulele"));
    QCOMPARE(ukulele->currentChord(), QStringLiteral("F #m7"));
    QCOMPARE(ukulele->currentChordIndex(), 11 * 11 + 8);
    QCOMPARE(ukulele->currentTransposerChords(), song);
    QCOMPARE(ukulele->currentTransposerChordIndex(), 2);
    QCOMPARE(app()->settingsValue(QStringLiteral("ChordsInstrument")).toString(), QStringLiteral("ukulele"));

    ChordsWindow next;
    QCOMPARE(next.instrumentKey(), QStringLiteral("ukulele"));
}

void tst_ChordsMainPage::storedInstrument_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("piano") << QVariant("piano") << "piano";
    QTest::newRow("high bass") << QVariant("bass2") << "bass2";
    QTest::newRow("unknown") << QVariant("theremin") << "guitar";
    QTest::newRow("a number") << QVariant(3) << "guitar";
}

void tst_ChordsMainPage::storedInstrument()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, shown);

    app()->setSettingsValue(QStringLiteral("ChordsInstrument"), stored);
    ChordsWindow window;
    QCOMPARE(window.instrumentKey(), shown);
    QCOMPARE(window.page()->chordView()->instrumentLabel()->objectName(), QStringLiteral("InstrumentLabel_") + shown);
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Chords"));
    tst_ChordsMainPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ChordsMainPage.moc"
