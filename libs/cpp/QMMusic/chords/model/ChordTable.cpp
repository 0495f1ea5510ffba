#include "ChordTable.h"

#include <QMap>

namespace QMMusic {

namespace {

// One row of a string instrument's table per cell: the entries of the
// strings in the page's order, one digit each and "x" for a muted string;
// where one entry needs two digits, the entries are separated by blanks.
// Lines are roots (A, A♭, B, B♭, C, D, D♭, E, E♭, F, G, G♭), columns the
// types (major, m, aug, dim, 6, m6, 7, maj7, m7, 9, sus4).
using StringTable = const char* const[12][11];

// clang-format off

// E2 A2 D3 G3 B3 E4.
StringTable kGuitar = {
    { "002220", "002210", "x03221", "x01212", "002222", "002212", "002020", "002120", "002010", "002423", "002230" }, // A
    { "466544", "466444", "xx2110", "456464", "431111", "466464", "464544", "465544", "464444", "464546", "466644" }, // A♭
    { "224442", "224432", "x21003", "123131", "xx4444", "x20132", "x21202", "224342", "224232", "xx1222", "224452" }, // B
    { "113331", "113321", "xx0332", "012020", "xx3333", "xx3323", "113131", "113231", "113121", "113111", "113341" }, // B♭
    { "332010", "335543", "x32110", "234242", "032210", "x31213", "032310", "032000", "335343", "xx2333", "x33011" }, // C
    { "x00232", "x00231", "xx0332", "456464", "x00202", "x00201", "x00212", "x00222", "x00211", "200210", "x00233" }, // D
    { "446664", "446654", "xx3221", "345353", "xx3324", "xx2324", "446464", "143111", "xx2424", "xx3444", "446674" }, // D♭
    { "022100", "022000", "xx2110", "x12020", "022120", "022020", "020100", "022444", "022030", "020102", "022200" }, // E
    { "x11343", "x11342", "xx1003", "xx1212", "xx1313", "x11312", "x11323", "x11333", "x11322", "111321", "xx1344" }, // E♭
    { "133211", "133111", "xx3221", "123131", "x03231", "133131", "131211", "x03210", "131111", "131213", "133311" }, // F
    { "320003", "355333", "321003", "345353", "320000", "xx2333", "320001", "320002", "353333", "300201", "355533" }, // G
    { "244322", "244222", "xx4332", "234242", "x44646", "244242", "242322", "xx4321", "242222", "242324", "244422" }, // G♭
};

// E1 A1 D2 G2, in the first positions, the root below where the shape allows.
StringTable kBass = {
    { "0422", "0322", "1432", "2312", "0442", "0342", "3422", "4422", "3322", "3222", "0002" }, // A
    { "4311", "4211", "4321", "4534", "4635", "4634", "4645", "4310", "4644", "4343", "4411" }, // A♭
    { "7644", "7544", "x210", "x201", "x211", "x201", "x212", "x213", "x202", "7676", "7744" }, // B
    { "6533", "6433", "6543", "6756", "x100", "6430", "x101", "x102", "6866", "6565", "6633" }, // B♭
    { "3320", "3310", "0321", "2312", "3322", "3312", "3323", "3324", "3313", "0100", "3330" }, // C
    { "x542", "x532", "x543", "x534", "x544", "x534", "x545", "x546", "x535", "x545", "x552" }, // D
    { "x431", "x421", "x432", "x420", "x433", "x423", "x434", "x435", "x424", "x434", "x441" }, // D♭
    { "0221", "0220", "0321", "0120", "0464", "0454", "0201", "0211", "0200", "0241", "0222" }, // E
    { "x653", "x643", "x654", "x645", "x655", "x645", "x656", "x657", "x646", "x630", "x663" }, // E♭
    { "1332", "1331", "1432", "1201", "1302", "1301", "1312", "1322", "1311", "1010", "1333" }, // F
    { "3200", "3100", "3210", "3423", "0200", "0100", "1200", "2200", "1100", "1000", "3300" }, // G
    { "2443", "2442", "2103", "2312", "2413", "2012", "2423", "2433", "2022", "2121", "2444" }, // G♭
};

// E1 A1 D2 G2, high on the neck (frets 5 to 12) and open strings.
StringTable kBass2 = {
    { "9776", "8779", "9876", "8978", "9979", "8979", "9 10 7 9", "5766", "8 10 7 9", "5756", "10 7 7 7" }, // A
    { "x 11 10 8", "x 11 9 8", "x 11 10 9", "x 11 9 10", "x 11 10 10", "x 11 9 10", "x 11 10 11", "x 11 10 12", "x 11 9 11", "x 11 10 11", "x 11 11 8" }, // A♭
    { "7998", "7997", "7 10 9 8", "7867", "7968", "7967", "7978", "7988", "7977", "7676", "7999" }, // B
    { "6887", "6886", "6987", "6756", "6857", "6856", "6867", "6877", "6866", "6565", "6888" }, // B♭
    { "8 7 10 0", "8 10 10 8", "8769", "8978", "8 10 7 9", "x 10 7 8", "8780", "8 10 9 9", "8 10 8 8", "8 10 8 9", "8 10 10 10" }, // C
    { "10 9 7 7", "10 8 7 7", "10 9 8 7", "10 11 9 10", "10 12 9 11", "10 12 9 10", "10 12 10 11", "10 12 11 11", "10 12 10 10", "10 9 7 9", "10 10 7 7" }, // D
    { "9866", "9766", "9 8 7 10", "9780", "9 11 8 10", "9 11 8 9", "9 11 9 10", "9 11 10 10", "9 11 9 9", "9898", "9966" }, // D♭
    { "12 11 9 9", "0790", "12 11 10 9", "0780", "0766", "12 10 11 9", "0767", "0 11 9 8", "0 10 9 7", "0967", "12 12 9 9" }, // E
    { "11 10 8 8", "11 9 8 8", "11 10 9 8", "11 12 10 11", "11 10 10 8", "11 9 10 8", "11 10 11 8", "11 10 12 12", "11 9 11 8", "11 10 8 10", "11 11 8 8" }, // E♭
    { "x875", "x865", "x876", "x867", "x877", "x867", "x878", "x879", "x868", "x870", "x885" }, // F
    { "7 10 9 7", "10 10 8 7", "7 10 9 8", "9 10 8 9", "10 10 9 9", "6700", "10 8 9 0", "10 10 9 11", "10 10 8 10", "x 10 9 10", "8 10 0 0" }, // G
    { "x986", "x976", "x987", "x978", "x988", "x978", "x989", "x 9 8 10", "x979", "x989", "x996" }, // G♭
};

// G4 C4 E4 A4, the re-entrant tuning: the open chords of the first frets.
StringTable kUkulele = {
    { "2100", "2000", "2114", "2323", "2424", "2423", "0100", "2444", "2433", "0102", "2200" }, // A
    { "1343", "4342", "1003", "1212", "1313", "1312", "1323", "0343", "1322", "1021", "1344" }, // A♭
    { "4322", "4222", "0332", "1212", "1322", "1222", "2322", "3322", "2222", "4324", "4422" }, // B
    { "3211", "3111", "3221", "0101", "0211", "0111", "1211", "2211", "1111", "3213", "3311" }, // B♭
    { "0003", "0333", "1003", "2323", "0453", "2333", "0001", "0002", "3333", "0201", "0013" }, // C
    { "2220", "2210", "3221", "1212", "2222", "2212", "2223", "2224", "2213", "5605", "0230" }, // D
    { "1114", "1104", "2110", "0101", "1111", "1101", "1112", "1113", "1102", "1314", "1124" }, // D♭
    { "1402", "0402", "1003", "0101", "1102", "0102", "1202", "1302", "0202", "1422", "4400" }, // E
    { "0331", "3321", "0332", "2323", "3333", "3323", "3334", "3335", "3324", "0311", "1341" }, // E♭
    { "2010", "1013", "2110", "1212", "2213", "1213", "2313", "5500", "1313", "0010", "3011" }, // F
    { "0232", "0231", "4332", "0101", "0202", "0201", "0212", "0222", "0211", "2212", "0233" }, // G
    { "3121", "2120", "3221", "2323", "3324", "2324", "3424", "3524", "2424", "1121", "4122" }, // G♭
};

// G3 D4 A4 E5, tuned in fifths like a violin.
StringTable kMandolin = {
    { "2240", "2230", "2341", "2132", "2440", "2430", "2243", "2244", "2233", "2223", "2000" }, // A
    { "1134", "1124", "1230", "1021", "1131", "1121", "1132", "1133", "1122", "3434", "1144" }, // A♭
    { "4122", "4022", "0123", "1021", "1122", "1022", "2122", "3122", "2022", "4142", "4420" }, // B
    { "3011", "3341", "3012", "3243", "0011", "3343", "1011", "2011", "3344", "3031", "3111" }, // B♭
    { "0233", "0133", "1230", "2132", "2233", "2133", "3233", "4233", "3133", "0010", "0333" }, // C
    { "2002", "2001", "3012", "1021", "2022", "2021", "2032", "2042", "2031", "5450", "0003" }, // D
    { "1341", "1240", "2341", "3243", "3344", "3244", "4344", "5344", "4244", "1141", "1442" }, // D♭
    { "1220", "0220", "1230", "0210", "4244", "4243", "1020", "1120", "0020", "1222", "2220" }, // E
    { "0113", "3112", "0123", "2132", "3133", "3132", "3143", "0066", "3142", "0111", "1114" }, // E♭
    { "2331", "1331", "2341", "1021", "2031", "1031", "2131", "2330", "1131", "0101", "3331" }, // F
    { "0023", "0013", "0123", "3243", "0020", "0010", "0021", "0022", "0011", "0001", "0033" }, // G
    { "3442", "2442", "3012", "2132", "3142", "2102", "3440", "3342", "2202", "1212", "4442" }, // G♭
};

// G4 (the short fifth string, open or muted) D3 G3 B3 D4, open G tuning.
StringTable kBanjo = {
    { "x2222", "x2212", "x3223", "x4211", "x2224", "x2214", "05222", "x2122", "02212", "x5422", "x2232" }, // A
    { "x1111", "x1101", "x2112", "x0100", "x1113", "x1103", "x1114", "01111", "x1104", "x6578", "x1121" }, // A♭
    { "x4444", "x0404", "01001", "x0100", "x1101", "x0100", "x1201", "x1304", "x0200", "x1424", "x2404" }, // B
    { "x0333", "x3323", "x0334", "02322", "00333", "03323", "x0366", "x7768", "x6668", "x0313", "x3343" }, // B♭
    { "02012", "01011", "x2112", "x1214", "00255", "01211", "x2312", "02505", "x1311", "x2310", "x5565" }, // C
    { "x0234", "x0233", "x0334", "x0103", "x0204", "x0203", "x0214", "x0224", "x0213", "x0554", "00230" }, // D
    { "x3123", "x2122", "x3223", "02322", "x3323", "x2322", "x3606", "x3523", "x2422", "x1123", "x4124" }, // D♭
    { "x2102", "02002", "x2112", "02322", "x2122", "02022", "x0102", "x1102", "00002", "x2104", "x2202" }, // E
    { "01341", "x4344", "01001", "x1214", "01011", "x1314", "01321", "00331", "x1324", "01323", "x6346" }, // E♭
    { "x3213", "x3113", "x3223", "x0103", "x0213", "x0113", "x1213", "x2213", "x1113", "01213", "x3313" }, // F
    { "00000", "05335", "01001", "05322", "02000", "02335", "x3003", "04000", "05360", "03200", "x0010" }, // G
    { "x4324", "x4224", "x0334", "x1214", "x1324", "x1224", "x2324", "x3324", "x2224", "x4356", "x4424" }, // G♭
};

// E4 E4 A4, the prima's tuning with two strings in unison. With three
// strings a chord of four or five tones keeps its root and its sixth,
// seventh or ninth, and the third where it fits.
StringTable kBalalaika = {
    { "504", "503", "114", "253", "024", "203", "304", "044", "003", "002", "050" }, // A
    { "443", "442", "043", "145", "143", "142", "243", "343", "242", "241", "444" }, // A♭
    { "776", "775", "332", "112", "242", "242", "252", "676", "252", "574", "022" }, // B
    { "665", "664", "221", "001", "131", "131", "141", "565", "141", "463", "666" }, // B♭
    { "303", "336", "043", "253", "003", "353", "031", "032", "336", "001", "133" }, // C
    { "255", "155", "265", "145", "575", "575", "585", "595", "585", "055", "355" }, // D
    { "144", "044", "154", "034", "464", "064", "474", "898", "074", "796", "244" }, // D♭
    { "042", "032", "043", "001", "044", "034", "045", "046", "035", "022", "000" }, // E
    { "366", "266", "376", "256", "686", "686", "696", "366", "696", "366", "466" }, // E♭
    { "110", "143", "154", "112", "155", "145", "110", "010", "143", "130", "111" }, // F
    { "335", "331", "332", "031", "032", "301", "132", "322", "311", "312", "335" }, // G
    { "221", "220", "265", "223", "266", "256", "021", "121", "020", "244", "222" }, // G♭
};

// The piano's keys that go down, C3 to B4, one chord a line in index order.
const char* const kPiano[132] = {
    // A
    "A3 Cd4 E4",
    "C3 E3 A3",
    "F3 A3 Cd4",
    "C3 Dd3 Fd3 A3",
    "A3 Cd4 E4 Fd4",
    "A3 C4 E4 Fd4",
    "A3 Cd4 E4 G4",
    "A3 Cd4 E4 Gd4",
    "A3 C4 E4 G4",
    "A3 Cd4 E4 G4 B4",
    "A3 D4 E4",
    // A♭
    "Gd3 C4 Dd4",
    "Gd3 B3 Dd4",
    "Gd3 C4 E4",
    "Gd3 B3 D4 F4",
    "Gd3 C4 Dd4 F4",
    "Gd3 B3 Dd4 F4",
    "Gd3 C4 Dd4 Fd4",
    "Gd3 C4 Dd4 G4",
    "Gd3 B3 Dd4 Fd4",
    "Gd3 C4 Dd4 Fd4 Ad4",
    "Gd3 Cd4 Dd4",
    // B
    "B3 Dd4 Fd4",
    "B3 D4 Fd4",
    "B3 Dd4 G4",
    "B3 D4 F4 Gd4",
    "B3 Dd4 Fd4 Gd4",
    "B3 D4 Fd4 Gd4",
    "B3 Dd4 Fd4 A4",
    "B3 Dd4 Fd4 Ad4",
    "B3 D4 Fd4 A4",
    "B3 Cd4 Dd4 Fd4 A4",
    "B3 E4 Fd4",
    // B♭
    "Ad3 D4 F4",
    "Ad3 Cd4 F4",
    "Ad3 D4 Fd4",
    "Ad3 Cd4 E4 G4",
    "Ad3 D4 F4 G4",
    "Ad3 Cd4 F4 G4",
    "Ad3 D4 F4 Gd4",
    "Ad3 D4 F4 A4",
    "Ad3 Cd4 F4 Gd4",
    "Ad3 C4 D4 F4 Gd4",
    "Ad3 Dd4 F4",
    // C
    "C3 E3 G3",
    "C3 Dd3 G3",
    "C3 E3 Gd3",
    "C3 Dd3 Fd3 A3",
    "C3 E3 G3 A3",
    "C3 Dd3 G3 A3",
    "C3 E3 G3 Ad3",
    "C3 E3 G3 B3",
    "C3 Dd3 G3 Ad3",
    "C3 E3 G3 Ad3 D4",
    "C3 F3 G3",
    // D
    "D3 Fd3 A3",
    "D3 F3 A3",
    "D3 Fd3 Ad3",
    "D3 F3 Gd3 B3",
    "D3 Fd3 A3 B3",
    "D3 F3 A3 B3",
    "D3 Fd3 A3 C4",
    "D3 Fd3 A3 Cd4",
    "D3 F3 A3 C4",
    "D3 Fd3 A3 C4 E4",
    "D3 G3 A3",
    // D♭
    "Cd3 F3 Gd3",
    "Cd3 E3 Gd3",
    "Cd3 F3 A3",
    "Cd3 E3 G3 Ad3",
    "Cd3 F3 Gd3 Ad3",
    "Cd3 E3 Gd3 Ad3",
    "Cd3 F3 Gd3 B3",
    "Cd3 F3 Gd3 C4",
    "Cd3 E3 Gd3 B3",
    "Cd3 F3 Gd3 B3 Dd4",
    "Cd3 Fd3 Gd3",
    // E
    "E3 Gd3 B3",
    "E3 G3 B3",
    "E3 Gd3 C4",
    "E3 G3 Ad3 Cd4",
    "E3 Gd3 B3 Cd4",
    "E3 G3 B3 Cd4",
    "E3 Gd3 B3 D4",
    "E3 Gd3 B3 Dd4",
    "E3 G3 B3 D4",
    "E3 Gd3 B3 D4 Fd4",
    "E3 A3 B3",
    // E♭
    "Dd3 G3 Ad3",
    "Dd3 Fd3 Ad3",
    "Dd3 G3 B3",
    "Dd3 Fd3 A3 C4",
    "Dd3 G3 Ad3 C4",
    "Dd3 Fd3 Ad3 C4",
    "Dd3 G3 Ad3 Cd4",
    "Dd3 G3 Ad3 D4",
    "Dd3 Fd3 Ad3 Cd4",
    "Dd3 G3 Ad3 Cd4 F4",
    "Dd3 Gd3 Ad3",
    // F
    "F3 A3 C4",
    "F3 Gd3 C4",
    "F3 A3 Cd4",
    "F3 Gd3 B3 D4",
    "F3 A3 C4 D4",
    "F3 Gd3 C4 D4",
    "F3 A3 C4 Dd4",
    "F3 A3 C4 E4",
    "F3 Gd3 C4 Dd4",
    "F3 A3 C4 Dd4 G4",
    "F3 Ad3 C4",
    // G
    "G3 B3 D4",
    "G3 Ad3 D4",
    "G3 B3 Dd4",
    "G3 Ad3 Cd4 E4",
    "G3 B3 D4 E4",
    "G3 Ad3 D4 E4",
    "G3 B3 D4 F4",
    "G3 B3 D4 Fd4",
    "G3 Ad3 D4 F4",
    "G3 B3 D4 F4 A4",
    "G3 C4 D4",
    // G♭
    "Fd3 Ad3 Cd4",
    "Fd3 A3 Cd4",
    "Fd3 Ad3 D4",
    "Fd3 A3 C4 Dd4",
    "Fd3 Ad3 Cd4 Dd4",
    "Fd3 A3 Cd4 Dd4",
    "Fd3 Ad3 Cd4 E4",
    "Fd3 Ad3 Cd4 F4",
    "Fd3 A3 Cd4 E4",
    "Fd3 Ad3 Cd4 E4 Gd4",
    "Fd3 B3 Cd4",
};

// clang-format on

QVector<int> parseStringRow(const char* text)
{
    const QString row = QString::fromLatin1(text);
    QVector<int> result;
    const auto entry = [](const QString& part) { return part == QLatin1String("x") ? -1 : part.toInt(); };
    if (row.contains(QLatin1Char(' '))) {
        for (const QString& part : row.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            result.append(entry(part));
    } else {
        for (const QChar c : row)
            result.append(entry(QString(c)));
    }
    return result;
}

const char* const kPitchClasses[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };

// "Cd4" to its MIDI note, -1 if it is no stem.
int stemNote(const QString& stem)
{
    for (int pc = 11; pc >= 0; --pc) {
        const QString name = QLatin1String(kPitchClasses[pc]);
        if (!stem.startsWith(name))
            continue;
        bool ok = false;
        const int octave = stem.mid(name.size()).toInt(&ok);
        return ok ? (octave + 1) * 12 + pc : -1;
    }
    return -1;
}

QVector<int> parsePianoRow(const char* text)
{
    QVector<int> result(ChordTable::PianoKeyCount, -1);
    for (const QString& key : QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int index = stemNote(key) - ChordTable::PianoLowestNote;
        if (index >= 0 && index < ChordTable::PianoKeyCount)
            result[index] = 0;
    }
    return result;
}

} // namespace

// Fills the tables once, on first use.
class ChordTableBuilder
{
public:
    static ChordTable strings(const QString& key, const QString& prefix, const QVector<int>& openNotes,
        const QVector<int>& lastPositions, int delay, StringTable& table)
    {
        ChordTable result;
        result.key = key;
        result.samplePrefix = prefix;
        result.openNotes = openNotes;
        result.lastPositions = lastPositions;
        result.delay = delay;
        for (int root = 0; root < 12; ++root) {
            for (int type = 0; type < 11; ++type)
                result.m_rows.append(parseStringRow(table[root][type]));
        }
        return result;
    }

