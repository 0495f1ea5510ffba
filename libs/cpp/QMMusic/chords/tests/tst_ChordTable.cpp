#include "ChordBook.h"
#include "ChordName.h"
#include "ChordTable.h"

#include <QtTest>

#include <algorithm>

using QMMusic::ChordBook;
using QMMusic::ChordName;
using QMMusic::ChordTable;

namespace {

// The tones of each type in semitones above the root, in index order.
const QVector<QVector<int>> kTones = { { 0, 4, 7 }, { 0, 3, 7 }, { 0, 4, 8 }, { 0, 3, 6, 9 }, { 0, 4, 7, 9 },
    { 0, 3, 7, 9 }, { 0, 4, 7, 10 }, { 0, 4, 7, 11 }, { 0, 3, 7, 10 }, { 0, 2, 4, 7, 10 }, { 0, 5, 7 } };
// The pitch classes of the roots A, A♭, B, B♭, C, D, D♭, E, E♭, F, G, G♭.
const int kRoots[12] = { 9, 8, 11, 10, 0, 2, 1, 4, 3, 5, 7, 6 };

// The sets of tones of which one must sound whole. On four strings a 6, m6,
// 7, maj7 or m7 chord may leave out its fifth, a 9 chord its fifth and its
// seventh, a dim chord one of its two upper tones; on the balalaika's three
// strings (two of them in unison) the root and the type's own tone: the
// third of major and minor, the raised fifth, the lowered fifth, the sixth,
// the seventh, the ninth or the fourth.
QVector<QSet<int>> requiredTones(int type, int strings)
{
    const QVector<int>& all = kTones.at(type);
    QSet<int> tones(all.cbegin(), all.cend());
    if (strings == 3) {
        const int own[11] = { 4, 3, 8, 6, 9, 9, 10, 11, 10, 2, 5 };
        return { { 0, own[type] } };
    }
    if (strings == 4) {
        if (type == 9)
            return { { 0, 4, 2 } };
        if (type == 3)
            return { { 0, 3, 6 }, { 0, 3, 9 } };
        if (type >= 4 && type <= 8)
            tones.remove(7);
        return { tones };
    }
    if (type == 9)
        tones.remove(7);
    return { tones };
}

QString rowText(const QVector<int>& row)
{
    QStringList parts;
    for (int v : row)
        parts.append(v < 0 ? QStringLiteral("x") : QString::number(v));
    return parts.join(QLatin1Char(' '));
}

// What is wrong with one row, or an empty string.
QString judge(const ChordTable& table, int chord, const QVector<int>& row)
{
    if (row.size() != table.entryCount())
        return QStringLiteral("has %1 entries").arg(row.size());
    const int root = kRoots[ChordName::root(chord)];
    const int type = ChordName::type(chord);
    QVector<int> notes;
    QVector<int> frets;
    for (int entry = 0; entry < row.size(); ++entry) {
        const int v = row.at(entry);
        if (table.isPiano) {
            if (v != 0 && v != -1)
                return QStringLiteral("key %1 is %2").arg(entry).arg(v);
            if (v == 0)
                notes.append(ChordTable::PianoLowestNote + entry);
            continue;
        }
        if (v < -1 || v > table.lastPositions.at(entry))
            return QStringLiteral("position %1 outside the string").arg(v);
        if (v > 0)
            frets.append(v);
        if (v >= 0)
            notes.append(table.openNotes.at(entry) + v);
    }
    if (notes.isEmpty())
        return QStringLiteral("silent");
    if (table.key == QLatin1String("bass2")) {
        for (int fret : frets) {
            if (fret < 5 || fret > 12)
                return QStringLiteral("fret %1 outside frets 5 to 12").arg(fret);
        }
    }
    // Frets 1 to 4 are a stretch of four; the balalaika's short neck allows five.
    const int widest = table.key == QLatin1String("balalaika") ? 4 : 3;
    if (!frets.isEmpty()
        && *std::max_element(frets.cbegin(), frets.cend()) - *std::min_element(frets.cbegin(), frets.cend()) > widest)
        return QStringLiteral("stretch too wide");
    QSet<int> sounding;
    for (int note : notes)
        sounding.insert(((note - root) % 12 + 12) % 12);
    const QVector<int>& tones = kTones.at(type);
    for (int tone : sounding) {
        if (!tones.contains(tone))
            return QStringLiteral("sounds a foreign tone %1").arg(tone);
    }
    // The banjo's short fifth string is a drone: four strings make the chord.
    const int strings = table.isPiano ? 24 : (table.key == QLatin1String("banjo") ? 4 : table.entryCount());
    const QVector<QSet<int>> required = requiredTones(type, strings);
    if (std::none_of(required.cbegin(), required.cend(), [&](const QSet<int>& set) { return sounding.contains(set); }))
        return QStringLiteral("lacks a tone");
    return QString();
}

} // namespace

