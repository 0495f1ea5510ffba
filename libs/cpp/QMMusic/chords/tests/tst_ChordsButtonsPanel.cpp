#include "ChordsButtonsPanel.h"

#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using QMMusic::ChordsButtonsPanel;

class tst_ChordsButtonsPanel : public QObject
{
    Q_OBJECT

private slots:
    void startsOnAMajorSilently();
    void setChord_data();
    void setChord();
    void clickAnnounces_data();
    void clickAnnounces();
    void hiddenButtonKeepsItsPlace();
};

void tst_ChordsButtonsPanel::startsOnAMajorSilently()
{
    ChordsButtonsPanel panel;
    QSignalSpy spy(&panel, &ChordsButtonsPanel::chordChanged);
    QCOMPARE(panel.currentChord(), QStringLiteral("A"));
    QCOMPARE(panel.currentChordPart2(), QString());
    QVERIFY(spy.isEmpty());
}

void tst_ChordsButtonsPanel::setChord_data()
{
    QTest::addColumn<QString>("initial");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("chord");

    QTest::newRow("A flat before A") << "C"
                                     << "A♭m"
                                     << "A♭"
                                     << "m" << 12;
    QTest::newRow("A sharp before A") << "C"
                                      << "A #7"
                                      << "A #"
                                      << "7" << 39;
    QTest::newRow("m7 before 7 and m") << "C"
                                       << "Dm7"
                                       << "D"
                                       << "m7" << 63;
    QTest::newRow("maj7 before 7") << "C"
                                   << "C #maj7"
                                   << "C #"
                                   << "maj7" << 73;
    QTest::newRow("dim before m") << "C"
                                  << "Edim"
                                  << "E"
                                  << "dim" << 80;
    QTest::newRow("m6 before 6") << "C"
                                 << "Fm6"
                                 << "F"
                                 << "m6" << 104;
    QTest::newRow("6") << "C"
                       << "G6"
                       << "G"
                       << "6" << 114;
    QTest::newRow("sus4") << "C"
                          << "G♭sus4"
                          << "G♭"
                          << "sus4" << 131;
    QTest::newRow("major checks the blank") << "Gm7"
                                            << "B"
                                            << "B"
                                            << "" << 22;
    QTest::newRow("C flat") << "C"
                            << "C♭"
                            << "C♭"
                            << "" << 22;
    QTest::newRow("no root: the root stays, major, 131") << "D9"
                                                         << "Hm"
                                                         << "D"
                                                         << "m" << 131;
    QTest::newRow("lower case: the root stays") << "E"
                                                << "am"
                                                << "E"
                                                << "m" << 131;
    QTest::newRow("empty") << "F7"
                           << ""
                           << "F"
                           << "" << 131;
}

// The buttons show the name's root and suffix, and exactly one
// announcement comes out with the index of the whole name.
void tst_ChordsButtonsPanel::setChord()
{
    QFETCH(QString, initial);
    QFETCH(QString, name);
    QFETCH(QString, root);
    QFETCH(QString, type);
    QFETCH(int, chord);

    ChordsButtonsPanel panel;
    panel.setChord(initial);
    QSignalSpy spy(&panel, &ChordsButtonsPanel::chordChanged);
    panel.setChord(name);
    QCOMPARE(panel.currentChordPart1(), root);
    QCOMPARE(panel.currentChordPart2(), type);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), chord);
    QCOMPARE(spy.at(0).at(1).toString(), name);
}

void tst_ChordsButtonsPanel::clickAnnounces_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("chord");

    QTest::newRow("B sharp m7 is C m7") << 2 << 1 << 8 << "B #m7" << 52;
    QTest::newRow("E flat maj7") << 1 << 4 << 7 << "E♭maj7" << 95;
    QTest::newRow("G 9") << 0 << 6 << 9 << "G9" << 119;
    QTest::newRow("F flat aug is E aug") << 1 << 5 << 2 << "F♭aug" << 79;
}

void tst_ChordsButtonsPanel::clickAnnounces()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(int, chord);

    ChordsButtonsPanel panel;
    QSignalSpy spy(&panel, &ChordsButtonsPanel::chordChanged);
    panel.rootButton(row, column)->click();
    panel.typeButton(type)->click();
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.last().at(0).toInt(), chord);
    QCOMPARE(spy.last().at(1).toString(), name);
    // The checked button again announces again.
    panel.typeButton(type)->click();
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.last().at(0).toInt(), chord);
}

void tst_ChordsButtonsPanel::hiddenButtonKeepsItsPlace()
{
    ChordsButtonsPanel panel;
    panel.resize(500, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    // "m" and "6" share a column: hidden, the column still stands.
    const QRect before = panel.typeButton(5)->geometry();
    panel.hideM();
    panel.hide6();
    QVERIFY(panel.typeButton(1)->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(panel.typeButton(5)->geometry(), before);
}

QTEST_MAIN(tst_ChordsButtonsPanel)
#include "tst_ChordsButtonsPanel.moc"
