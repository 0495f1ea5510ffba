#include "NotesLernStatistic.h"
#include "NotesTrainerWidget.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using QMMusic::NotesTrainerWidget;

using Report = QMap<QString, QPair<int, int> >;

namespace {

const QChar s_flat(0x266D);

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
    ScriptedBoard(NotesTrainerWidget& trainer, const QList<QPair<QString, int> >& notes)
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

    QList<QPair<int, int> > m_countsAtRequest;
    QList<Report> m_reportAtRequest;

private:
    NotesTrainerWidget& m_trainer;
    QList<QPair<QString, int> > m_notes;
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
    void keys_data();
    void keys();
    void idleAtConstruction();
    void startAndStop();
    void answer_data();
    void answer();
    void stepsOfOneAnswerInOrder();
    void keysScoreOnPressAlone();
    void keysDoNothingOutsideARun();
    void newRunClearsTheScore();
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

    QTest::newRow("C natural on C") << "C" << "C4" << 0 << true;
    QTest::newRow("octave plays no part") << "C" << "C6" << 0 << true;
    QTest::newRow("C sharp is not C") << "C" << "C4" << 1 << false;
    QTest::newRow("B sharp on C") << "C" << "B3" << 1 << true;
    QTest::newRow("B sharp not on B") << "B" << "B3" << 1 << false;
    QTest::newRow("C flat on B") << "B" << "C4" << -1 << true;
    QTest::newRow("C flat not on C") << "C" << "C4" << -1 << false;
    QTest::newRow("E sharp on F") << "F" << "E4" << 1 << true;
    QTest::newRow("E sharp not on E") << "E" << "E4" << 1 << false;
    QTest::newRow("F flat on E") << "E" << "F4" << -1 << true;
    QTest::newRow("F flat not on F") << "F" << "F4" << -1 << false;
    QTest::newRow("C sharp on C#") << "C#" << "C3" << 1 << true;
    QTest::newRow("D flat on C#") << "C#" << "D3" << -1 << true;
    QTest::newRow("D natural not on C#") << "C#" << "D3" << 0 << false;
    QTest::newRow("D sharp on D#") << "D#" << "D2" << 1 << true;
    QTest::newRow("E flat on D#") << "D#" << "E2" << -1 << true;
    QTest::newRow("F sharp on F#") << "F#" << "F2" << 1 << true;
    QTest::newRow("G flat on F#") << "F#" << "G2" << -1 << true;
    QTest::newRow("G sharp on G#") << "G#" << "G5" << 1 << true;
    QTest::newRow("A flat on G#") << "G#" << "A5" << -1 << true;
    QTest::newRow("A sharp on A#") << "A#" << "A2" << 1 << true;
    QTest::newRow("B flat on A#") << "A#" << "B2" << -1 << true;
    QTest::newRow("D has no other spelling") << "D" << "C4" << 2 << false;
    QTest::newRow("G natural on G") << "G" << "G3" << 0 << true;
    QTest::newRow("A natural on A") << "A" << "A4" << 0 << true;
    QTest::newRow("A natural not on A#") << "A#" << "A4" << 0 << false;
    QTest::newRow("wrong letter") << "D" << "E3" << 0 << false;
    QTest::newRow("letter compared case-sensitively") << "C" << "c4" << 0 << false;
    QTest::newRow("no note asked yet") << "C" << "" << 0 << false;
    QTest::newRow("any positive accidental is sharp") << "F#" << "F2" << 2 << true;
    QTest::newRow("any negative accidental is flat") << "C#" << "D2" << -2 << true;
    QTest::newRow("unknown key") << "H" << "H2" << 0 << false;
}

void tst_NotesTrainerWidget::isRightAnswer()
{
    QFETCH(QString, key);
    QFETCH(QString, note);
    QFETCH(int, accidental);
    QFETCH(bool, right);

    QCOMPARE(NotesTrainerWidget::isRightAnswer(key, note, accidental), right);
}