class tst_ChordTable : public QObject
{
    Q_OBJECT

private slots:
    void everyRowSoundsItsChord_data();
    void everyRowSoundsItsChord();
    void bassAndPianoStandOnTheRoot_data();
    void bassAndPianoStandOnTheRoot();
    void family_data();
    void family();
    void notes_data();
    void notes();
    void setChordReplacesBothLists();
    void indexOutsideTheTableChangesNothing();
};

void tst_ChordTable::everyRowSoundsItsChord_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("known");

    // The rows that the program's given shapes hold and that break the rule,
    // and the few where no voicing within the positions with samples keeps
    // every tone.
    QTest::newRow("guitar") << "guitar" << QStringList { "B9", "B♭9", "C6", "C7", "C9", "D♭9", "E♭9", "F6" };
    QTest::newRow("bass") << "bass" << QStringList { "A9", "C9", "D9", "D♭9", "G9" };
    QTest::newRow("bass2") << "bass2" << QStringList { "A9", "A♭9", "Cm6", "C9", "G9", "G♭9" };
    QTest::newRow("ukulele") << "ukulele" << QStringList { "A9", "C9", "G9" };
    QTest::newRow("mandolin") << "mandolin" << QStringList { "A9", "C9", "G9" };
    QTest::newRow("banjo") << "banjo" << QStringList { "Amaj7", "A9", "C6" };
    QTest::newRow("balalaika") << "balalaika"
                               << QStringList { "Aaug", "Adim", "A6", "Am6", "A7", "Amaj7", "Am7", "A9", "Asus4", "Cm",
                                      "C6", "C7", "Cmaj7", "Cm7", "C9", "E♭maj7", "E♭9", "F7", "Fm7", "G", "Gaug",
                                      "Gdim", "G9", "Gsus4" };
    QTest::newRow("piano") << "piano" << QStringList();
}

// Every row of every table: the positions lie on the string, the stretch is
// playable, every note is a tone of the chord and the chord's tones sound.
void tst_ChordTable::everyRowSoundsItsChord()
{
    QFETCH(QString, key);
    QFETCH(QStringList, known);

    const ChordTable& table = ChordTable::forKey(key);
    QStringList rejected;
    for (int chord = 0; chord < ChordName::ChordCount; ++chord) {
        const QVector<int> row = table.row(chord);
        const QString fault = judge(table, chord, row);
        if (fault.isEmpty())
            continue;
        qInfo().noquote() << key << ChordName::name(chord) << rowText(row) << fault;
        rejected.append(ChordName::name(chord));
    }
    QCOMPARE(rejected, known);
}

void tst_ChordTable::bassAndPianoStandOnTheRoot_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("exempt");

    // The given shapes of roots A, C and G on the basses play across the
    // strings, and three given piano chords are inversions.
    const QStringList givenRoots { "A", "C", "G" };
    QTest::newRow("bass") << "bass" << givenRoots;
    QTest::newRow("bass2") << "bass2" << givenRoots;
    QTest::newRow("piano") << "piano" << QStringList { "Am", "Aaug", "Adim" };
}

void tst_ChordTable::bassAndPianoStandOnTheRoot()
{
    QFETCH(QString, key);
    QFETCH(QStringList, exempt);

    const ChordTable& table = ChordTable::forKey(key);
    for (int chord = 0; chord < ChordName::ChordCount; ++chord) {
        if (exempt.contains(ChordName::rootName(ChordName::root(chord))) || exempt.contains(ChordName::name(chord)))
            continue;
        const QVector<int> row = table.row(chord);
        int lowest = 1000;
        for (int entry = 0; entry < row.size(); ++entry) {
            const int note = table.noteAt(entry, row.at(entry));
            if (note >= 0)
                lowest = std::min(lowest, note);
        }
        QVERIFY2(
            lowest % 12 == kRoots[ChordName::root(chord)], qPrintable(ChordName::name(chord) + " " + rowText(row)));
    }
}

void tst_ChordTable::family_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QStringList>("openStrings");
    QTest::addColumn<QVector<int>>("lastPositions");
    QTest::addColumn<int>("delay");

    QTest::newRow("guitar") << "guitar"
                            << "guitar" << QStringList { "E2", "A2", "D3", "G3", "B3", "E4" }
                            << QVector<int> { 8, 8, 8, 8, 8, 8 } << 30;
    QTest::newRow("bass") << "bass"
                          << "bass" << QStringList { "E1", "A1", "D2", "G2" } << QVector<int> { 8, 8, 8, 8 } << 80;
    QTest::newRow("bass2 shares the bass's samples")
        << "bass2"
        << "bass" << QStringList { "E1", "A1", "D2", "G2" } << QVector<int> { 13, 13, 13, 13 } << 50;
    QTest::newRow("ukulele") << "ukulele"
                             << "ukulele" << QStringList { "G4", "C4", "E4", "A4" } << QVector<int> { 6, 6, 6, 6 }
                             << 30;
    QTest::newRow("mandolin") << "mandolin"
                              << "mandolin" << QStringList { "G3", "D4", "A4", "E5" } << QVector<int> { 8, 8, 8, 8 }
                              << 30;
    QTest::newRow("banjo: the short string first")
        << "banjo"
        << "banjo" << QStringList { "G4", "D3", "G3", "B3", "D4" } << QVector<int> { 11, 8, 8, 8, 8 } << 30;
    QTest::newRow("balalaika") << "balalaika"
                               << "balalaika" << QStringList { "E4", "E4", "A4" } << QVector<int> { 9, 9, 9 } << 40;
    QTest::newRow("piano") << "piano"
                           << "piano" << QStringList() << QVector<int>() << 40;
    QTest::newRow("unknown") << "harp"
                             << "" << QStringList() << QVector<int>() << 0;
}

