#include "AppPalette.h"

#include <QtTest>

#include <cmath>

using QMWidgets::AppPalette;

namespace {

// The contrast ratio of two colours as the web's accessibility guidelines
// define it: 1 for equal colours, 21 for black on white.
double contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& c) {
        const auto channel = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
    };
    const double la = luminance(a);
    const double lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

} // namespace

class tst_AppPalette : public QObject
{
    Q_OBJECT

private slots:
    void textStaysReadable_data()
    {
        QTest::addColumn<int>("text");
        QTest::addColumn<int>("ground");
        QTest::newRow("tool tips") << int(QPalette::ToolTipText) << int(QPalette::ToolTipBase);
        QTest::newRow("selected text") << int(QPalette::HighlightedText) << int(QPalette::Highlight);
        QTest::newRow("links on the dark panels") << int(QPalette::Link) << int(QPalette::ToolTipBase);
    }

    // Whatever the platform's palette, the program's pairs read at 4.5:1.
    void textStaysReadable()
    {
        QFETCH(int, text);
        QFETCH(int, ground);
        for (const QPalette& base : { QPalette(Qt::white), QPalette(Qt::black), QPalette(QColor(0, 0, 160)) }) {
            const QPalette palette = AppPalette::tinted(base);
            const double ratio
                = contrast(palette.color(QPalette::ColorRole(text)), palette.color(QPalette::ColorRole(ground)));
            QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
        }
    }

    // No platform blue is left for a selection.
    void selectionIsWarm()
    {
        const QColor highlight = AppPalette::tinted(QPalette(QColor(0, 0, 160))).color(QPalette::Highlight);
        QVERIFY(highlight.red() > highlight.blue());
    }
};

QTEST_MAIN(tst_AppPalette)
#include "tst_AppPalette.moc"
