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
    void centresOnEveryShow_data()
    {
        QTest::addColumn<QSize>("parentSize");
        QTest::addColumn<QSize>("childSize");
        QTest::addColumn<QPoint>("expected");
        // Halves are taken before subtracting: 300/2 - 51/2 = 125, not (300-51)/2 = 124.
        QTest::newRow("odd child rounds towards the far side") << QSize(300, 300) << QSize(51, 51) << QPoint(125, 125);
        QTest::newRow("odd parent") << QSize(301, 201) << QSize(100, 100) << QPoint(100, 50);
        QTest::newRow("child larger than parent") << QSize(200, 100) << QSize(300, 150) << QPoint(-50, -25);
        QTest::newRow("window without parent: the desktop") << QSize() << QSize(201, 101) << QPoint();
    }

    void centresOnEveryShow()
    {
        QFETCH(QSize, parentSize);
        QFETCH(QSize, childSize);
        QFETCH(QPoint, expected);

        QWidget parent;
        parent.resize(parentSize);
        QWidget child(parentSize.isValid() ? &parent : nullptr);
        if (!parentSize.isValid()) {
            const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
            expected = QPoint(desktop.width() / 2 - 100, desktop.height() / 2 - 50);
        }
        child.resize(childSize);
        child.move(3, 7);
        CenterFilter filter;
        child.installEventFilter(&filter);
        QWidget* window = parentSize.isValid() ? &parent : &child;
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(child.pos(), expected);

        // Moving and resizing while shown are left alone; the next show centres again.
        child.move(1, 1);
        child.resize(childSize + QSize(2, 2));
        QCoreApplication::processEvents();
        QCOMPARE(child.pos(), QPoint(1, 1));
        child.hide();
        child.resize(childSize);
        child.show();
        QCOMPARE(child.pos(), expected);
    }
};

QTEST_MAIN(TestCenterFilter)
#include "tst_CenterFilter.moc"
