#include "Label.h"

#include <QPainter>
#include <QtTest>

using QMWidgets::Label;

class TestLabel : public QObject
{
    Q_OBJECT

private slots:
    void pictureRect_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("label");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QRectF>("expected");
        QTest::addColumn<QSize>("pixels");

        QTest::newRow("fit: wide picture, tall label, ratio 2")
            << QSize(200, 100) << QSize(100, 300) << 2.0 << int(Label::Fit) << QRectF(0, 125, 100, 50)
            << QSize(200, 100);
        QTest::newRow("fit: small picture grows to the label")
            << QSize(10, 10) << QSize(60, 40) << 2.0 << int(Label::Fit) << QRectF(10, 0, 40, 40) << QSize(80, 80);
        QTest::newRow("fill: wide picture covers a tall label from the corner")
            << QSize(200, 100) << QSize(100, 300) << 1.0 << int(Label::Fill) << QRectF(0, 0, 600, 300)
            << QSize(600, 300);
        QTest::newRow("fill: ratio 2 keeps logical size")
            << QSize(600, 1033) << QSize(300, 300) << 2.0 << int(Label::Fill) << QRectF(0, 0, 300, 516.5)
            << QSize(600, 1033);
    }

    void pictureRect()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, label);
        QFETCH(qreal, ratio);
        QFETCH(int, mode);
        QFETCH(QRectF, expected);
        QFETCH(QSize, pixels);

        QCOMPARE(Label::scaledPictureSize(picture, label, ratio, Label::Mode(mode)), pixels);
        QCOMPARE(Label::pictureRect(picture, label, ratio, Label::Mode(mode)), expected);
    }

    void paintsCentredInFitMode_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("label");
        QTest::addColumn<QRect>("covered");

        QTest::newRow("wide picture in tall label") << QSize(40, 20) << QSize(60, 120) << QRect(0, 45, 60, 30);
        QTest::newRow("tall picture in wide label") << QSize(20, 40) << QSize(120, 60) << QRect(45, 0, 30, 60);
    }

    void paintsCentredInFitMode()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, label);
        QFETCH(QRect, covered);

        QPixmap red(picture);
        red.fill(Qt::red);
        Label widget;
        widget.setAutoFillBackground(true);
        QPalette palette = widget.palette();
        palette.setColor(QPalette::Window, Qt::white);
        widget.setPalette(palette);
        widget.resize(label);
        widget.setRetinaPixmap(red);

        // Under a scale factor (a second run of this test) the grab has more
        // pixels than the label has units; edge pixels may be blended by smooth scaling.
        const QImage image = widget.grab().toImage();
        const qreal ratio = image.devicePixelRatio();
        QCOMPARE(image.size(), label * ratio);
        const QRect scaled = QRectF(QPointF(covered.topLeft()) * ratio, QSizeF(covered.size()) * ratio).toRect();
        for (int y = 0; y < image.height(); y += 3) {
            for (int x = 0; x < image.width(); x += 3) {
                if (scaled.adjusted(1, 1, -1, -1).contains(x, y) || !scaled.adjusted(-1, -1, 1, 1).contains(x, y))
                    QVERIFY2(image.pixel(x, y) == (scaled.contains(x, y) ? qRgb(255, 0, 0) : qRgb(255, 255, 255)),
                        qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
    }

    void paintsSharpAtScreenDensity_data()
    {
        QTest::addColumn<int>("mode");

        QTest::newRow("fit") << int(Label::Fit);
        QTest::newRow("fill") << int(Label::Fill);
    }

    void paintsSharpAtScreenDensity()
    {
        QFETCH(int, mode);

        // A picture of one-pixel stripes exactly as large as the label's device
        // pixels must come out stripe for stripe, not scaled down and up again.
        Label widget;
        widget.resize(40, 30);
        const qreal ratio = widget.devicePixelRatioF();
        QImage stripes(QSize(40, 30) * ratio, QImage::Format_RGB32);
        for (int x = 0; x < stripes.width(); ++x) {
            for (int y = 0; y < stripes.height(); ++y)
                stripes.setPixel(x, y, x % 2 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
        widget.setMode(Label::Mode(mode));
        widget.setRetinaPixmap(QPixmap::fromImage(stripes));

        const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(image.size(), stripes.size());
        for (int x = 0; x < image.width(); ++x)
            QVERIFY2(image.pixel(x, image.height() / 2) == stripes.pixel(x, 0), qPrintable(QString::number(x)));
    }
};

QTEST_MAIN(TestLabel)
#include "tst_Label.moc"
