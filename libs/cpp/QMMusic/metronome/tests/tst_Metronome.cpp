#include "Metronome.h"
#include "MetronomeBeats.h"
#include "MetronomeControls.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

using namespace QMMusic;

namespace {

// Sets a beats count the way the menu does, also one the menu leaves out.
void chooseBeats(MetronomeControls* controls, int count)
{
    QAction action(QString::number(count));
    QObject::connect(&action, &QAction::triggered, controls, &MetronomeControls::slotBeatsCountChanged);
    action.trigger();
}

// The tempo shown and its row made current without the row's echo.
void showTempo(MetronomeControls* controls, int tempo)
{
    controls->setInterval(tempo);
    const QSignalBlocker blocker(controls->tempoList());
    controls->setSelectListItem(tempo);
}

// What the given number of ticks sound: "-" silent, "t" tick, "B" bell.
QString soundsOf(Metronome& metronome, int ticks)
{
    QString heard;
    for (int i = 0; i < ticks; ++i) {
        QSignalSpy spy(&metronome, &Metronome::soundPlayed);
        metronome.slotTick();
        heard += spy.isEmpty()
            ? QLatin1Char('-')
            : (spy.first().at(0).toString() == QLatin1String("bell.wav") ? QLatin1Char('B') : QLatin1Char('t'));
    }
    return heard;
}

} // namespace

class tst_Metronome : public QObject
{
    Q_OBJECT

private slots:
    void tempoButtons_data();
    void tempoButtons();
    void rowGivesItsLowestTempo_data();
    void rowGivesItsLowestTempo();
    void tickInterval_data();
    void tickInterval();
    void bellsAndTicks_data();
    void bellsAndTicks();
    void muteButtons();
    void eyesSwing();
    void beatsChoiceShowsLamps_data();
    void beatsChoiceShowsLamps();
    void cacheDroppedOnResize();
};

void tst_Metronome::tempoButtons_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("up");
    QTest::addColumn<int>("tempo");
    QTest::addColumn<int>("row");

    QTest::newRow("up at the fastest") << 208 << true << 208 << 5;
    QTest::newRow("down at the slowest") << 38 << false << 38 << 0;
    QTest::newRow("up from Largo into Adagio") << 56 << true << 57 << 1;
    QTest::newRow("down from Adagio into Largo keeps 56") << 57 << false << 56 << 0;
    QTest::newRow("down from Allegro into Moderato keeps 108") << 109 << false << 108 << 3;
    QTest::newRow("up within Allegro") << 120 << true << 121 << 4;
}

void tst_Metronome::tempoButtons()
{
    QFETCH(int, start);
    QFETCH(bool, up);
    QFETCH(int, tempo);
    QFETCH(int, row);

    Metronome metronome;
    MetronomeControls* controls = metronome.controls();
    showTempo(controls, start);
    QSignalSpy restarts(controls, &MetronomeControls::intervalChanged);
    auto* button
        = controls->findChild<QPushButton*>(up ? QStringLiteral("TempoIncButton") : QStringLiteral("TempoDecButton"));
    QVERIFY(button);
    button->click();
    QCOMPARE(controls->interval(), tempo);
    QCOMPARE(controls->findChild<QLabel*>(QStringLiteral("TempoLabel"))->text(), QString::number(tempo));
    QCOMPARE(controls->tempoList()->indexOfTopLevelItem(controls->tempoList()->currentItem()), row);
    // The beat restarts even where the tempo cannot move.
    QVERIFY(restarts.count() >= 1);
    QCOMPARE(metronome.tickInterval(), 60000 / tempo);
}

void tst_Metronome::rowGivesItsLowestTempo_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("tempo");
    const int lowest[] = { 38, 57, 71, 97, 109, 169 };
    const char* const names[] = { "Largo", "Adagio", "Andante", "Moderato", "Allegro", "Presto" };
    for (int row = 0; row < 6; ++row)
        QTest::newRow(names[row]) << row << lowest[row];
}

void tst_Metronome::rowGivesItsLowestTempo()
{
    QFETCH(int, row);
    QFETCH(int, tempo);
    Metronome metronome;
    QTreeWidget* list = metronome.controls()->tempoList();
    // Start from another row, so that choosing this one is a change.
    list->setCurrentItem(list->topLevelItem((row + 3) % 6));
    list->setCurrentItem(list->topLevelItem(row));
    QCOMPARE(metronome.controls()->interval(), tempo);
    QCOMPARE(metronome.tickInterval(), 60000 / tempo);
}

void tst_Metronome::tickInterval_data()
{
    QTest::addColumn<int>("tempo");
    QTest::addColumn<int>("interval");
    QTest::newRow("38") << 38 << 1578;
    QTest::newRow("60") << 60 << 1000;
    QTest::newRow("120") << 120 << 500;
    QTest::newRow("208") << 208 << 288;
}

void tst_Metronome::tickInterval()
{
    QFETCH(int, tempo);
    QFETCH(int, interval);
    Metronome metronome;
    QCOMPARE(metronome.tickInterval(), 1578);
    metronome.controls()->setInterval(tempo);
    QCOMPARE(metronome.tickInterval(), interval);
}

