#include "OverlayStrip.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

#include <algorithm>

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

bool isMarkPixel(QRgb pixel)
{
    return qBlue(pixel) > 50 || qRed(pixel) > 50;
}

// Column ranges of the marks of an overlay: its connected areas of mark pixels.
QVector<QPair<int, int>> markExtents(const QImage& image)
{
    QVector<QPair<int, int>> extents;
    QVector<bool> seen(image.width() * image.height(), false);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (seen[y * image.width() + x] || !isMarkPixel(image.pixel(x, y)))
                continue;
            QPair<int, int> extent(x, x);
            QVector<QPoint> open { QPoint(x, y) };
            seen[y * image.width() + x] = true;
            while (!open.isEmpty()) {
                const QPoint p = open.takeLast();
                extent.first = qMin(extent.first, p.x());
                extent.second = qMax(extent.second, p.x());
                for (int dy = -1; dy <= 1; ++dy) {
                    for (int dx = -1; dx <= 1; ++dx) {
                        const QPoint q(p.x() + dx, p.y() + dy);
                        if (!image.rect().contains(q) || seen[q.y() * image.width() + q.x()]
                            || !isMarkPixel(image.pixel(q)))
                            continue;
                        seen[q.y() * image.width() + q.x()] = true;
                        open.append(q);
                    }
                }
            }
            extents.append(extent);
        }
    }
    return extents;
}

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
    void everyStartShowsAWholeMark_data();
    void everyStartShowsAWholeMark();
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

void TestOverlayStrip::everyStartShowsAWholeMark_data()
{
    QTest::addColumn<QString>("overlay");
    QTest::addColumn<qreal>("ratio");

    const QStringList overlays = QDir(QStringLiteral(":/")).entryList({ QStringLiteral("Guitar_*@2x.png") });
    QCOMPARE(overlays.size(), 47);
    for (const QString& overlay : overlays) {
        for (qreal ratio : { 1.0, 2.0 })
            QTest::addRow("%s at %gx", qPrintable(overlay), ratio) << overlay << ratio;
    }
}

// Whatever column training starts its search from, the strip it keeps holds
// one whole mark of the note: every start column of every overlay, at 1x and
// 2x. The search is redone here over sorted mark columns per row, checked
// against the real one every 61 columns, so that all 2048 starts stay quick.
void TestOverlayStrip::everyStartShowsAWholeMark()
{
    QFETCH(QString, overlay);
    QFETCH(qreal, ratio);

    const QImage image = QImage(QStringLiteral(":/") + overlay).convertToFormat(QImage::Format_ARGB32);
    QVERIFY(!image.isNull());
    const QVector<QPair<int, int>> marks = markExtents(image);
    QVERIFY(!marks.isEmpty());
    QVector<QVector<int>> rows(image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isMarkPixel(image.pixel(x, y)))
                rows[y].append(x);
        }
    }

    for (int start = 0; start < image.width(); ++start) {
        int found = -1;
        for (const QVector<int>& row : qAsConst(rows)) {
            const auto after = std::upper_bound(row.begin(), row.end(), start);
            if (after != row.begin())
                found = *(after - 1);
        }
        if (found <= 0) {
            for (const QVector<int>& row : qAsConst(rows)) {
                const auto at = std::lower_bound(row.begin(), row.end(), start);
                if (at != row.end())
                    found = *at;
            }
        }
        if (start % 61 == 0)
            QCOMPARE(OverlayStrip::findMarkColumn(image, start), found);

        const int keptFrom = int(found - 40 * ratio);
        const int keptTo = int(found + 40 * ratio) - 1;
        const bool whole = std::any_of(marks.begin(), marks.end(),
            [=](const QPair<int, int>& mark) { return mark.first >= keptFrom && mark.second <= keptTo; });
        QVERIFY2(whole, qPrintable(QStringLiteral("start column %1, found %2").arg(start).arg(found)));
    }
}

QTEST_MAIN(TestOverlayStrip)
#include "tst_overlaystrip.moc"