void tst_NotesTrainerWidget::keys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("objectName");

    QTest::newRow("C") << "C" << "C\n(do)" << "Key";
    QTest::newRow("C#") << "C#" << QString("C#\nD" + QString(s_flat)) << "Keyd";
    QTest::newRow("D") << "D" << "D\n(re)" << "Key";
    QTest::newRow("D#") << "D#" << QString("D#\nE" + QString(s_flat)) << "Keyd";
    QTest::newRow("E") << "E" << "E\n(mi)" << "Key";
    QTest::newRow("F") << "F" << "F\n(fa)" << "Key";
    QTest::newRow("F#") << "F#" << QString("F#\nG" + QString(s_flat)) << "Keyd";
    QTest::newRow("G") << "G" << "G\n(sol)" << "Key";
    QTest::newRow("G#") << "G#" << QString("G#\nA" + QString(s_flat)) << "Keyd";
    QTest::newRow("A") << "A" << "A\n(la)" << "Key";
    QTest::newRow("A#") << "A#" << QString("A#\nB" + QString(s_flat)) << "Keyd";
    QTest::newRow("B") << "B" << "B\n(si)" << "Key";
}

void tst_NotesTrainerWidget::keys()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QString, objectName);

    NotesTrainerWidget trainer;
    QPushButton* button = trainer.keyButton(key);
    QVERIFY(button);
    QCOMPARE(button->text(), text);
    QCOMPARE(button->objectName(), objectName);
    QCOMPARE(button->size(), QSize(44, 44));
    QVERIFY(button->isFlat());
}

void tst_NotesTrainerWidget::idleAtConstruction()
{
    NotesTrainerWidget trainer;
    QPushButton* start = startButton(trainer);
    QVERIFY(start);
    QCOMPARE(start->text(), QStringLiteral("Start"));
    QVERIFY(start->isCheckable());
    QVERIFY(!start->isChecked());
    QCOMPARE(start->size(), QSize(64, 64));
    QVERIFY(!trainer.isTrainingStarted());
    QCOMPARE(clockLabelText(trainer), QStringLiteral("<FONT COLOR='black'><H3>00:00:00</H3></FONT>"));
    QCOMPARE(trainer.currentNote(), QString());
    QCOMPARE(trainer.currentAccidental(), 0);
    for (int i = 0; i < NotesTrainerWidget::KeyCount; ++i)
        QVERIFY(!trainer.keyButton(NotesTrainerWidget::reportKey(i))->isEnabled());
    // The white keys lie in one row below the black ones, in chromatic order.
    trainer.resize(400, 400);
    trainer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&trainer));
    int lastX = -1;
    for (const char* white : { "C", "D", "E", "F", "G", "A", "B" }) {
        QPushButton* key = trainer.keyButton(QLatin1String(white));
        QVERIFY(key->x() > lastX);
        QCOMPARE(key->y(), trainer.keyButton(QStringLiteral("C"))->y());
        lastX = key->x();
    }
    // Each black key sits between its two white neighbours, above them.
    const QList<QPair<const char*, const char*> > neighbours
        = { { "C", "D" }, { "D", "E" }, { "F", "G" }, { "G", "A" }, { "A", "B" } };
    const QStringList blacks { "C#", "D#", "F#", "G#", "A#" };
    for (int i = 0; i < blacks.size(); ++i) {
        const QPushButton* black = trainer.keyButton(blacks.at(i));
        const int left = trainer.keyButton(QLatin1String(neighbours.at(i).first))->geometry().center().x();
        const int right = trainer.keyButton(QLatin1String(neighbours.at(i).second))->geometry().center().x();
        QVERIFY2(black->geometry().center().x() > left && black->geometry().center().x() < right,
            qPrintable(blacks.at(i)));
        QVERIFY(black->y() < trainer.keyButton(QStringLiteral("C"))->y());
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
    QCOMPARE(startButton(trainer)->text(), QStringLiteral("Stop"));
    QVERIFY(clock->isActive());
    QCOMPARE(clock->interval(), 500);
    // The first note is asked before the board hears of the run.
    QCOMPARE(events, (QStringList { "needNextNote", "started", "keys enabled" }));

    events.clear();
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QVERIFY(!trainer.isTrainingStarted());
    QCOMPARE(startButton(trainer)->text(), QStringLiteral("Start"));
    QVERIFY(!clock->isActive());
    QCOMPARE(events, (QStringList { "stopped", "keys disabled" }));
}

