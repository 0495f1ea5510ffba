// Checks the staff pictures as the staff widget uses them: the clefs drawn
// into squares from line 8 and line 16 must sit on their reference lines,
// the head must fill its picture's height, and each sign button must exist
// in a plain and a visibly different selected form.
#include <QImage>
#include <QtTest>

namespace {

// Bounding box of the pixels that carry ink (alpha above half).
QRect inkBounds(const QImage& image, const QRect& area)
{
    int left = area.right() + 1, right = area.left() - 1, top = area.bottom() + 1, bottom = area.top() - 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 127) {
                left = qMin(left, x);
                right = qMax(right, x);
                top = qMin(top, y);
                bottom = qMax(bottom, y);
            }
        }
    }
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

// Runs of inked rows within a band of columns, as (first, last) pairs.
QVector<QPair<int, int>> inkedRowRuns(const QImage& image, int fromX, int toX)
{
    QVector<QPair<int, int>> runs;
    int start = -1;
    for (int y = 0; y < image.height(); ++y) {
        bool ink = false;
        for (int x = fromX; x <= toX && !ink; ++x)
            ink = qAlpha(image.pixel(x, y)) > 127;
        if (ink && start < 0)
            start = y;
        if (!ink && start >= 0) {
            runs.append(qMakePair(start, y - 1));
            start = -1;
        }
    }
    if (start >= 0)
        runs.append(qMakePair(start, image.height() - 1));
    return runs;
}

} // namespace

class TestStaffArt : public QObject
{
    Q_OBJECT

private slots:
    void clefExtent_data();
    void clefExtent();
    void bassClefDotsAroundTheFLine();
    void noteHead();
    void signButtons_data();
    void signButtons();
};

void TestStaffArt::clefExtent_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<int>("space");
    QTest::addColumn<int>("topMin");
    QTest::addColumn<int>("topMax");
    QTest::addColumn<int>("bottomMin");
    QTest::addColumn<int>("bottomMax");

    // Treble: square of 8 spaces from line 8; staff lines at rows 128..384.
    // The clef rises about 1.8 spaces over the top line and hangs about 1.5
    // below the bottom line, as engraved.
    QTest::newRow("treble clef") << ":/violinkey.png" << 64 << 0 << 40 << 460 << 505;
    // Bass: square of 4 spaces from line 16 (its top line); the clef starts
    // at the top line and ends about two spaces below the F line (row 128).
    QTest::newRow("bass clef") << ":/basskey.png" << 128 << 0 << 6 << 370 << 400;
}

void TestStaffArt::clefExtent()
{
    QFETCH(QString, resource);
    QFETCH(int, space);
    QFETCH(int, topMin);
    QFETCH(int, topMax);
    QFETCH(int, bottomMin);
    QFETCH(int, bottomMax);
    const QImage image(resource);
    QCOMPARE(image.size(), QSize(512, 512));
    const QRect ink = inkBounds(image, image.rect());
    QVERIFY2(ink.top() >= topMin && ink.top() <= topMax, qPrintable(QString::number(ink.top())));
    QVERIFY2(ink.bottom() >= bottomMin && ink.bottom() <= bottomMax, qPrintable(QString::number(ink.bottom())));
    // Half a space of air at the left edge, where the staff begins.
    QVERIFY2(qAbs(ink.left() - space / 2) <= 3, qPrintable(QString::number(ink.left())));
}

void TestStaffArt::bassClefDotsAroundTheFLine()
{
    const QImage image(QStringLiteral(":/basskey.png"));
    QVERIFY(!image.isNull());
    const QRect ink = inkBounds(image, image.rect());
    // The dots are the rightmost ink, clear of the clef's body.
    const QVector<QPair<int, int>> runs = inkedRowRuns(image, ink.right() - 20, ink.right());
    QCOMPARE(runs.size(), 2);
    const int fLine = 128;
    const qreal upper = (runs.at(0).first + runs.at(0).second) / 2.0;
    const qreal lower = (runs.at(1).first + runs.at(1).second) / 2.0;
    QVERIFY2(upper < fLine && lower > fLine, qPrintable(QStringLiteral("%1 %2").arg(upper).arg(lower)));
    QVERIFY2(qAbs((upper + lower) / 2.0 - fLine) <= 3.0, qPrintable(QStringLiteral("%1 %2").arg(upper).arg(lower)));
}

void TestStaffArt::noteHead()
{
    const QImage image(QStringLiteral(":/note.png"));
    QCOMPARE(image.size(), QSize(512, 320));
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QVERIFY(qAlpha(image.pixel(256, 160)) == 255 && qGray(image.pixel(256, 160)) < 20);
    const QRect ink = inkBounds(image, image.rect());
    // One staff space high: the head fills the height, centred both ways.
    QVERIFY2(
        ink.top() <= 3 && ink.bottom() >= 316, qPrintable(QStringLiteral("%1 %2").arg(ink.top()).arg(ink.bottom())));
    QVERIFY(qAbs(ink.center().x() - 256) <= 3);
    QVERIFY(ink.width() > 256 && ink.width() < 450);
}

void TestStaffArt::signButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("flat") << "flatsign";
    QTest::newRow("sharp") << "sharpsign";
    QTest::newRow("natural") << "naturalsign";
}

void TestStaffArt::signButtons()
{
    QFETCH(QString, name);
    const QImage plain(QStringLiteral(":/") + name + QStringLiteral(".png"));
    const QImage framed(QStringLiteral(":/") + name + QStringLiteral("_framed.png"));
    QVERIFY(!plain.isNull());
    QCOMPARE(framed.size(), plain.size());
    QCOMPARE(plain.width(), plain.height());
    // A rounded tile: transparent corner, opaque middle holding a dark sign.
    QCOMPARE(qAlpha(plain.pixel(0, 0)), 0);
    const QRect middle(plain.width() / 4, plain.height() / 4, plain.width() / 2, plain.height() / 2);
    int dark = 0;
    for (int y = middle.top(); y <= middle.bottom(); ++y) {
        for (int x = middle.left(); x <= middle.right(); ++x) {
            QCOMPARE(qAlpha(plain.pixel(x, y)), 255);
            if (qGray(plain.pixel(x, y)) < 100)
                ++dark;
        }
    }
    QVERIFY2(dark > 40, qPrintable(QString::number(dark)));
    // The selected form differs along its edge, where the frame is.
    int changedEdge = 0;
    const int row = plain.height() / 2;
    for (int x = 0; x < 8; ++x) {
        if (plain.pixel(x, row) != framed.pixel(x, row))
            ++changedEdge;
    }
    QVERIFY(changedEdge >= 3);
}

QTEST_GUILESS_MAIN(TestStaffArt)
#include "tst_staffart.moc"
