#include "App.h"
#include "ChordDiagram.h"
#include "ChordName.h"
#include "ChordPhotoView.h"
#include "ChordPictures.h"
#include "ChordStandardView.h"
#include "ChordTabView.h"
#include "ChordTable.h"
#include "ChordView.h"

#include <QDir>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMusic;

namespace {

QString describe(const QLine& line)
{
    return QStringLiteral("%1,%2-%3,%4").arg(line.x1()).arg(line.y1()).arg(line.x2()).arg(line.y2());
}

QStringList describe(const ChordDiagram& d)
{
    QStringList parts;
    for (const QLine& line : d.strings)
        parts.append("string " + describe(line));
    for (const QLine& line : d.bars)
        parts.append("bar " + describe(line));
    for (const ChordDiagram::Text& text : d.texts)
        parts.append(QStringLiteral("text %1 at %2,%3").arg(text.text).arg(text.at.x()).arg(text.at.y()));
    const char* const kinds[] = { "dot", "open", "cross" };
    for (const ChordDiagram::Mark& mark : d.marks) {
        parts.append(QStringLiteral("%1 %2,%3 %4x%5")
                         .arg(QLatin1String(kinds[mark.kind]))
                         .arg(mark.rect.x())
                         .arg(mark.rect.y())
                         .arg(mark.rect.width())
                         .arg(mark.rect.height()));
    }
    if (!d.nut.isNull())
        parts.append(QStringLiteral("nut %1 width %2").arg(describe(d.nut)).arg(d.nutWidth));
    return parts;
}

// The lines of a description that start with a word.
QStringList only(const QStringList& parts, const QString& word)
{
    QStringList result;
    for (const QString& part : parts) {
        if (part.startsWith(word + ' '))
            result.append(part);
    }
    return result;
}

} // namespace

class tst_ChordViews : public QObject
{
    Q_OBJECT

private slots:
    void neck_data();
    void neck();
    void tablature_data();
    void tablature();
    void pianoCode_data();
    void pianoCode();
    void photoNames_data();
    void photoNames();
    void everyRowHasItsPictures_data();
    void everyRowHasItsPictures();
    void dragWritesThePicture();
    void dragWithoutAFileDoesNothing();
    void missingPhotoLeavesTheGround();
    void chordViewHandsTheChordToAllThree();
};

void tst_ChordViews::neck_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVector<int>>("tab");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QStringList>("expected");

    // 300 by 160: six strings give a spacing of 150 / 7 = 21, cells of 40,
    // marks of 16.
    const QVector<int> aMajor { 0, 0, 2, 2, 2, 0 };
    QTest::newRow("guitar strings") << "guitar" << aMajor << "string"
                                    << QStringList { "string 30,31-270,31", "string 30,52-270,52",
                                           "string 30,73-270,73", "string 30,94-270,94", "string 30,115-270,115",
                                           "string 30,136-270,136" };
    QTest::newRow("guitar frets") << "guitar" << aMajor << "bar"
                                  << QStringList { "bar 30,31-30,136", "bar 70,31-70,136", "bar 110,31-110,136",
                                         "bar 150,31-150,136", "bar 190,31-190,136", "bar 230,31-230,136",
                                         "bar 270,31-270,136" };
    QTest::newRow("guitar fret numbers in the middle of the cells, below")
        << "guitar" << aMajor << "text"
        << QStringList { "text 1 at 47,157", "text 2 at 87,157", "text 3 at 127,157", "text 4 at 167,157",
               "text 5 at 207,157", "text 6 at 247,157" };
    QTest::newRow("A major: low string at the bottom, open circles left of the nut")
        << "guitar" << aMajor << "open" << QStringList { "open 10,128 16x16", "open 10,107 16x16", "open 10,23 16x16" };
    QTest::newRow("A major dots in the second cell")
        << "guitar" << aMajor << "dot" << QStringList { "dot 82,86 16x16", "dot 82,65 16x16", "dot 82,44 16x16" };
    QTest::newRow("muted strings are crosses")
        << "guitar" << QVector<int> { -1, 3, 2, 0, 1, 0 } << "cross" << QStringList { "cross 10,128 16x16" };
    QTest::newRow("the nut") << "guitar" << aMajor << "nut" << QStringList { "nut 30,31-30,136 width 8" };
    QTest::newRow("a fret beyond the cells lies past the last line, unclipped")
        << "guitar" << QVector<int> { 8, -1, -1, -1, -1, -1 } << "dot" << QStringList { "dot 322,128 16x16" };

    // Four strings: spacing 150 / 5 = 30; eight cells of 30 from fret 5.
    QTest::newRow("bass2 numbers from 5")
        << "bass2" << QVector<int> { 7, 10, 9, 7 } << "text"
        << QStringList { "text 5 at 42,160", "text 6 at 72,160", "text 7 at 102,160", "text 8 at 132,160",
               "text 9 at 162,160", "text 10 at 192,160", "text 11 at 222,160", "text 12 at 252,160" };
    QTest::newRow("bass2 dots counted from fret 5")
        << "bass2" << QVector<int> { 7, 10, 9, 7 } << "dot"
        << QStringList { "dot 97,122 16x16", "dot 187,92 16x16", "dot 157,62 16x16", "dot 97,32 16x16" };
    QTest::newRow("bass2 low positions fall left of the neck's start")
        << "bass2" << QVector<int> { 2, -1, 0, -1 } << "dot" << QStringList { "dot -53,122 16x16" };
    QTest::newRow("bass2 keeps the open circle")
        << "bass2" << QVector<int> { 2, -1, 0, -1 } << "open" << QStringList { "open 10,62 16x16" };
    QTest::newRow("bass2 has no nut") << "bass2" << QVector<int> { 7, 10, 9, 7 } << "nut" << QStringList();

    // Five strings: spacing 25; the banjo's frets end at the fourth row.
    QTest::newRow("banjo frets stop above the short string")
        << "banjo" << QVector<int> { 0, 0, 0, 0, 0 } << "nut" << QStringList { "nut 30,35-30,110 width 8" };
    QTest::newRow("banjo numbers below the fourth row")
        << "banjo" << QVector<int> { 0, 0, 0, 0, 0 } << "text"
        << QStringList { "text 1 at 47,135", "text 2 at 87,135", "text 3 at 127,135", "text 4 at 167,135",
               "text 5 at 207,135", "text 6 at 247,135" };
    QTest::newRow("an empty tab: no strings") << "guitar" << QVector<int>() << "string" << QStringList();
}

