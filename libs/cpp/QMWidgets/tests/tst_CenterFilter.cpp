#include "CenterFilter.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QtTest>

using QMWidgets::CenterFilter;

class TestCenterFilter : public QObject
{
    Q_OBJECT

private slots:
    void centresChildOnShow_data();
    void centresChildOnShow();
    void centresWindowOnDesktop();
    void ignoresOtherEvents();
};

void TestCenterFilter::centresChildOnShow_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::addColumn<QSize>("childSize");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("even sizes") << QSize(400, 300) << QSize(100, 50) << QPoint(150, 125);
    // Halves are taken before subtracting: 300/2 - 51/2 = 125, not (300-51)/2 = 124.
    QTest::newRow("odd child rounds towards the far side") << QSize(300, 300) << QSize(51, 51) << QPoint(125, 125);
    QTest::newRow("odd parent") << QSize(301, 201) << QSize(100, 100) << QPoint(100, 50);
    QTest::newRow("child larger than parent") << QSize(200, 100) << QSize(300, 150) << QPoint(-50, -25);
    QTest::newRow("same size") << QSize(120, 80) << QSize(120, 80) << QPoint(0, 0);
}

void TestCenterFilter::centresChildOnShow()
{
    QFETCH(QSize, parentSize);
    QFETCH(QSize, childSize);
    QFETCH(QPoint, expected);

    QWidget parent;
    parent.resize(parentSize);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));

    QWidget child(&parent);
    child.resize(childSize);
    child.move(3, 7);
    CenterFilter filter;
    child.installEventFilter(&filter);
    child.show();

    QCOMPARE(child.pos(), expected);

    // A later show centres again after the child was moved away.
    child.hide();
    child.move(1, 1);
    child.show();
    QCOMPARE(child.pos(), expected);
}

void TestCenterFilter::centresWindowOnDesktop()
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    QWidget window;
    window.resize(desktop.width() / 3, desktop.height() / 4);
    CenterFilter filter;
    window.installEventFilter(&filter);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QPoint centreOfWindow = window.pos() + QPoint(window.width() / 2, window.height() / 2);
    QVERIFY(qAbs(centreOfWindow.x() - desktop.width() / 2) <= 1);
    QVERIFY(qAbs(centreOfWindow.y() - desktop.height() / 2) <= 1);
}

void TestCenterFilter::ignoresOtherEvents()
{
    QWidget parent;
    parent.resize(400, 300);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QWidget child(&parent);
    child.resize(100, 100);
    child.show();
    CenterFilter filter;
    child.installEventFilter(&filter);

    child.move(10, 20);
    child.resize(50, 50);
    QCoreApplication::processEvents();
    QCOMPARE(child.pos(), QPoint(10, 20));
}

QTEST_MAIN(TestCenterFilter)
#include "tst_CenterFilter.moc"