void tst_NotesTrainerWidget::answer_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("right");

    QTest::newRow("right natural") << "E2" << 0 << "E" << true;
    QTest::newRow("right sharp") << "F3" << 1 << "F#" << true;
    QTest::newRow("wrong neighbour") << "F3" << 0 << "E" << false;
    QTest::newRow("B sharp counts right on C") << "B3" << 1 << "C" << true;
    QTest::newRow("B sharp counts wrong on B") << "B3" << 1 << "B" << false;
}

// A press in a run scores once and is filed under the key that was pressed,
// whatever note was asked.
void tst_NotesTrainerWidget::answer()
{
    QFETCH(QString, note);
    QFETCH(int, accidental);
    QFETCH(QString, key);
    QFETCH(bool, right);

    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { note, accidental }, { QStringLiteral("A2"), 0 } });
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QCOMPARE(trainer.currentNote(), note);

    QTest::mouseClick(trainer.keyButton(key), Qt::LeftButton);
    QCOMPARE(trainer.statistic()->rightCount(), right ? 1 : 0);
    QCOMPARE(trainer.statistic()->wrongCount(), right ? 0 : 1);
    QCOMPARE(trainer.statistic()->report(), (Report { { key, right ? qMakePair(1, 0) : qMakePair(0, 1) } }));
    QCOMPARE(trainer.currentNote(), QStringLiteral("A2"));
}

void tst_NotesTrainerWidget::stepsOfOneAnswerInOrder()
{
    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { "F2", 0 }, { "C3", 0 }, { "G2", 1 } });
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);

    // A wrong E for the asked F: counted before the next note is asked,
    // filed in the report only after it.
    QTest::mouseClick(trainer.keyButton(QStringLiteral("E")), Qt::LeftButton);
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

void tst_NotesTrainerWidget::keysScoreOnPressAlone()
{
    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { "D3", 0 }, { "D3", 0 } });
    trainer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&trainer));
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);

    QPushButton* d = trainer.keyButton(QStringLiteral("D"));
    QTest::mousePress(d, Qt::LeftButton);
    QCOMPARE(trainer.statistic()->rightCount(), 1);
    // Releasing the mouse away from the key takes nothing back and adds nothing.
    QTest::mouseRelease(d, Qt::LeftButton, Qt::NoModifier, QPoint(-30, -30));
    QCOMPARE(trainer.statistic()->rightCount(), 1);
    QCOMPARE(trainer.statistic()->wrongCount(), 0);
    QCOMPARE(trainer.statistic()->report(), (Report { { "D", { 1, 0 } } }));
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
    QCOMPARE(trainer.statistic()->rightCount(), 0);
    QCOMPARE(trainer.statistic()->wrongCount(), 0);
    QVERIFY(trainer.statistic()->report().isEmpty());
}

void tst_NotesTrainerWidget::newRunClearsTheScore()
{
    NotesTrainerWidget trainer;
    ScriptedBoard board(trainer, { { "A2", 0 }, { "B2", 0 }, { "C3", 0 }, { "D3", 0 } });
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QTest::mouseClick(trainer.keyButton(QStringLiteral("A")), Qt::LeftButton);
    QTest::mouseClick(trainer.keyButton(QStringLiteral("A")), Qt::LeftButton);
    QTest::mouseClick(startButton(trainer), Qt::LeftButton);

    // Stop keeps the score and the report.
    QCOMPARE(trainer.statistic()->rightCount(), 1);
    QCOMPARE(trainer.statistic()->wrongCount(), 1);
    QCOMPARE(trainer.statistic()->report(), (Report { { "A", { 1, 1 } } }));

    QTest::mouseClick(startButton(trainer), Qt::LeftButton);
    QCOMPARE(trainer.statistic()->rightCount(), 0);
    QCOMPARE(trainer.statistic()->wrongCount(), 0);
    QVERIFY(trainer.statistic()->report().isEmpty());
    // The first note of the new run was drawn at its Start.
    QCOMPARE(trainer.currentNote(), QStringLiteral("D3"));
}

void tst_NotesTrainerWidget::clockText_data()
{
    QTest::addColumn<int>("msecs");
    QTest::addColumn<QString>("text");

    QTest::newRow("start") << 0 << "<FONT COLOR='black'><H3>00:00:00</H3></FONT>";
    QTest::newRow("first tick") << 500 << "<FONT COLOR='black'><H3>00:00:00</H3></FONT>";
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