void tst_Metronome::bellsAndTicks_data()
{
    QTest::addColumn<int>("beats");
    QTest::addColumn<int>("lowerTo"); // after the third tick; -1: never
    QTest::addColumn<QString>("heard");

    // The first tick is silent; the bell rings from the second bar on.
    QTest::newRow("four beats, three bars") << 4 << -1 << "-tttBtttBtttB";
    QTest::newRow("three beats") << 3 << -1 << "-ttBttBttB";
    QTest::newRow("one beat: a bell on every tick") << 1 << -1 << "-BBBB";
    QTest::newRow("no beats: ticks only, from the first") << 0 << -1 << "tttttttt";
    QTest::newRow("four beats lowered to two in the bar") << 4 << 2 << "-ttBtBtB";
}

void tst_Metronome::bellsAndTicks()
{
    QFETCH(int, beats);
    QFETCH(int, lowerTo);
    QFETCH(QString, heard);
    Metronome metronome;
    chooseBeats(metronome.controls(), beats);
    QString sounds = soundsOf(metronome, lowerTo < 0 ? heard.size() : 3);
    if (lowerTo >= 0) {
        chooseBeats(metronome.controls(), lowerTo);
        sounds += soundsOf(metronome, heard.size() - 3);
    }
    QCOMPARE(sounds, heard);
}

// Checked means off: the face closes its eyes or the sound stops, at once
// and without a sound or a step in the bar.
void tst_Metronome::muteButtons()
{
    Metronome metronome;
    metronome.show();
    soundsOf(metronome, 4);
    QCOMPARE(metronome.currentBeat(), 4);
    auto* visible = metronome.controls()->findChild<QPushButton*>(QStringLiteral("VisibleTickButton"));
    auto* audible = metronome.controls()->findChild<QPushButton*>(QStringLiteral("AudiableTickButton"));
    QSignalSpy sounds(&metronome, &Metronome::soundPlayed);
    visible->click();
    QVERIFY(!metronome.beats()->isVisible());
    // The end of the bar: a new bar starts, without the bell.
    QCOMPARE(metronome.currentBeat(), 0);
    QCOMPARE(metronome.currentFrame().cacheKey(), metronome.eyesClosedPix().cacheKey());
    // At the bar's first beat nothing else is drawn: the eyes stay closed.
    audible->click();
    QCOMPARE(metronome.currentFrame().cacheKey(), metronome.eyesClosedPix().cacheKey());
    QCOMPARE(sounds.count(), 0);
    QCOMPARE(soundsOf(metronome, 5), QStringLiteral("-----"));
    QCOMPARE(metronome.currentFrame().cacheKey(), metronome.closedMutePix().cacheKey());
    visible->click();
    audible->click();
    QVERIFY(metronome.beats()->isVisible());
    QVERIFY(soundsOf(metronome, 5).contains(QLatin1Char('t')));
}

// On plain beats the eyes look right and left in turn; the bar's first beat
// shows the beat face.
void tst_Metronome::eyesSwing()
{
    Metronome metronome;
    metronome.resize(600, 450);
    metronome.show();
    const qint64 right = metronome.eyesRightPix().cacheKey();
    const qint64 left = metronome.baseEyesLeftPix().cacheKey();
    const qint64 beat = metronome.beatPix().cacheKey();
    QList<qint64> frames;
    for (int i = 0; i < 5; ++i) {
        metronome.slotTick();
        frames << metronome.currentFrame().cacheKey();
    }
    // The first tick keeps the picture it has; then left, right, left, beat.
    QCOMPARE(frames.mid(1), (QList<qint64> { left, right, left, beat }));
}

void tst_Metronome::beatsChoiceShowsLamps_data()
{
    QTest::addColumn<int>("beats");
    QTest::newRow("no beats: no lamps") << 0;
    QTest::newRow("two") << 2;
    QTest::newRow("twelve") << 12;
}

void tst_Metronome::beatsChoiceShowsLamps()
{
    QFETCH(int, beats);
    Metronome metronome;
    metronome.show();
    // The menu offers 0 and 2 to 12.
    QStringList offered;
    for (QAction* action : metronome.controls()->beatsCombo()->menu()->actions())
        offered << action->text();
    QCOMPARE(offered.join(QLatin1Char(' ')), QStringLiteral("0 2 3 4 5 6 7 8 9 10 11 12"));
    for (QAction* action : metronome.controls()->beatsCombo()->menu()->actions()) {
        if (action->text() == QString::number(beats))
            action->trigger();
    }
    QCOMPARE(metronome.controls()->beatsCombo()->text(), QString::number(beats));
    int shown = 0;
    for (const QLabel* lamp : metronome.beats()->lamps())
        shown += lamp->isVisible() ? 1 : 0;
    QCOMPARE(shown, beats);
    soundsOf(metronome, 2);
    int lit = 0;
    for (const QLabel* lamp : metronome.beats()->lamps())
        lit += lamp->isEnabled() ? 1 : 0;
    QCOMPARE(lit, beats == 0 ? 0 : 1);
}

// The pictures are scaled once per size: the same picture while the size
// stays, a new one at a new size.
void tst_Metronome::cacheDroppedOnResize()
{
    Metronome metronome;
    metronome.resize(400, 300);
    metronome.show();
    const QPixmap first = metronome.eyesRightPix();
    QVERIFY(!first.isNull());
    QCOMPARE(metronome.eyesRightPix().cacheKey(), first.cacheKey());
    metronome.resize(800, 600);
    QCoreApplication::processEvents();
    const QPixmap second = metronome.eyesRightPix();
    QVERIFY(second.cacheKey() != first.cacheKey());
    QVERIFY(second.width() > first.width());
}

QTEST_MAIN(tst_Metronome)
#include "tst_Metronome.moc"
