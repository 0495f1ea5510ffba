#include "GuitarFretMap.h"
#include "NeckGeometry.h"
#include "NoteSpelling.h"

#include <QImage>
#include <QtTest>

using QMMusic::GuitarFretMap;
using QMMusic::NeckGeometry;
using QMMusic::NoteSpelling;

namespace {

const double kSx = 2048.0 / 800.0;
const double kSy = 497.0 / 194.0;

struct Blob
{
    QPointF centre;
    QRect bounds;
};

// Connected areas of non-transparent pixels.
QList<Blob> blobs(const QImage& image)
{
    QList<Blob> result;
    QVector<bool> seen(image.width() * image.height(), false);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (seen[y * image.width() + x] || qAlpha(image.pixel(x, y)) == 0)
                continue;
            double sx = 0, sy = 0;
            int count = 0;
            QRect bounds(x, y, 1, 1);
            QVector<QPoint> stack { QPoint(x, y) };
            seen[y * image.width() + x] = true;
            while (!stack.isEmpty()) {
                const QPoint p = stack.takeLast();
                sx += p.x();
                sy += p.y();
                ++count;
                bounds |= QRect(p, QSize(1, 1));
                const QPoint around[4] = { p + QPoint(1, 0), p - QPoint(1, 0), p + QPoint(0, 1), p - QPoint(0, 1) };
                for (const QPoint& q : around) {
                    if (!image.rect().contains(q) || seen[q.y() * image.width() + q.x()] || qAlpha(image.pixel(q)) == 0)
                        continue;
                    seen[q.y() * image.width() + q.x()] = true;
                    stack.append(q);
                }
            }
            result.append({ QPointF(sx / count, sy / count), bounds });
        }
    }
    return result;
}

// Stem of the note this many semitones above E2.
QString stemAbove(int semitones)
{
    static const char* const classes[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };
    const int pitch = semitones + 4 + 2 * 12;
    return QLatin1String(classes[pitch % 12]) + QString::number(pitch / 12);
}

} // namespace

class TestNeckArt : public QObject
{
    Q_OBJECT

private slots:
    void knownMarkCounts_data();
    void knownMarkCounts();
    void overlay_data();
    void overlay();
    void stringsFollowTheBoxes_data();
    void stringsFollowTheBoxes();
    void fretWiresBetweenColumns();
};

void TestNeckArt::knownMarkCounts_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<int>("marks");
    QTest::newRow("E4: open string 1 and four fretted places") << "E4" << 5;
    QTest::newRow("E2: open string 6 only") << "E2" << 1;
    QTest::newRow("D6: fret 22 of string 1 only") << "D6" << 1;
}

void TestNeckArt::knownMarkCounts()
{
    QFETCH(QString, stem);
    QFETCH(int, marks);
    const QImage image(QStringLiteral(":/Guitar_%1@2x.png").arg(stem));
    QVERIFY(!image.isNull());
    QCOMPARE(blobs(image.convertToFormat(QImage::Format_ARGB32)).size(), marks);
}

void TestNeckArt::overlay_data()
{
    QTest::addColumn<QString>("stem");
    for (int semitones = 0; semitones <= 46; ++semitones)
        QTest::newRow(qPrintable(stemAbove(semitones))) << stemAbove(semitones);
}

