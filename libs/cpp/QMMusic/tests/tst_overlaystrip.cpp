#include "OverlayStrip.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

using QMMusic::OverlayStrip;

namespace {

struct Mark
{
    QRect rect;
    QRgb colour;
};

QImage overlayWith(const QList<Mark>& marks, const QSize& size = QSize(800, 100))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(0);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const Mark& mark : marks)
        painter.fillRect(mark.rect, QColor::fromRgba(mark.colour));
    return image;
}

const QRgb kBlue = qRgba(80, 208, 224, 255);

// First and last column holding anything but the transparent ground, or -1.
QPair<int, int> paintedColumns(const QImage& image)
{
    int first = -1, last = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != 0) {
                if (first < 0)
                    first = x;
                last = x;
                break;
            }
        }
    }
    return qMakePair(first, last);
}

} // namespace

Q_DECLARE_METATYPE(Mark)

class TestOverlayStrip : public QObject
{
    Q_OBJECT

private slots:
    void findMarkColumn_data();
    void findMarkColumn();
    void keepStrip_data();
    void keepStrip();
};

void TestOverlayStrip::findMarkColumn_data()
{
    QTest::addColumn<QList<Mark>>("marks");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("column");

    const Mark upperLeft { QRect(90, 10, 21, 21), kBlue };
    const Mark lowerMiddle { QRect(590, 50, 21, 21), kBlue };

    QTest::newRow("nearest edge of a mark left of the start") << QList<Mark> { upperLeft } << 300 << 110;
    QTest::newRow("start inside a mark") << QList<Mark> { upperLeft } << 100 << 100;
    QTest::newRow("lowest row wins over the nearest mark")
        << QList<Mark> { { QRect(500, 80, 5, 5), kBlue }, { QRect(690, 10, 5, 5), kBlue } } << 700 << 504;
    QTest::newRow("nothing to the left: walk right") << QList<Mark> { lowerMiddle } << 300 << 590;
    QTest::newRow("right walk also takes the lowest row")
        << QList<Mark> { { QRect(400, 10, 5, 5), kBlue }, { QRect(700, 60, 5, 5), kBlue } } << 200 << 700;
    QTest::newRow("red alone makes a mark")
        << QList<Mark> { { QRect(200, 40, 3, 3), qRgba(60, 0, 0, 255) } } << 400 << 202;
    QTest::newRow("green alone is no mark")
        << QList<Mark> { { QRect(200, 40, 3, 3), qRgba(0, 255, 0, 255) } } << 400 << -1;
    QTest::newRow("a mark at column 0 makes the walk go right")
        << QList<Mark> { { QRect(0, 20, 1, 1), kBlue }, { QRect(650, 10, 4, 4), kBlue } } << 300 << 650;
}

void TestOverlayStrip::findMarkColumn()
{
    QFETCH(QList<Mark>, marks);
    QFETCH(int, start);
    QFETCH(int, column);
    QCOMPARE(OverlayStrip::findMarkColumn(overlayWith(marks), start), column);
}

void TestOverlayStrip::keepStrip_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("firstKept");
    QTest::addColumn<int>("lastKept");

    // Marks at columns 90..110 (upper), 590..610 (lower) and a small one at
    // 660..670 near the top, 50 columns right of the lower one.
    QTest::newRow("start right of all marks keeps the lowest") << qreal(1) << 700 << 590 << 610;
    QTest::newRow("double ratio keeps a strip twice as wide") << qreal(2) << 700 << 590 << 670;
    QTest::newRow("start between the marks keeps the upper one") << qreal(1) << 300 << 90 << 110;
    QTest::newRow("start left of all marks walks right") << qreal(1) << 50 << 590 << 610;
}

void TestOverlayStrip::keepStrip()
{
    QFETCH(qreal, ratio);
    QFETCH(int, start);
    QFETCH(int, firstKept);
    QFETCH(int, lastKept);

    const QImage source = overlayWith(
        { { QRect(90, 10, 21, 21), kBlue }, { QRect(590, 50, 21, 21), kBlue }, { QRect(660, 5, 11, 4), kBlue } });
    QPixmap overlay = QPixmap::fromImage(source);
    // As loaded from an "@2x" file: the strip is still measured in pixels.
    overlay.setDevicePixelRatio(2.0);
    const QPixmap strip = OverlayStrip::keepStrip(overlay, start, ratio);
    QCOMPARE(strip.size(), source.size());
    QCOMPARE(strip.devicePixelRatio(), 1.0 / ratio);
    const QPair<int, int> kept = paintedColumns(strip.toImage().convertToFormat(QImage::Format_ARGB32));
    QCOMPARE(kept.first, firstKept);
    QCOMPARE(kept.second, lastKept);
}

QTEST_MAIN(TestOverlayStrip)
#include "tst_overlaystrip.moc"
