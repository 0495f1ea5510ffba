// One tick of the metronome as the timer gives it: the state, the frame
// chosen from the cached pictures, and the repaint, at the window's size.
// The sound is left out (no sound directory): it plays on its own stream.
#include "Metronome.h"

#include <QtTest>

class bench_Metronome : public QObject
{
    Q_OBJECT

private slots:
    void tickAndRepaint();
};

void bench_Metronome::tickAndRepaint()
{
    QMMusic::Metronome metronome;
    metronome.resize(600, 710);
    metronome.show();
    QVERIFY(QTest::qWaitForWindowExposed(&metronome));
    metronome.repaint();
    QBENCHMARK
    {
        metronome.slotTick();
        metronome.repaint();
    }
}

QTEST_MAIN(bench_Metronome)
#include "bench_Metronome.moc"