void tst_ChordViews::neck()
{
    QFETCH(QString, key);
    QFETCH(QVector<int>, tab);
    QFETCH(QString, part);
    QFETCH(QStringList, expected);

    const ChordDiagram d = ChordDiagram::neck(QSize(300, 160), key, tab);
    QCOMPARE(only(describe(d), part), expected);
    QCOMPARE(d.headingPixelSize, 29);
    QCOMPARE(d.textPixelSize, 20);
}

void tst_ChordViews::tablature_data()
{
    QTest::addColumn<QVector<int>>("tab");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QStringList>("expected");

    // Four strings: spacing 30, the last string on top.
    const QVector<int> aUkulele { 2, 1, 0, -1 };
    QTest::newRow("four lines") << aUkulele << "string"
                                << QStringList { "string 40,45-260,45", "string 40,75-260,75", "string 40,105-260,105",
                                       "string 40,135-260,135" };
    QTest::newRow("numbers, none for a muted string")
        << aUkulele << "text" << QStringList { "text 0 at 150,85", "text 1 at 150,115", "text 2 at 150,145" };
    QTest::newRow("double bar") << aUkulele << "bar" << QStringList { "bar 40,45-40,135", "bar 44,45-44,135" };
    QVector<int> six { 0, 0, 2, 2, 2, 0 };
    QTest::newRow("six lines spaced 21") << six << "bar" << QStringList { "bar 40,36-40,141", "bar 44,36-44,141" };
    QTest::newRow("twenty-four entries: spacing 6")
        << QVector<int>(24, -1) << "bar" << QStringList { "bar 40,21-40,159", "bar 44,21-44,159" };
}

void tst_ChordViews::tablature()
{
    QFETCH(QVector<int>, tab);
    QFETCH(QString, part);
    QFETCH(QStringList, expected);

    const ChordDiagram d = ChordDiagram::tablature(QSize(300, 160), tab);
    QCOMPARE(only(describe(d), part), expected);
    QCOMPARE(d.tabLettersPixelSize, 22 + tab.size() * 10 / 40);
    QCOMPARE(d.tabLetters.left(), 40);
    QCOMPARE(d.tabLetters.right(), 259);
}

void tst_ChordViews::pianoCode_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("code");

    QTest::newRow("A major") << QStringList { "A3", "Cd4", "E4" } << "X0XX0XXXX0XX";
    QTest::newRow("both octaves fold together") << QStringList { "C3", "C4", "B4" } << "0XXXXXXXXXX0";
    QTest::newRow("nothing down") << QStringList() << "XXXXXXXXXXXX";
}

void tst_ChordViews::pianoCode()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, code);

    QVector<int> tab(24, -1);
    for (int i = 0; i < 24; ++i) {
        if (keys.contains(ChordTable::stem(ChordTable::PianoLowestNote + i)))
            tab[i] = 0;
    }
    QCOMPARE(ChordPictures::pianoCode(tab), code);
    QCOMPARE(ChordPictures::photoName("piano", tab), "_resources/imgs/Chords/piano_" + code + ".jpg");
    QCOMPARE(ChordPictures::keysName(tab, true), "_resources/imgs/Chords/b_" + code + ".png");
}

