#include "ListenSwitch.h"
#include "NotesLernStatistic.h"
#include "NotesTrainerWidget.h"
#include "PitchListener.h"
#include "SinkSamplePlayer.h"

#include <QAudioDeviceInfo>
#include <QPushButton>
#include <QtTest>

#include <memory>

using QMMusic::NotesTrainerWidget;

using Asked = QVector<QPair<QString, int>>;
using Report = QMap<QString, QPair<int, int>>;
Q_DECLARE_METATYPE(Asked)
Q_DECLARE_METATYPE(Report)

namespace {

// Plays one of the guitar samples into the default sink, whose monitor the trainer hears.
// A guitar sample of the build played into the sink.
class SamplePlayer : public SinkSamplePlayer
{
public:
    explicit SamplePlayer(const QString& stem)
        : SinkSamplePlayer(QStringLiteral(QM_BUNDLE_RESOURCES_DIR "/guitar_440_%1.mp3").arg(stem))
    {
    }
};

} // namespace

class tst_PlayToAnswer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void runAnsweredByPlaying_data();
    void runAnsweredByPlaying();
    void switchIsOffOutsideARun();
    void sourceThatFailsDisablesTheSwitch();
};

void tst_PlayToAnswer::initTestCase()
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        QSKIP("no sound server");
}

void tst_PlayToAnswer::runAnsweredByPlaying_data()
{
    QTest::addColumn<Asked>("asked");
    QTest::addColumn<QStringList>("played");
    QTest::addColumn<int>("rights");
    QTest::addColumn<int>("wrongs");
    QTest::addColumn<Report>("report");

    QTest::newRow("all right, sharps and the open strings")
        << Asked { { "E2", 0 }, { "A2", 0 }, { "F3", 1 }, { "B3", 0 }, { "E4", 0 } }
        << QStringList { "E2", "A2", "Fd3", "B3", "E4" } << 5 << 0
        << Report { { "E", { 2, 0 } }, { "A", { 1, 0 } }, { "F#", { 1, 0 } }, { "B", { 1, 0 } } };
    QTest::newRow("the octave counts") << Asked { { "E2", 0 }, { "G3", 0 }, { "C5", 0 } }
                                       << QStringList { "E3", "G3", "C4" } << 1 << 2
                                       << Report { { "E", { 0, 1 } }, { "G", { 1, 0 } }, { "C", { 0, 1 } } };
    QTest::newRow("flats and respelled notes")
        << Asked { { "D3", -1 }, { "B3", 1 }, { "E4", 0 } } << QStringList { "Cd3", "C4", "F4" } << 2 << 1
        << Report { { "C#", { 1, 0 } }, { "C", { 1, 0 } }, { "F", { 0, 1 } } };
    QTest::newRow("the same note asked twice is answered twice")
        << Asked { { "G3", 0 }, { "G3", 0 } } << QStringList { "G3", "G3" } << 2 << 0 << Report { { "G", { 2, 0 } } };
}

void tst_PlayToAnswer::runAnsweredByPlaying()
{
    QFETCH(Asked, asked);
    QFETCH(QStringList, played);
    QFETCH(int, rights);
    QFETCH(int, wrongs);
    QFETCH(Report, report);

    NotesTrainerWidget trainer;
    // The board's part: each request for a note gets the next one asked.
    int next = 0;
    connect(&trainer, &NotesTrainerWidget::needNextNote, &trainer, [&]() {
        const QPair<QString, int> note = asked.value(next++, qMakePair(QStringLiteral("C2"), 0));
        trainer.setNote(note.first, note.second);
    });
    auto* start = trainer.findChild<QPushButton*>(QStringLiteral("RoundButton"));
    QVERIFY(start);
    start->click();
    QVERIFY(trainer.isTrainingStarted());

    QMMusic::ListenSwitch* listen = trainer.listenSwitch();
    listen->listener()->setDeviceName(QStringLiteral("null.monitor"));
    listen->button()->click();
    QVERIFY(listen->isListening());

    QMMusic::NotesLernStatistic* statistic = trainer.statistic();
    for (int i = 0; i < played.size(); ++i) {
        SamplePlayer player(played.at(i));
        QTRY_COMPARE_WITH_TIMEOUT(statistic->rightCount() + statistic->wrongCount(), i + 1, 5000);
    }
    start->click();
    QCOMPARE(statistic->rightCount(), rights);
    QCOMPARE(statistic->wrongCount(), wrongs);
    QCOMPARE(statistic->report(), report);
}

void tst_PlayToAnswer::switchIsOffOutsideARun()
{
    NotesTrainerWidget trainer;
    trainer.setNote(QStringLiteral("E2"), 0);
    // Heard outside a run, a note scores nothing.
    trainer.slotNotePlayed(40);
    QCOMPARE(trainer.statistic()->rightCount() + trainer.statistic()->wrongCount(), 0);
    // The switch is off until turned on, and hiding the panel closes the microphone.
    QVERIFY(!trainer.listenSwitch()->isListening());
    trainer.show();
    trainer.listenSwitch()->listener()->setDeviceName(QStringLiteral("null.monitor"));
    trainer.listenSwitch()->button()->click();
    QVERIFY(trainer.listenSwitch()->isListening());
    trainer.hide();
    QVERIFY(!trainer.listenSwitch()->isListening());
    QVERIFY(!trainer.listenSwitch()->button()->isChecked());
}

void tst_PlayToAnswer::sourceThatFailsDisablesTheSwitch()
{
    NotesTrainerWidget trainer;
    QMMusic::ListenSwitch* listen = trainer.listenSwitch();
    listen->listener()->setDeviceName(QStringLiteral("no-such-source"));
    QSignalSpy failed(listen->listener(), &QMMultiMedia::PitchListener::failed);
    listen->button()->click();
    QVERIFY(failed.wait(3000));
    QVERIFY(!listen->isListening());
    QVERIFY(!listen->button()->isChecked());
    QVERIFY(!listen->button()->isEnabled());
    QVERIFY(!listen->button()->toolTip().isEmpty());
    // A disabled switch cannot be turned on from code either.
    listen->slotSetOn(true);
    QVERIFY(!listen->isListening());
    QVERIFY(!listen->button()->isChecked());
}

QTEST_MAIN(tst_PlayToAnswer)
#include "tst_PlayToAnswer.moc"
