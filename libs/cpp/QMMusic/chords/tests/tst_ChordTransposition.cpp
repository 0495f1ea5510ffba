#include "ChordTransposition.h"

#include <QtTest>

using QMMusic::ChordTransposition;

namespace {

// The twelve names of each spelling, by pitch class from C.
const QStringList kFlats { "C", "D♭", "D", "E♭", "E", "F", "G♭", "G", "A♭", "A", "B♭", "B" };
const QStringList kSharps { "C", "C #", "D", "D #", "E", "F", "F #", "G", "G #", "A", "A #", "B" };

} // namespace

class tst_ChordTransposition : public QObject
{
    Q_OBJECT

private slots:
    void everyRootEveryStep_data();
    void everyRootEveryStep();
    void rules_data();
    void rules();
    void menu_data();
    void menu();
};

// Every root of both spellings, with and without a suffix, from 11 down to
// 11 up: the pitch class moves by the steps, and the name comes from the
// sharps if the chord has a "#", else from the flats.
void tst_ChordTransposition::everyRootEveryStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("expected");

    for (const QStringList* names : { &kFlats, &kSharps }) {
        for (int pc = 0; pc < 12; ++pc) {
            const QString root = names->at(pc);
            const QStringList& target = root.contains('#') ? kSharps : kFlats;
            for (int step = -11; step <= 11; ++step) {
                const QString suffix = step % 3 == 0 ? QString() : QStringLiteral("m7");
                const QString moved = target.at(((pc + step) % 12 + 12) % 12);
                QTest::addRow("%s%s %+d", qPrintable(root), qPrintable(suffix), step)
                    << root + '\n' + suffix << std::abs(step) << (step >= 0) << moved + '\n' + suffix;
            }
        }
    }
}

void tst_ChordTransposition::everyRootEveryStep()
{
    QFETCH(QString, text);
    QFETCH(int, steps);
    QFETCH(bool, up);
    QFETCH(QString, expected);
    QCOMPARE(ChordTransposition::transpose(text, steps, up), expected);
}

void tst_ChordTransposition::rules_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("expected");

    QTest::newRow("A up 11 is A flat") << "A\n" << 11 << true << "A♭\n";
    QTest::newRow("C down 1 is B") << "C\n" << 1 << false << "B\n";
    QTest::newRow("C up 1 goes to flats") << "C\n" << 1 << true << "D♭\n";
    QTest::newRow("C sharp up 1 is D") << "C #\n" << 1 << true << "D\n";
    QTest::newRow("D up 1 never D sharp") << "D\nm" << 1 << true << "E♭\nm";
    QTest::newRow("F sharp 7 down 1 is F 7") << "F #\n7" << 1 << false << "F\n7";
    QTest::newRow("E sharp stays") << "E #\n" << 3 << true << "E #\n";
    QTest::newRow("B sharp stays") << "B #\nm" << 2 << false << "B #\nm";
    QTest::newRow("C flat stays") << "C♭\n" << 2 << true << "C♭\n";
    QTest::newRow("F flat stays") << "F♭\n7" << 5 << false << "F♭\n7";
    QTest::newRow("no line feed: the root alone") << "G" << 2 << true << "A\n";
    QTest::newRow("a stranger text stays") << "Hm\n7" << 2 << true << "Hm\n7";
    QTest::newRow("twelve steps are no menu entry") << "C\n" << 12 << true << "C\n";
    QTest::newRow("zero steps") << "E♭\nsus4" << 0 << true << "E♭\nsus4";
}

void tst_ChordTransposition::rules()
{
    everyRootEveryStep();
}

void tst_ChordTransposition::menu_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("up");
    QTest::addColumn<int>("steps");

    QTest::newRow("first: 11 up") << 0 << "11 #" << true << 11;
    QTest::newRow("eleventh: 1 up") << 10 << "1 #" << true << 1;
    QTest::newRow("twelfth: 1 down") << 11 << "1 ♭" << false << 1;
    QTest::newRow("last: 11 down") << 21 << "11 ♭" << false << 11;
}

void tst_ChordTransposition::menu()
{
    QFETCH(int, entry);
    QFETCH(QString, text);
    QFETCH(bool, up);
    QFETCH(int, steps);

    const QStringList texts = ChordTransposition::menuTexts();
    QCOMPARE(texts.size(), 22);
    QCOMPARE(texts.at(entry), text);
    QCOMPARE(ChordTransposition::steps(text, up), steps);
    QCOMPARE(ChordTransposition::steps(QStringLiteral("Transpose"), up), -1);
}

QTEST_GUILESS_MAIN(tst_ChordTransposition)
#include "tst_ChordTransposition.moc"
