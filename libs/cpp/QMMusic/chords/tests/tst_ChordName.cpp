#include "ChordName.h"

#include <QtTest>

using QMMusic::ChordName;

class tst_ChordName : public QObject
{
    Q_OBJECT

private slots:
    void indexOf_data();
    void indexOf();
    void everySpellingOfEveryChord();
    void names_data();
    void names();
};

void tst_ChordName::indexOf_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("chord");

    QTest::newRow("A") << "A" << 0;
    QTest::newRow("G flat sus4") << "G♭sus4" << 131;
    QTest::newRow("F sharp sus4") << "F #sus4" << 131;
    QTest::newRow("G") << "G" << 110;
    QTest::newRow("Gm") << "Gm" << 111;
    QTest::newRow("Dm7: m7 is type 8") << "Dm7" << 63;
    QTest::newRow("C sharp maj7: maj7 is type 7") << "C #maj7" << 73;
    QTest::newRow("Fm6 is no Fm") << "Fm6" << 104;
    QTest::newRow("C flat is B") << "C♭" << 22;
    QTest::newRow("B sharp dim is C dim") << "B #dim" << 47;
    QTest::newRow("E sharp 9 is F9") << "E #9" << 108;
    QTest::newRow("F flat aug is E aug") << "F♭aug" << 79;
    QTest::newRow("empty: G flat sus4") << "" << 131;
    QTest::newRow("lower case never matches") << "am" << 131;
    QTest::newRow("a sharp without its blank") << "C#" << 131;
    QTest::newRow("a stray suffix") << "Cmaj" << 131;
    QTest::newRow("a trailing blank") << "A " << 131;
}

void tst_ChordName::indexOf()
{
    QFETCH(QString, name);
    QFETCH(int, chord);
    QCOMPARE(ChordName::indexOf(name), chord);
}

// Every root in each of its spellings with every suffix finds its index,
// and the index gives back the first spelling.
void tst_ChordName::everySpellingOfEveryChord()
{
    const QStringList roots[12] = { { "A" }, { "A♭", "G #" }, { "B", "C♭" }, { "B♭", "A #" }, { "C", "B #" }, { "D" },
        { "D♭", "C #" }, { "E", "F♭" }, { "E♭", "D #" }, { "F", "E #" }, { "G" }, { "G♭", "F #" } };
    const QStringList suffixes { "", "m", "aug", "dim", "6", "m6", "7", "maj7", "m7", "9", "sus4" };
    for (int root = 0; root < 12; ++root) {
        QCOMPARE(ChordName::rootSpellings(root), roots[root]);
        for (int type = 0; type < suffixes.size(); ++type) {
            for (const QString& spelling : roots[root])
                QCOMPARE(ChordName::indexOf(spelling + suffixes.at(type)), root * 11 + type);
            QCOMPARE(ChordName::name(root * 11 + type), roots[root].first() + suffixes.at(type));
        }
    }
}

void tst_ChordName::names_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<QString>("name");

    QTest::newRow("B flat m7") << 41 << "B♭m7";
    QTest::newRow("below the table") << -1 << "";
    QTest::newRow("above the table") << 132 << "";
}

void tst_ChordName::names()
{
    QFETCH(int, chord);
    QFETCH(QString, name);
    QCOMPARE(ChordName::name(chord), name);
}

QTEST_GUILESS_MAIN(tst_ChordName)
#include "tst_ChordName.moc"
