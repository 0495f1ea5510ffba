#include "DesktopIconArt.h"

#include <QXmlStreamReader>
#include <QtTest>

namespace {

// Pixels close to the colour, alpha included.
int pixelsNear(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() > 200 && qAbs(pixel.red() - color.red()) < 40 && qAbs(pixel.green() - color.green()) < 40
                && qAbs(pixel.blue() - color.blue()) < 40)
                ++count;
        }
    }
    return count;
}

} // namespace

class TestDesktopIconArt : public QObject
{
    Q_OBJECT

private slots:
    void everySizeShowsTheTileTheNeckAndTheMark_data()
    {
        QTest::addColumn<int>("size");
        for (int size : DesktopIconArt::sizes())
            QTest::newRow(qPrintable(QStringLiteral("%1 px").arg(size))) << size;
    }

    // At every size the mark, the neck and a string must each keep some
    // whole pixels of their own, and the tile's corners stay see-through.
    void everySizeShowsTheTileTheNeckAndTheMark()
    {
        QFETCH(int, size);
        const QImage icon = DesktopIconArt::png(size).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(icon.size(), QSize(size, size));
        QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(icon.pixelColor(size - 1, size - 1).alpha(), 0);
        const int minimum = qMax(1, size * size / 400);
        QVERIFY2(pixelsNear(icon, QColor(0x38, 0xd6, 0xf0)) >= minimum, "the mark");
        QVERIFY2(pixelsNear(icon, QColor(0x6a, 0x3d, 0x22)) >= minimum, "the neck");
        QVERIFY2(pixelsNear(icon, QColor(0xf4, 0xe7, 0xc8)) >= minimum, "a string");
    }

    void everyFigureKeepsItsMarkAndItsLines_data()
    {
        QTest::addColumn<int>("figure");
        QTest::addColumn<int>("size");
        const struct
        {
            const char* name;
            DesktopIconArt::Motif motif;
        } figures[]
            = { { "tuning fork", DesktopIconArt::tuningFork() }, { "chord diagram", DesktopIconArt::chordDiagram() } };
        for (const auto& figure : figures) {
            for (int size : DesktopIconArt::sizes())
                QTest::newRow(qPrintable(QStringLiteral("%1, %2 px").arg(QLatin1String(figure.name)).arg(size)))
                    << figure.motif.strings << size;
        }
    }

    // The tuners' fork rings in the mark's colour and the chords' fingers
    // are dots of it; both keep whole pixels of the mark and of the light
    // lines (prongs, frets, strings) down to 16 px, on a tile whose corners
    // stay see-through.
    void everyFigureKeepsItsMarkAndItsLines()
    {
        QFETCH(int, figure);
        QFETCH(int, size);
        const QImage icon = DesktopIconArt::png(size, { figure, false }).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(icon.pixelColor(size - 1, 0).alpha(), 0);
        const int minimum = qMax(2, size * size / 200);
        QVERIFY2(pixelsNear(icon, QColor(0x38, 0xd6, 0xf0)) >= minimum, "the mark");
        QVERIFY2(pixelsNear(icon, QColor(0xd8, 0xd8, 0xd0)) + pixelsNear(icon, QColor(0xf4, 0xe7, 0xc8)) >= minimum,
            "the light lines");
        QVERIFY(DesktopIconArt::png(size, { figure, false }) != DesktopIconArt::png(size, DesktopIconArt::metronome()));
    }

    void svgIsWellFormedAndSquare()
    {
        QXmlStreamReader reader(DesktopIconArt::svg());
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), QStringLiteral("svg"));
        QCOMPARE(reader.attributes().value(QStringLiteral("viewBox")).toString(), QStringLiteral("0 0 256 256"));
        int shapes = 0;
        while (reader.readNextStartElement()) {
            ++shapes;
            reader.skipCurrentElement();
        }
        QVERIFY(!reader.hasError());
        QVERIFY(shapes > 10);
    }
};

QTEST_MAIN(TestDesktopIconArt)
#include "tst_desktopiconart.moc"
