#include "PitchTracker.h"

#include <QtTest>

using QMMultiMedia::PitchReading;
using QMMultiMedia::PitchState;
using QMMultiMedia::PitchTracker;

using Hops = QVector<PitchReading>;
Q_DECLARE_METATYPE(Hops)

namespace {

constexpr double HopMs = 1000.0 * 512 / 44100;

// count hops of one frequency at one level, sure of themselves unless told otherwise.
Hops hops(int count, double frequency, double level = 0.2, double confidence = 0.95)
{
    return Hops(count, PitchReading { frequency, confidence, level, HopMs });
}

Hops silence(int count)
{
    return hops(count, 0.0, 0.0, 0.0);
}

} // namespace

class tst_PitchTracker : public QObject
{
    Q_OBJECT

private slots:
    void notesAndCents_data();
    void notesAndCents();
    void noteNumbers_data();
    void noteNumbers();
    void nearestString_data();
    void nearestString();
    void startsOncePerNote_data();
    void startsOncePerNote();
};

void tst_PitchTracker::notesAndCents_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("concertPitch");
    QTest::addColumn<int>("note");
    QTest::addColumn<double>("cents");

    QTest::newRow("A4 at 440") << 440.0 << 440.0 << 69 << 0.0;
    QTest::newRow("E2 at 440") << 82.4069 << 440.0 << 40 << 0.0;
    QTest::newRow("F1 of the bass") << 43.6535 << 440.0 << 29 << 0.0;
    QTest::newRow("A4 at 415 is in tune") << 415.0 << 415.0 << 69 << 0.0;
    QTest::newRow("440 at 415 is sharp") << 440.0 << 415.0 << 70 << 1.2647;
    QTest::newRow("10 cents sharp") << 440.0 * std::pow(2.0, 10.0 / 1200.0) << 440.0 << 69 << 10.0;
    QTest::newRow("49 cents flat stays") << 440.0 * std::pow(2.0, -49.0 / 1200.0) << 440.0 << 69 << -49.0;
    QTest::newRow("51 cents sharp is the next note") << 440.0 * std::pow(2.0, 51.0 / 1200.0) << 440.0 << 70 << -49.0;
    QTest::newRow("D6 at 460") << 1174.659 * 460.0 / 440.0 << 460.0 << 86 << 0.0;
}

void tst_PitchTracker::notesAndCents()
{
    QFETCH(double, frequency);
    QFETCH(double, concertPitch);
    QFETCH(int, note);
    QFETCH(double, cents);

    QCOMPARE(PitchTracker::nearestNote(frequency, concertPitch), note);
    QVERIFY2(std::abs(PitchTracker::centsFrom(frequency, note, concertPitch) - cents) < 0.01,
        qPrintable(QString::number(PitchTracker::centsFrom(frequency, note, concertPitch))));
}

void tst_PitchTracker::noteNumbers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<int>("note");
    QTest::addColumn<QString>("spelled");

    QTest::newRow("E2") << "E2" << 0 << 40 << "E2";
    QTest::newRow("F2 sharp") << "F2" << 1 << 42 << "F2#";
    QTest::newRow("G3 flat") << "G3" << -1 << 54 << "F3#";
    QTest::newRow("B3 sharp is C4") << "B3" << 1 << 60 << "C4";
    QTest::newRow("C4 flat is B3") << "C4" << -1 << 59 << "B3";
    QTest::newRow("A0 of the piano") << "A0" << 0 << 21 << "A0";
    QTest::newRow("F1 of the bass") << "F1" << 0 << 29 << "F1";
    QTest::newRow("other accidentals") << "D5" << 2 << 75 << "D5#";
    QTest::newRow("no letter") << "H2" << 0 << -1 << QString();
    QTest::newRow("no octave") << "E" << 0 << -1 << QString();
    QTest::newRow("empty") << "" << 0 << -1 << QString();
}

void tst_PitchTracker::noteNumbers()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(int, note);
    QFETCH(QString, spelled);

    QCOMPARE(PitchTracker::noteNumber(name, accidental), note);
    QCOMPARE(PitchTracker::noteName(note), spelled);
}

void tst_PitchTracker::nearestString_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<int>("string");

    // Guitar: E2 A2 D3 G3 B3 E4.
    QTest::newRow("low E") << 82.4 << 0;
    QTest::newRow("F2 is still the low E") << 87.3 << 0;
    QTest::newRow("A2 sharp by a semitone is nearer A2 than D3") << 116.5 << 1;
    QTest::newRow("C3 nearer D3") << 130.8 << 2;
    QTest::newRow("high E") << 330.0 << 5;
    QTest::newRow("far above") << 1000.0 << 5;
}

void tst_PitchTracker::nearestString()
{
    QFETCH(double, frequency);
    QFETCH(int, string);
    QCOMPARE(PitchTracker::nearestString(frequency, { 40, 45, 50, 55, 59, 64 }, 440.0), string);
}

void tst_PitchTracker::startsOncePerNote_data()
{
    QTest::addColumn<Hops>("readings");
    QTest::addColumn<QVector<int>>("started");

    QTest::newRow("shorter than 80 ms") << hops(6, 440.0) << QVector<int>();
    QTest::newRow("held for 80 ms") << hops(7, 440.0) << QVector<int> { 69 };
    QTest::newRow("ringing on counts once") << hops(200, 440.0) << QVector<int> { 69 };
    QTest::newRow("two notes") << hops(20, 440.0) + hops(20, 493.88) << QVector<int> { 69, 71 };
    QTest::newRow("same note after a pause")
        << hops(20, 440.0) + silence(10) + hops(20, 440.0) << QVector<int> { 69, 69 };
    QTest::newRow("short dropout keeps the note")
        << hops(20, 440.0) + hops(3, 440.0, 0.2, 0.3) + hops(20, 440.0) << QVector<int> { 69 };
    QTest::newRow("same note plucked again") << hops(20, 440.0, 0.05) + hops(20, 440.0, 0.3) << QVector<int> { 69, 69 };
    QTest::newRow("decaying string counts once")
        << hops(20, 440.0, 0.3) + hops(20, 440.0, 0.2) + hops(20, 440.0, 0.1) << QVector<int> { 69 };
    QTest::newRow("one hop an octave up") << hops(10, 440.0) + hops(1, 880.0) + hops(10, 440.0) << QVector<int> { 69 };
    QTest::newRow("below the silence gate") << hops(50, 440.0, 0.001) << QVector<int>();
    QTest::newRow("unsure readings are noise") << hops(50, 440.0, 0.3, 0.5) << QVector<int>();
}

void tst_PitchTracker::startsOncePerNote()
{
    QFETCH(Hops, readings);
    QFETCH(QVector<int>, started);

    PitchTracker tracker;
    QVector<int> seen;
    for (const PitchReading& reading : readings) {
        const PitchState state = tracker.feed(reading);
        if (state.started)
            seen.append(state.note);
    }
    QCOMPARE(seen, started);
}

QTEST_GUILESS_MAIN(tst_PitchTracker)
#include "tst_PitchTracker.moc"