    static ChordTable piano()
    {
        ChordTable result;
        result.key = QStringLiteral("piano");
        result.samplePrefix = result.key;
        result.delay = 40;
        result.isPiano = true;
        for (const char* row : kPiano)
            result.m_rows.append(parsePianoRow(row));
        return result;
    }

    static QMap<QString, ChordTable> all()
    {
        QMap<QString, ChordTable> result;
        const auto add = [&result](const ChordTable& table) { result.insert(table.key, table); };
        // MIDI: E1 28, A1 33, D2 38, G2 43, E2 40, A2 45, D3 50, G3 55, B3 59,
        // C4 60, D4 62, E4 64, G4 67, A4 69, E5 76.
        add(strings(QStringLiteral("guitar"), QStringLiteral("guitar"), { 40, 45, 50, 55, 59, 64 },
            { 8, 8, 8, 8, 8, 8 }, 30, kGuitar));
        add(strings(QStringLiteral("bass"), QStringLiteral("bass"), { 28, 33, 38, 43 }, { 8, 8, 8, 8 }, 80, kBass));
        ChordTable bass2 = strings(
            QStringLiteral("bass2"), QStringLiteral("bass"), { 28, 33, 38, 43 }, { 13, 13, 13, 13 }, 50, kBass2);
        bass2.fretCells = 8;
        bass2.firstFret = 5;
        add(bass2);
        add(strings(
            QStringLiteral("ukulele"), QStringLiteral("ukulele"), { 67, 60, 64, 69 }, { 6, 6, 6, 6 }, 30, kUkulele));
        add(strings(
            QStringLiteral("mandolin"), QStringLiteral("mandolin"), { 55, 62, 69, 76 }, { 8, 8, 8, 8 }, 30, kMandolin));
        add(strings(
            QStringLiteral("banjo"), QStringLiteral("banjo"), { 67, 50, 55, 59, 62 }, { 11, 8, 8, 8, 8 }, 30, kBanjo));
        add(strings(
            QStringLiteral("balalaika"), QStringLiteral("balalaika"), { 64, 64, 69 }, { 9, 9, 9 }, 40, kBalalaika));
        add(piano());
        return result;
    }
};

QStringList ChordTable::keys()
{
    return { QStringLiteral("guitar"), QStringLiteral("bass"), QStringLiteral("bass2"), QStringLiteral("ukulele"),
        QStringLiteral("mandolin"), QStringLiteral("banjo"), QStringLiteral("balalaika"), QStringLiteral("piano") };
}

const ChordTable& ChordTable::forKey(const QString& key)
{
    static const QMap<QString, ChordTable> tables = ChordTableBuilder::all();
    static const ChordTable empty;
    const auto found = tables.constFind(key);
    return found == tables.constEnd() ? empty : found.value();
}

int ChordTable::entryCount() const
{
    return isPiano ? int(PianoKeyCount) : openNotes.size();
}

QVector<int> ChordTable::row(int chord) const
{
    return m_rows.value(chord);
}

int ChordTable::noteAt(int entry, int value) const
{
    if (isPiano)
        return entry >= 0 && entry < PianoKeyCount && value == 0 ? PianoLowestNote + entry : -1;
    if (entry < 0 || entry >= openNotes.size() || value < 0 || value > lastPositions.value(entry))
        return -1;
    return openNotes.at(entry) + value;
}

QString ChordTable::stemAt(int entry, int value) const
{
    const int note = noteAt(entry, value);
    return note < 0 ? QString() : stem(note);
}

QString ChordTable::stem(int midiNote)
{
    if (midiNote < 0)
        return QString();
    return QLatin1String(kPitchClasses[midiNote % 12]) + QString::number(midiNote / 12 - 1);
}

} // namespace QMMusic