void tst_ChordTable::family()
{
    QFETCH(QString, key);
    QFETCH(QString, prefix);
    QFETCH(QStringList, openStrings);
    QFETCH(QVector<int>, lastPositions);
    QFETCH(int, delay);

    const ChordTable& table = ChordTable::forKey(key);
    QCOMPARE(table.samplePrefix, prefix);
    QStringList open;
    for (int note : table.openNotes)
        open.append(ChordTable::stem(note));
    QCOMPARE(open, openStrings);
    QCOMPARE(table.lastPositions, lastPositions);
    QCOMPARE(table.delay, delay);
}

void tst_ChordTable::notes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("chord");
    QTest::addColumn<QStringList>("stems");

    QTest::newRow("A on the guitar: the low E sounds open")
        << "guitar" << 0 << QStringList { "E2", "A2", "E3", "A3", "Cd4", "E4" };
    QTest::newRow("C: x on the low E is silent")
        << "guitar" << ChordName::indexOf("C") << QStringList { "G2", "C3", "E3", "G3", "C4", "E4" };
    QTest::newRow("C sus4 mutes its low string")
        << "guitar" << ChordName::indexOf("Csus4") << QStringList { "", "C3", "F3", "G3", "C4", "F4" };
    QTest::newRow("G major on bass2, positions 7 to 10")
        << "bass2" << ChordName::indexOf("G") << QStringList { "B1", "G2", "B2", "D3" };
    QTest::newRow("banjo G: the short string open")
        << "banjo" << ChordName::indexOf("G") << QStringList { "G4", "D3", "G3", "B3", "D4" };
    QTest::newRow("balalaika A") << "balalaika" << 0 << QStringList { "A4", "E4", "Cd5" };
    QStringList pianoA;
    for (int key = 0; key < 24; ++key)
        pianoA.append(QString());
    pianoA[9] = "A3";
    pianoA[13] = "Cd4";
    pianoA[16] = "E4";
    QTest::newRow("piano A: 0 is a key down") << "piano" << 0 << pianoA;
}

void tst_ChordTable::notes()
{
    QFETCH(QString, key);
    QFETCH(int, chord);
    QFETCH(QStringList, stems);

    const ChordTable& table = ChordTable::forKey(key);
    ChordBook book(table, QStringLiteral("/res/"));
    book.initChords();
    QStringList expected;
    for (const QString& stem : stems)
        expected.append(stem.isEmpty() ? QString() : "/res/" + table.samplePrefix + "_440_" + stem + ".mp3");
    QCOMPARE(book.chordNotes(chord), expected);
    QCOMPARE(book.chordTab(chord), table.row(chord));
}

// A position above the last one with a sample is silent but stays in the row.
void tst_ChordTable::setChordReplacesBothLists()
{
    ChordBook book(ChordTable::forKey("ukulele"), QStringLiteral("/r/"));
    book.initChords();
    book.setChord(5, { 6, 7, -1, 0 });
    QCOMPARE(book.chordNotes(5), (QStringList { "/r/ukulele_440_Cd5.mp3", "", "", "/r/ukulele_440_A4.mp3" }));
    QCOMPARE(book.chordTab(5), (QVector<int> { 6, 7, -1, 0 }));
    QCOMPARE(book.samples(1).size(), 7);
    QCOMPARE(book.samples(1).last(), QStringLiteral("/r/ukulele_440_Fd4.mp3"));
}

void tst_ChordTable::indexOutsideTheTableChangesNothing()
{
    ChordBook book(ChordTable::forKey("guitar"), QString());
    book.initChords();
    book.setChord(132, { 1, 1, 1, 1, 1, 1 });
    book.setChord(-1, { 1, 1, 1, 1, 1, 1 });
    QVERIFY(book.chordTab(132).isEmpty());
    QVERIFY(book.chordNotes(-1).isEmpty());
    QCOMPARE(book.chordTab(131), ChordTable::forKey("guitar").row(131));
    QVERIFY(ChordTable::forKey("guitar").row(132).isEmpty());
}

QTEST_GUILESS_MAIN(tst_ChordTable)
#include "tst_ChordTable.moc"
