#include "NoteSpelling.h"

#include <QtTest>

using QMMusic::NoteSpelling;

class TestNoteSpelling : public QObject
{
    Q_OBJECT

private slots:
    void respelling_data();
    void respelling();
    void positionName_data();
    void positionName();
};

void TestNoteSpelling::respelling_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("stem");

    QTest::newRow("natural E4") << "E4" << 0 << "E4";
    QTest::newRow("A flat") << "A3" << -1 << "Gd3";
    QTest::newRow("B flat") << "B2" << -1 << "Ad2";
    QTest::newRow("B sharp crosses to C of the next octave") << "B3" << 1 << "C4";
    QTest::newRow("C flat crosses to B of the octave below") << "C4" << -1 << "B3";
    QTest::newRow("C sharp") << "C5" << 1 << "Cd5";
    QTest::newRow("D flat") << "D3" << -1 << "Cd3";
    QTest::newRow("E sharp is F") << "E4" << 1 << "F4";
    QTest::newRow("F flat is E") << "F4" << -1 << "E4";
    QTest::newRow("G flat") << "G2" << -1 << "Fd2";
    QTest::newRow("accidental 5 acts as sharp") << "B3" << 5 << "C4";
    QTest::newRow("accidental -5 acts as flat") << "C4" << -5 << "B3";
}

void TestNoteSpelling::respelling()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, stem);
    QCOMPARE(NoteSpelling::stem(name, accidental), stem);
}

void TestNoteSpelling::positionName_data()
{
    QTest::addColumn<QString>("position");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("stem");

    QTest::newRow("natural") << "E2"
                             << "E2" << 0 << "E2";
    QTest::newRow("sharp") << "F2#"
                           << "F2" << 1 << "Fd2";
    QTest::newRow("sharp in octave 0") << "A0#"
                                       << "A0" << 1 << "Ad0";
    QTest::newRow("empty") << ""
                           << "" << 0 << "";
}

void TestNoteSpelling::positionName()
{
    QFETCH(QString, position);
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, stem);
    QCOMPARE(NoteSpelling::positionNoteName(position), name);
    QCOMPARE(NoteSpelling::positionAccidental(position), accidental);
    QCOMPARE(NoteSpelling::positionStem(position), stem);
    // A position name read back through the note name gives the same stem.
    if (!position.isEmpty())
        QCOMPARE(NoteSpelling::stem(name, accidental), stem);
}

QTEST_APPLESS_MAIN(TestNoteSpelling)
#include "tst_notespelling.moc"
