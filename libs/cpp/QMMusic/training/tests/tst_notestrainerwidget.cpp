#include "NotesLernStatistic.h"
#include "NotesTrainerWidget.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using QMMusic::NotesTrainerWidget;

using Report = QMap<QString, QPair<int, int>>;

namespace {

QPushButton* startButton(const NotesTrainerWidget& trainer)
{
    return trainer.findChild<QPushButton*>(QStringLiteral("RoundButton"));
}

QString clockLabelText(const NotesTrainerWidget& trainer)
{
    for (QLabel* label : trainer.findChildren<QLabel*>()) {
        if (label->text().startsWith(QLatin1String("<FONT COLOR='black'>")))
            return label->text();
    }
    return QString();
}

// Stands in for the board: each request for a note answers with the next
// note of a script, in the same call, as the real board does.
class ScriptedBoard : public QObject
{
public:
    ScriptedBoard(NotesTrainerWidget& trainer, const QList<QPair<QString, int>>& notes)
        : m_trainer(trainer)
        , m_notes(notes)
    {
        connect(&trainer, &NotesTrainerWidget::needNextNote, this, [this] {
            // What the trainer had done when it asked: counts and report as they stood.
            m_countsAtRequest << qMakePair(m_trainer.statistic()->rightCount(), m_trainer.statistic()->wrongCount());
            m_reportAtRequest << m_trainer.statistic()->report();
            if (m_next < m_notes.size()) {
                const auto& note = m_notes.at(m_next++);
                m_trainer.setNote(note.first, note.second);
            }
        });
    }

    QList<QPair<int, int>> m_countsAtRequest;
    QList<Report> m_reportAtRequest;

private:
    NotesTrainerWidget& m_trainer;
    QList<QPair<QString, int>> m_notes;
    int m_next = 0;
};

} // namespace

class tst_NotesTrainerWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isRightAnswer_data();
    void isRightAnswer();
    void idleAtConstruction();
    void startAndStop();
    void stepsOfOneAnswerInOrder();
    void keysDoNothingOutsideARun();
    void computerKeyboardAnswers_data();
    void computerKeyboardAnswers();
    void spaceStartsAndStops();
    void clockText_data();
    void clockText();
    void clockRunsAndKeepsItsReading();
};

void tst_NotesTrainerWidget::initTestCase()
{
    // setNote writes one debug line per note; keep the test log readable.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_NotesTrainerWidget::isRightAnswer_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("note");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<bool>("right");

    QTest::newRow("C natural on C") << "C"
                                    << "C4" << 0 << true;
    QTest::newRow("C sharp is not C") << "C"
                                      << "C4" << 1 << false;
    QTest::newRow("B sharp on C") << "C"
                                  << "B3" << 1 << true;
    QTest::newRow("B sharp not on B") << "B"
                                      << "B3" << 1 << false;
    QTest::newRow("C flat on B") << "B"
                                 << "C4" << -1 << true;
    QTest::newRow("E sharp on F") << "F"
                                  << "E4" << 1 << true;
    QTest::newRow("F flat on E") << "E"
                                 << "F4" << -1 << true;
    QTest::newRow("D flat on C#") << "C#"
                                  << "D3" << -1 << true;
    QTest::newRow("D sharp on D#") << "D#"
                                   << "D2" << 1 << true;
    QTest::newRow("G flat on F#") << "F#"
                                  << "G2" << -1 << true;
    QTest::newRow("A flat on G#") << "G#"
                                  << "A5" << -1 << true;
    QTest::newRow("B flat on A#") << "A#"
                                  << "B2" << -1 << true;
    QTest::newRow("D has no other spelling") << "D"
                                             << "C4" << 2 << false;
    QTest::newRow("wrong letter") << "D"
                                  << "E3" << 0 << false;
    QTest::newRow("letter compared case-sensitively") << "C"
                                                      << "c4" << 0 << false;
    QTest::newRow("no note asked yet") << "C"
                                       << "" << 0 << false;
    QTest::newRow("any positive accidental is sharp") << "F#"
                                                      << "F2" << 2 << true;
    QTest::newRow("unknown key") << "H"
                                 << "H2" << 0 << false;
}

void tst_NotesTrainerWidget::isRightAnswer()
{
    QFETCH(QString, key);
    QFETCH(QString, note);
    QFETCH(int, accidental);
    QFETCH(bool, right);

    QCOMPARE(NotesTrainerWidget::isRightAnswer(key, note, accidental), right);
}

