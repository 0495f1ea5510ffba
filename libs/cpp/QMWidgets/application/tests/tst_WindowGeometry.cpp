#include "WindowGeometry.h"

#include <QtTest>

using namespace QMWidgets;

class tst_WindowGeometry : public QObject
{
    Q_OBJECT

private slots:
    void fittedSize_data();
    void fittedSize();
};

void tst_WindowGeometry::fittedSize_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("available");
    QTest::addColumn<QSize>("expected");

    const QSize screen(1280, 770);
    QTest::newRow("the minimum") << QSize(800, 600) << screen << QSize(800, 600);
    QTest::newRow("larger, on the screen") << QSize(1000, 700) << screen << QSize(1000, 700);
    QTest::newRow("smaller than the minimum") << QSize(300, 200) << screen << QSize(800, 600);
    QTest::newRow("16777215 square") << QSize(16777215, 16777215) << screen << screen;
    QTest::newRow("too wide only") << QSize(100000, 650) << screen << QSize(1280, 650);
    QTest::newRow("negative") << QSize(-5, -5) << screen << QSize(800, 600);
    QTest::newRow("screen smaller than the minimum") << QSize(2000, 2000) << QSize(640, 480) << QSize(800, 600);
}

void tst_WindowGeometry::fittedSize()
{
    QFETCH(QSize, stored);
    QFETCH(QSize, available);
    QFETCH(QSize, expected);

    QCOMPARE(WindowGeometry::fittedSize(stored, QSize(800, 600), available), expected);
}

QTEST_GUILESS_MAIN(tst_WindowGeometry)
#include "tst_WindowGeometry.moc"
