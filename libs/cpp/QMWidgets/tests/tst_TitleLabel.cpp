#include "TitleLabel.h"

#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

using QMWidgets::TitleLabel;

namespace {

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& local, const QPoint& global)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(local), QPointF(local), QPointF(global), button, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class TestTitleLabel : public QObject
{
    Q_OBJECT

private slots:
    void dragMovesWindow_data();
    void dragMovesWindow();
    void decorationFollowsLabel();
};

void TestTitleLabel::dragMovesWindow_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("globalTarget");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("grab at the left end") << QPoint(5, 10) << QPoint(305, 210) << QPoint(300, 200);
    QTest::newRow("grab in the middle") << QPoint(100, 14) << QPoint(400, 114) << QPoint(300, 100);
    QTest::newRow("drag towards the origin") << QPoint(50, 5) << QPoint(60, 15) << QPoint(10, 10);
}

void TestTitleLabel::dragMovesWindow()
{
    QFETCH(QPoint, press);
    QFETCH(QPoint, globalTarget);
    QFETCH(QPoint, expected);

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* title = new TitleLabel(&window);
    title->setFixedHeight(28);
    layout->addWidget(title);
    layout->addStretch(1);
    window.resize(240, 120);
    window.move(40, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    sendMouse(title, QEvent::MouseButtonPress, press, title->mapToGlobal(press));
    sendMouse(title, QEvent::MouseMove, title->mapFromGlobal(globalTarget), globalTarget);

    QCOMPARE(window.pos(), expected);
}

void TestTitleLabel::decorationFollowsLabel()
{
    QWidget window;
    auto* title = new TitleLabel(&window);
    title->setGeometry(0, 0, 200, 28);
    window.resize(200, 100);
    window.move(100, 50);

    QPointer<QWidget> first = new QWidget;
    first->resize(16, 16);
    title->setDecoration(first, QPoint(10, -8));
    QVERIFY(first->windowFlags() & Qt::ToolTip);
    QVERIFY(!first->isVisible());

    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(first->isVisible());
    QCOMPARE(first->pos(), title->mapToGlobal(QPoint(10, -8)));

    title->hide();
    QVERIFY(!first->isVisible());
    title->show();
    QVERIFY(first->isVisible());

    auto* second = new QWidget;
    title->setDecoration(second, QPoint(0, 0));
    QVERIFY(first.isNull());
    QCOMPARE(title->decoration(), second);
}

QTEST_MAIN(TestTitleLabel)
#include "tst_TitleLabel.moc"
