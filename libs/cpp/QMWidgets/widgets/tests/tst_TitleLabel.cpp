#include "TitleLabel.h"

#include <QMouseEvent>
#include <QPointer>
#include <QtTest>

using QMWidgets::TitleLabel;

class TestTitleLabel : public QObject
{
    Q_OBJECT

private slots:
    void dragMovesWindow_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<QPoint>("globalTarget");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("grab at the left end") << QPoint(5, 10) << QPoint(305, 210) << QPoint(300, 200);
        QTest::newRow("grab in the middle, towards the origin") << QPoint(100, 14) << QPoint(110, 24) << QPoint(10, 10);
    }

    void dragMovesWindow()
    {
        QFETCH(QPoint, press);
        QFETCH(QPoint, globalTarget);
        QFETCH(QPoint, expected);
        QWidget window;
        auto* title = new TitleLabel(&window);
        title->setGeometry(0, 0, 240, 28);
        window.resize(240, 120);
        window.move(40, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QMouseEvent pressEvent(
            QEvent::MouseButtonPress, press, title->mapToGlobal(press), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(title, &pressEvent);
        QMouseEvent move(QEvent::MouseMove, title->mapFromGlobal(globalTarget), globalTarget, Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(title, &move);
        QCOMPARE(window.pos(), expected);
    }

    void decorationFollowsLabel()
    {
        QWidget window;
        auto* title = new TitleLabel(&window);
        title->setGeometry(0, 0, 200, 28);
        window.move(100, 50);
        QPointer<QWidget> first = new QWidget;
        title->setDecoration(first, QPoint(10, -8));
        QVERIFY(!first->isVisible());

        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(first->isVisible());
        QCOMPARE(first->pos(), title->mapToGlobal(QPoint(10, -8)));
        title->hide();
        QVERIFY(!first->isVisible());
        title->show();
        QVERIFY(first->isVisible());

        // A new decoration replaces and deletes the old one.
        title->setDecoration(new QWidget, QPoint());
        QVERIFY(first.isNull());
    }
};

QTEST_MAIN(TestTitleLabel)
#include "tst_TitleLabel.moc"
