#include "NotesLernBar.h"

#include <QPainter>
#include <QtTest>

#include <algorithm>

using QMMusic::NotesLernBar;

namespace {

enum class Tint
{
    Green,
    Red,
    Other
};

Tint tintOf(QRgb pixel)
{
    const int r = qRed(pixel);
    const int g = qGreen(pixel);
    const int b = qBlue(pixel);
    if (g > r + 40 && g > b + 40)
        return Tint::Green;
    if (r > g + 40 && r > b + 40)
        return Tint::Red;
    return Tint::Other;
}

// Pixels bright in all three channels: only the white text reaches them,
// the gradients peak at 220 in one channel and 90 in the others.
bool isWhite(QRgb p)
{
    return qRed(p) > 170 && qGreen(p) > 170 && qBlue(p) > 170;
}

// How many pixels of the bar's white text differ from the given text drawn
// white and centred on black in the bar's font.
int textDifference(const QImage& bar, const QString& text, const QFont& font)
{
    QImage expected(bar.size(), QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(expected.rect(), Qt::AlignCenter, text);
    painter.end();
    int count = 0;
    for (int y = 0; y < bar.height(); ++y) {
        for (int x = 0; x < bar.width(); ++x)
            count += isWhite(bar.pixel(x, y)) != isWhite(expected.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

QImage render(int right, int wrong, int width)
{
    NotesLernBar bar;
    bar.resize(width, 24);
    bar.setRightCount(right);
    bar.setWrongCount(wrong);
    return bar.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

class tst_NotesLernBar : public QObject
{
    Q_OBJECT

private slots:
    void arithmetic_data();
    void arithmetic();
    void renderedBar_data();
    void renderedBar();
    void noAnswersDrawsNothing();
};

void tst_NotesLernBar::arithmetic_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("red");

    // Shares of a third or a sixth are a hair low in single precision: both
    // parts truncate, leaving the last column uncovered.
    QTest::newRow("1 of 6 is 16, not 17") << 300 << 1 << 5 << "16%" << 49 << 250;
    QTest::newRow("199 of 200 stays below 100") << 200 << 199 << 1 << "99%" << 199 << 1;
    QTest::newRow("truncation leaves the last column") << 7 << 1 << 2 << "33%" << 2 << 4;
    QTest::newRow("1 of 3 on 100") << 100 << 1 << 2 << "33%" << 33 << 66;
}

void tst_NotesLernBar::arithmetic()
{
    QFETCH(int, width);
    QFETCH(int, right);
    QFETCH(int, wrong);
    QFETCH(QString, text);
    QFETCH(int, green);
    QFETCH(int, red);

    QCOMPARE(NotesLernBar::percentText(right, wrong), text);
    QCOMPARE(NotesLernBar::rightWidth(width, right, wrong), green);
    QCOMPARE(NotesLernBar::wrongWidth(width, right, wrong), red);
}

void tst_NotesLernBar::renderedBar_data()
{
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("greenColumns");
    QTest::addColumn<int>("redColumns");

    QTest::newRow("1 of 3") << 1 << 2 << "33%" << 99 << 200;
    QTest::newRow("2 of 3") << 2 << 1 << "66%" << 199 << 100;
    QTest::newRow("all wrong") << 0 << 3 << "0%" << 0 << 300;
    QTest::newRow("all right") << 3 << 0 << "100%" << 300 << 0;
}

// Renders the bar and reads back the colours of each column along the top
// edge, where no text is, and the white text against the expected string.
void tst_NotesLernBar::renderedBar()
{
    QFETCH(int, right);
    QFETCH(int, wrong);
    QFETCH(QString, text);
    QFETCH(int, greenColumns);
    QFETCH(int, redColumns);

    const int width = 300;
    const QImage image = render(right, wrong, width);
    QCOMPARE(image.width(), width);

    for (int x = 0; x < width; ++x) {
        const Tint expected = x < greenColumns ? Tint::Green : x < greenColumns + redColumns ? Tint::Red : Tint::Other;
        if (tintOf(image.pixel(x, 2)) != expected)
            QFAIL(qPrintable(QStringLiteral("column %1 has the wrong colour").arg(x)));
    }

    // The drawn text must match the expected string better than any other
    // text the bar could plausibly show; edges of antialiased glyphs fall
    // differently on a coloured ground, so an exact match is not asked.
    const QFont font = NotesLernBar().font();
    const QStringList candidates { "0%", "10%", "33%", "34%", "66%", "67%", "100%", "33 %", "33.3%", "66.6%" };
    const auto best = std::min_element(candidates.cbegin(), candidates.cend(), [&](const QString& a, const QString& b) {
        return textDifference(image, a, font) < textDifference(image, b, font);
    });
    QCOMPARE(*best, text);
}

void tst_NotesLernBar::noAnswersDrawsNothing()
{
    const QImage image = render(0, 0, 300);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (tintOf(image.pixel(x, y)) != Tint::Other)
                QFAIL("a coloured part was drawn without answers");
        }
    }
    // No percentage either: the middle row is one plain colour.
    const QRgb first = image.pixel(0, 0);
    for (int x = 0; x < image.width(); ++x)
        QCOMPARE(image.pixel(x, image.height() / 2), first);
}

QTEST_MAIN(tst_NotesLernBar)
#include "tst_noteslernbar.moc"