void tst_NotesTrainerWidget::idleAtConstruction()
{
    NotesTrainerWidget trainer;
    QVERIFY(!trainer.isTrainingStarted());
    QCOMPARE(clockLabelText(trainer), QStringLiteral("<FONT COLOR='black'><H3>00:00:00</H3></FONT>"));
    // Laid out like a piano octave: centres left to right in chromatic
    // order, the black keys in a row above the white ones; all disabled.
    trainer.resize(400, 400);
    trainer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&trainer));
    const QStringList chromatic { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };
    const int whiteRow = trainer.keyButton(QStringLiteral("C"))->y();
    for (int i = 0; i < chromatic.size(); ++i) {
        const QPushButton* key = trainer.keyButton(chromatic.at(i));
        QVERIFY(!key->isEnabled());
        if (i > 0)
            QVERIFY2(key->geometry().center().x() > trainer.keyButton(chromatic.at(i - 1))->geometry().center().x(),
                qPrintable(chromatic.at(i)));
        QVERIFY2(chromatic.at(i).endsWith(QLatin1Char('#')) ? key->y() < whiteRow : key->y() == whiteRow,
            qPrintable(chromatic.at(i)));
    }
}

void tst_NotesTrainerWidget::startAndStop()
{
    NotesTrainerWidget trainer;
    QStringList events;
    connect(&trainer, &NotesTrainerWidget::needNextNote, &trainer, [&] { events << "needNextNote"; });
    connect(&trainer, &NotesTrainerWidget::trainingStarted, &trainer, [&](bool started) {
        events << (started ? "started" : "stopped");
        events << (trainer.keyButton(QStringLiteral("C"))->isEnabled() ? "keys enabled" : "keys disabled");
    });
    QTimer* clock = trainer.findChild<QTimer*>();
    QVERIFY(clock);

    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QVERIFY(trainer.isTrainingStarted());
    QVERIFY(clock->isActive());
    // The first note is asked before the board hears of the run.
    QCOMPARE(events, (QStringList { "needNextNote", "started", "keys enabled" }));

    events.clear();
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QVERIFY(!trainer.isTrainingStarted());
    QVERIFY(!clock->isActive());
    QCOMPARE(events, (QStringList { "stopped", "keys disabled" }));
}

void tst_NotesTrainerWidget::stepsOfOneAnswerInOrder()
{
    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { "F2", 0 }, { "C3", 0 }, { "G2", 1 } });
    trainer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&trainer));
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);

    // A wrong E for the asked F, scored on the press alone (a release away
    // from the key adds nothing): counted before the next note is asked,
    // filed in the report only after it.
    QPushButton* e = trainer.keyButton(QStringLiteral("E"));
    QTest::mousePress(e, Qt::LeftButton);
    QTest::mouseRelease(e, Qt::LeftButton, Qt::NoModifier, QPoint(-30, -30));
    QCOMPARE(board.m_countsAtRequest.size(), 2);
    QCOMPARE(board.m_countsAtRequest.at(1), qMakePair(0, 1));
    QVERIFY(board.m_reportAtRequest.at(1).isEmpty());
    QCOMPARE(trainer.statistic()->report(), (Report { { "E", { 0, 1 } } }));
    QCOMPARE(trainer.currentNote(), QStringLiteral("C3"));

    QTest::mouseClick(trainer.keyButton(QStringLiteral("C")), Qt::LeftButton);
    QCOMPARE(board.m_countsAtRequest.at(2), qMakePair(1, 1));
    QCOMPARE(board.m_reportAtRequest.at(2), (Report { { "E", { 0, 1 } } }));
    QCOMPARE(trainer.statistic()->report(), (Report { { "C", { 1, 0 } }, { "E", { 0, 1 } } }));
    QCOMPARE(trainer.currentNote(), QStringLiteral("G2"));
    QCOMPARE(trainer.currentAccidental(), 1);
}

void tst_NotesTrainerWidget::keysDoNothingOutsideARun()
{
    NotesTrainerWidget trainer;
    QSignalSpy asked(&trainer, &NotesTrainerWidget::needNextNote);
    // Outside a run a note is only stored.
    trainer.setNote(QStringLiteral("C4"), 1);
    QCOMPARE(trainer.currentNote(), QStringLiteral("C4"));
    QCOMPARE(trainer.currentAccidental(), 1);

    // Disabled keys take no press; the slots refuse as well.
    QTest::mouseClick(trainer.keyButton(QStringLiteral("C")), Qt::LeftButton);
    trainer.slotCDClicked();
    trainer.slotBClicked();
    QCOMPARE(asked.count(), 0);
    QCOMPARE(trainer.statistic()->rightCount() + trainer.statistic()->wrongCount(), 0);
    QVERIFY(trainer.statistic()->report().isEmpty());
}