void tst_ChordViews::photoNames_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("chord");
    QTest::addColumn<QString>("name");

    QTest::newRow("A major") << "guitar"
                             << "A"
                             << "guitar_002220.jpg";
    QTest::newRow("a muted string reads X") << "guitar"
                                            << "Aaug"
                                            << "guitar_X03221.jpg";
    QTest::newRow("two digits, no separator") << "bass2"
                                              << "C"
                                              << "bass2_87100.jpg";
    QTest::newRow("the banjo's muted short string") << "banjo"
                                                    << "A"
                                                    << "banjo_X2222.jpg";
    QTest::newRow("the piano by pitch classes") << "piano"
                                                << "G"
                                                << "piano_XX0XXXX0XXX0.jpg";
}

void tst_ChordViews::photoNames()
{
    QFETCH(QString, key);
    QFETCH(QString, chord);
    QFETCH(QString, name);

    const QString resource = ChordPictures::photoName(key, ChordTable::forKey(key).row(ChordName::indexOf(chord)));
    QCOMPARE(resource, "_resources/imgs/Chords/" + name);
    QVERIFY(!QImage(":/" + ChordPictures::libraryOffset() + resource).isNull());
}

void tst_ChordViews::everyRowHasItsPictures_data()
{
    QTest::addColumn<QString>("key");
    for (const QString& key : ChordTable::keys())
        QTest::newRow(qPrintable(key)) << key;
}

void tst_ChordViews::everyRowHasItsPictures()
{
    QFETCH(QString, key);
    const ChordTable& table = ChordTable::forKey(key);
    QStringList missing;
    for (int chord = 0; chord < ChordName::ChordCount; ++chord) {
        QStringList names { ChordPictures::photoName(key, table.row(chord)) };
        if (table.isPiano)
            names << ChordPictures::keysName(table.row(chord), false)
                  << ChordPictures::keysName(table.row(chord), true);
        for (const QString& name : names) {
            if (QImage(":/" + ChordPictures::libraryOffset() + name).isNull())
                missing.append(name);
        }
    }
    QCOMPARE(missing, QStringList());
}

void tst_ChordViews::dragWritesThePicture()
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    ChordStandardView view;
    view.resize(230, 140);
    view.setInstrumentName("guitar");
    view.setChordTabAndName(0, ChordTable::forKey("guitar").row(0), "A");
    QPixmap picture;
    QScopedPointer<QMimeData> data(view.writeDragPicture(&picture));
    QVERIFY(data);
    QCOMPARE(data->urls().size(), 1);
    const QString path = data->urls().first().toLocalFile();
    QVERIFY(path.startsWith(home.path()));
    QVERIFY(path.endsWith("/Chord.png"));
    QCOMPARE(data->urls().first().toString(), "file://" + path);
    const QImage written(path, "PNG");
    QCOMPARE(written.size(), QSize(230, 140));
    // The white ground and the black name were rendered.
    QCOMPARE(written.pixelColor(5, 139), QColor(Qt::white));
    QCOMPARE(picture.size(), written.size());
}

void tst_ChordViews::dragWithoutAFileDoesNothing()
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    ChordStandardView view;
    view.resize(100, 80);
    // A folder where the picture would go: the file cannot be opened.
    QDir().mkpath(QDir::cleanPath(home.path() + "/Library/" + QCoreApplication::applicationName() + "/Chord.png"));
    QVERIFY(!view.writeDragPicture(nullptr));
}

void tst_ChordViews::missingPhotoLeavesTheGround()
{
    ChordPhotoView view;
    view.resize(120, 160);
    view.setInstrumentName("harp");
    view.setChordTabAndName(0, { 1, 2, 3 }, "A");
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixelColor(60, 80), QColor(71, 71, 71));

    view.setInstrumentName("guitar");
    view.setChordTabAndName(0, ChordTable::forKey("guitar").row(0), "A");
    QVERIFY(view.grab().toImage().pixelColor(60, 80) != QColor(71, 71, 71));
}

void tst_ChordViews::chordViewHandsTheChordToAllThree()
{
    ChordView view;
    view.setInstrumentName("bass2");
    const QVector<int> tab = ChordTable::forKey("bass2").row(110);
    view.setChordTabAndName(110, tab, "G");
    for (ChordBaseView* child : { static_cast<ChordBaseView*>(view.standardView()),
             static_cast<ChordBaseView*>(view.tabView()), static_cast<ChordBaseView*>(view.photoView()) }) {
        QCOMPARE(child->chord(), 110);
        QCOMPARE(child->chordTab(), tab);
        QCOMPARE(child->chordName(), QStringLiteral("G"));
        QCOMPARE(child->instrumentName(), QStringLiteral("bass2"));
    }
    QCOMPARE(view.instrumentLabel()->objectName(), QStringLiteral("InstrumentLabel_bass2"));
    QCOMPARE(view.instrumentLabel()->size(), QSize(40, 105));
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    // The programs look for the chord pictures below the library's offset.
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Chords"));
    app.setResourceOffset(ChordPictures::libraryOffset());
    tst_ChordViews test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_ChordViews.moc"