void TestNeckArt::overlay()
{
    QFETCH(QString, stem);
    const QImage large = QImage(QStringLiteral(":/Guitar_%1@2x.png").arg(stem)).convertToFormat(QImage::Format_ARGB32);
    const QImage small = QImage(QStringLiteral(":/Guitar_%1.png").arg(stem)).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(large.size(), QSize(2048, 497));
    QCOMPARE(small.size(), QSize(800, 194));

    // The ground is exactly transparent black, so that only marks count.
    for (int y = 0; y < large.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(large.constScanLine(y));
        for (int x = 0; x < large.width(); ++x) {
            if (qAlpha(line[x]) == 0 && line[x] != 0)
                QFAIL(qPrintable(QStringLiteral("ground pixel %1,%2 is %3").arg(x).arg(y).arg(line[x], 8, 16)));
        }
    }

    // One mark at every place of the stem on the neck, far end excluded:
    // the open string is marked at the nut. A mark sits on its string at the
    // fret's box, no wider than the 37 px that training's strip can hold whole.
    const NeckGeometry geometry;
    QList<QPointF> places;
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        for (int column = 0; column < GuitarFretMap::ColumnCount - 1; ++column) {
            if (NoteSpelling::positionStem(GuitarFretMap::positionName(string, column)) != stem)
                continue;
            const double x = GuitarFretMap::centre(string, column).x();
            places.append(QPointF(x, geometry.stringY(string, x)));
        }
    }
    const QList<Blob> found = blobs(large);
    QCOMPARE(found.size(), places.size());
    QCOMPARE(blobs(small).size(), places.size());

    for (const Blob& blob : found) {
        const QPointF design(blob.centre.x() / kSx, blob.centre.y() / kSy);
        const auto hit = std::find_if(places.cbegin(), places.cend(), [&design](const QPointF& place) {
            return qAbs(place.x() - design.x()) < 0.5 && qAbs(place.y() - design.y()) < 0.5;
        });
        QVERIFY2(hit != places.cend(), qPrintable(QStringLiteral("mark at %1,%2").arg(design.x()).arg(design.y())));
        places.removeOne(*hit);

        QVERIFY2(
            blob.bounds.width() >= 20 && blob.bounds.width() <= 37, qPrintable(QString::number(blob.bounds.width())));
        QVERIFY2(blob.bounds.height() >= 20 && blob.bounds.height() <= 37,
            qPrintable(QString::number(blob.bounds.height())));
        // A cyan ring with a see-through middle, where the string shows.
        QVERIFY(qAlpha(large.pixel(blob.centre.toPoint())) < 128);
        QRgb strongest = 0;
        for (int y = blob.bounds.top(); y <= blob.bounds.bottom(); ++y) {
            for (int x = blob.bounds.left(); x <= blob.bounds.right(); ++x) {
                if (qAlpha(large.pixel(x, y)) > qAlpha(strongest))
                    strongest = large.pixel(x, y);
            }
        }
        QVERIFY2(qAlpha(strongest) > 200 && qRed(strongest) < 120 && qGreen(strongest) > 180 && qBlue(strongest) > 200,
            qPrintable(QString::number(strongest, 16)));
    }
}

void TestNeckArt::stringsFollowTheBoxes_data()
{
    QTest::addColumn<int>("string");
    for (int string = 1; string <= 6; ++string)
        QTest::newRow(qPrintable(QStringLiteral("string %1").arg(string))) << string;
}

// At every box of a string, the drawn string passes through the box: a
// bright line within the box's height, darker wood halfway to the next string.
void TestNeckArt::stringsFollowTheBoxes()
{
    QFETCH(int, string);
    const NeckGeometry geometry;
    QVERIFY(geometry.worstMiss() < 3.5);
    const QImage neck(QStringLiteral(":/Guitar_0@2x.jpg"));
    QVERIFY(!neck.isNull());

    for (int column = 1; column < GuitarFretMap::ColumnCount - 1; ++column) {
        const QPoint centre = GuitarFretMap::centre(string, column);
        const int x = int(centre.x() * kSx);
        int brightest = 0;
        for (int y = int((centre.y() - 4) * kSy); y <= int((centre.y() + 4) * kSy); ++y)
            brightest = qMax(brightest, qGray(neck.pixel(x, y)));
        const double between = string < 6
            ? (geometry.stringY(string, centre.x()) + geometry.stringY(string + 1, centre.x())) / 2
            : geometry.stringY(string, centre.x()) - geometry.spacing(centre.x()) / 2;
        // Inlays brighten the wood between the strings at these frets.
        const bool inlay = QList<int> { 3, 5, 7, 9, 12, 15, 17, 19, 21 }.contains(column);
        const int wood = inlay ? 0 : qGray(neck.pixel(x, int(between * kSy)));
        QVERIFY2(brightest > 140 && wood < brightest - 60,
            qPrintable(QStringLiteral("column %1: string %2, wood %3").arg(column).arg(brightest).arg(wood)));
    }
}

// A nickel wire stands midway between neighbouring columns, and none in the
// middle of a column.
void TestNeckArt::fretWiresBetweenColumns()
{
    const QImage neck(QStringLiteral(":/Guitar_0@2x.jpg"));
    QCOMPARE(neck.size(), QSize(2048, 497));
    QCOMPARE(QImage(QStringLiteral(":/Guitar_0.jpg")).size(), QSize(800, 194));
    for (int column = 1; column < GuitarFretMap::ColumnCount - 1; ++column) {
        const QPoint left = GuitarFretMap::centre(1, column);
        const QPoint right = GuitarFretMap::centre(1, column + 1);
        const double y = (GuitarFretMap::centre(1, column).y() + GuitarFretMap::centre(2, column).y()) / 2.0;
        const int wireX = int((left.x() + right.x()) / 2.0 * kSx);
        int wire = 0;
        for (int x = wireX - 5; x <= wireX + 5; ++x)
            wire = qMax(wire, qGray(neck.pixel(x, int(y * kSy))));
        const int cell = qGray(neck.pixel(int(left.x() * kSx), int(y * kSy)));
        QVERIFY2(wire > 150 && cell < 110,
            qPrintable(QStringLiteral("fret %1: wire %2, cell %3").arg(column).arg(wire).arg(cell)));
    }
}

QTEST_MAIN(TestNeckArt)
#include "tst_neckart.moc"
