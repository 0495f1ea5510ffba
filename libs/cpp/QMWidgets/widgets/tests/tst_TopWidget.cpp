#include "TopWidget.h"

#include <QPushButton>
#include <QTimer>
#include <QtTest>

using QMWidgets::TopWidget;

namespace {

using Ending = void (*)(TopWidget&);

} // namespace

Q_DECLARE_METATYPE(Ending)

class TestTopWidget : public QObject
{
    Q_OBJECT

private slots:
    void execResult_data()
    {
        QTest::addColumn<Ending>("ending");
        QTest::addColumn<int>("expected");
        QTest::newRow("escape") << Ending([](TopWidget& window) {
            window.activateWindow();
            if (QTest::qWaitForWindowActive(&window))
                QTest::keyClick(&window, Qt::Key_Escape);
        }) << 0;
        QTest::newRow("close button") << Ending([](TopWidget& window) {
            QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("TopWidgetClose")), Qt::LeftButton);
        }) << 0;
        QTest::newRow("accept") << Ending([](TopWidget& window) { window.accept(); }) << 1;
        QTest::newRow("reject") << Ending([](TopWidget& window) { window.reject(); }) << 0;
    }

    void execResult()
    {
        QFETCH(Ending, ending);
        QFETCH(int, expected);
        TopWidget window;
        window.resize(200, 120);
        bool wasModal = false;
        QTimer::singleShot(0, &window, [&]() {
            wasModal = window.isVisible() && window.testAttribute(Qt::WA_ShowModal);
            ending(window);
        });
        // A safety net so that a broken ending cannot hang the test.
        QTimer::singleShot(3000, &window, [&]() { window.accept(); });

        QCOMPARE(window.exec(), expected);
        QVERIFY(wasModal);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(TestTopWidget)
#include "tst_TopWidget.moc"