void tst_NotesTrainerWidget::computerKeyboardAnswers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QString>("note");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("reportKey");
    QTest::newRow("C") << int(Qt::Key_C) << false << "C4" << 0 << "C";
    QTest::newRow("D") << int(Qt::Key_D) << false << "D3" << 0 << "D";
    QTest::newRow("E") << int(Qt::Key_E) << false << "E2" << 0 << "E";
    QTest::newRow("F") << int(Qt::Key_F) << false << "F2" << 0 << "F";
    QTest::newRow("G") << int(Qt::Key_G) << false << "G3" << 0 << "G";
    QTest::newRow("A") << int(Qt::Key_A) << false << "A2" << 0 << "A";
    QTest::newRow("B") << int(Qt::Key_B) << false << "B3" << 0 << "B";
    QTest::newRow("Shift+C is C sharp") << int(Qt::Key_C) << true << "C3" << 1 << "C#";
    QTest::newRow("Shift+D is D sharp") << int(Qt::Key_D) << true << "D3" << 1 << "D#";
    QTest::newRow("Shift+F is F sharp") << int(Qt::Key_F) << true << "F2" << 1 << "F#";
    QTest::newRow("Shift+G is G sharp") << int(Qt::Key_G) << true << "G2" << 1 << "G#";
    QTest::newRow("Shift+A is A sharp") << int(Qt::Key_A) << true << "A3" << 1 << "A#";
    QTest::newRow("Shift+E is F") << int(Qt::Key_E) << true << "F4" << 0 << "F";
    QTest::newRow("Shift+B is C") << int(Qt::Key_B) << true << "C4" << 0 << "C";
    QTest::newRow("a letter without a key answers nothing") << int(Qt::Key_H) << false << "B3" << 0 << "";
}

// The seven letters answer as the keys on the panel do, a semitone higher
// with Shift, and count right for the asked note.
void tst_NotesTrainerWidget::computerKeyboardAnswers()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(QString, note);
    QFETCH(int, accidental);
    QFETCH(QString, reportKey);
    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { note, accidental }, { "E2", 0 } });
    trainer.show();
    trainer.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&trainer));
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QTest::keyClick(&trainer, Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
    if (reportKey.isEmpty()) {
        QVERIFY(trainer.statistic()->report().isEmpty());
        return;
    }
    QCOMPARE(trainer.statistic()->report(), (Report { { reportKey, { 1, 0 } } }));
}

void tst_NotesTrainerWidget::spaceStartsAndStops()
{
    NotesTrainerWidget trainer;
    trainer.show();
    trainer.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&trainer));
    QTest::keyClick(&trainer, Qt::Key_Space);
    QVERIFY(trainer.isTrainingStarted());
    QTest::keyClick(&trainer, Qt::Key_Space);
    QVERIFY(!trainer.isTrainingStarted());
}

void tst_NotesTrainerWidget::clockText_data()
{
    QTest::addColumn<int>("msecs");
    QTest::addColumn<QString>("text");

    QTest::newRow("seconds truncate") << 1999 << "<FONT COLOR='black'><H3>00:00:01</H3></FONT>";
    QTest::newRow("minutes") << 754000 << "<FONT COLOR='black'><H3>00:12:34</H3></FONT>";
    QTest::newRow("hours") << 37230000 << "<FONT COLOR='black'><H3>10:20:30</H3></FONT>";
    QTest::newRow("past midnight shows an empty time") << -86399500 << "<FONT COLOR='black'><H3></H3></FONT>";
    QTest::newRow("a full day shows an empty time") << 86400000 << "<FONT COLOR='black'><H3></H3></FONT>";
}

void tst_NotesTrainerWidget::clockText()
{
    QFETCH(int, msecs);
    QFETCH(QString, text);

    QCOMPARE(NotesTrainerWidget::clockText(msecs), text);
}

void tst_NotesTrainerWidget::clockRunsAndKeepsItsReading()
{
    NotesTrainerWidget trainer;
    const QString oneSecond = QStringLiteral("<FONT COLOR='black'><H3>00:00:01</H3></FONT>");
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(clockLabelText(trainer), oneSecond, 3000);

    // Neither Stop nor the next Start clears the clock; the next tick does.
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QCOMPARE(clockLabelText(trainer), oneSecond);
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QCOMPARE(clockLabelText(trainer), oneSecond);
    QTRY_COMPARE(clockLabelText(trainer), QStringLiteral("<FONT COLOR='black'><H3>00:00:00</H3></FONT>"));
}

QTEST_MAIN(tst_NotesTrainerWidget)
#include "tst_notestrainerwidget.moc"
