#include "TopWidget.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using QMWidgets::TopWidget;

namespace {

enum Ending { EscapeKey, CloseButton, Accept, Reject };

} // namespace

class TestTopWidget : public QObject
{
    Q_OBJECT

private slots:
    void execResult_data();
    void execResult();
    void titleButtonsOrder();
    void overlayNestsContent_data();
    void overlayNestsContent();
};

void TestTopWidget::execResult_data()
{
    QTest::addColumn<int>("ending");
    QTest::addColumn<int>("expected");

    QTest::newRow("escape") << int(EscapeKey) << 0;
    QTest::newRow("close button") << int(CloseButton) << 0;
    QTest::newRow("accept") << int(Accept) << 1;
    QTest::newRow("reject") << int(Reject) << 0;
}

void TestTopWidget::execResult()
{
    QFETCH(int, ending);
    QFETCH(int, expected);

    TopWidget window;
    window.resize(200, 120);
    bool wasModal = false;
    QTimer::singleShot(0, &window, [&]() {
        wasModal = window.isVisible() && window.testAttribute(Qt::WA_ShowModal);
        switch (ending) {
        case EscapeKey:
            window.activateWindow();
            if (!QTest::qWaitForWindowActive(&window))
                break;
            QTest::keyClick(&window, Qt::Key_Escape);
            break;
        case CloseButton:
            QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("TopWidgetClose")), Qt::LeftButton);
            break;
        case Accept:
            window.accept();
            break;
        case Reject:
            window.reject();
            break;
        }
    });
    // A safety net so that a broken ending cannot hang the test.
    QTimer::singleShot(3000, &window, [&]() { window.accept(); window.accept(); });

    const int result = window.exec();

    QVERIFY(wasModal);
    QCOMPARE(result, expected);
    QVERIFY(!window.isVisible());
}

void TestTopWidget::titleButtonsOrder()
{
    TopWidget window;
    window.resize(300, 100);
    window.setIcon(QPixmap(16, 16));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const auto* minimize = window.findChild<QPushButton*>(QStringLiteral("TopWidgetMinimize"));
    const auto* maximize = window.findChild<QPushButton*>(QStringLiteral("TopWidgetMaximize"));
    const auto* close = window.findChild<QPushButton*>(QStringLiteral("TopWidgetClose"));
    QVERIFY(minimize && maximize && close);
    QVERIFY(minimize->x() < maximize->x());
    QVERIFY(maximize->x() < close->x());
    QCOMPARE(close->size(), QSize(24, 24));
    QCOMPARE(close->toolTip(), QStringLiteral("Close"));

    window.hideMaximize();
    QVERIFY(!maximize->isVisible());
    window.showMaximize();
    QVERIFY(maximize->isVisible());
}

void TestTopWidget::overlayNestsContent_data()
{
    QTest::addColumn<bool>("overlay");
    QTest::addColumn<QString>("contentOwner");
    QTest::addColumn<int>("margin");

    QTest::newRow("overlay") << true << "TopOverWidget" << 0;
    QTest::newRow("plain") << false << "" << 1;
}

void TestTopWidget::overlayNestsContent()
{
    QFETCH(bool, overlay);
    QFETCH(QString, contentOwner);
    QFETCH(int, margin);

    TopWidget window(overlay);
    QVBoxLayout* content = window.topLayout();
    QVERIFY(content);
    QWidget* owner = content->parentWidget();
    QCOMPARE(owner == &window, !overlay);
    QCOMPARE(owner->objectName(), contentOwner);
    QCOMPARE(content->contentsMargins().left(), margin);
}

QTEST_MAIN(TestTopWidget)
#include "tst_TopWidget.moc"
