#include "TopWidget.h"

#include <QBoxLayout>
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
        QTest::newRow("escape") << Ending([](TopWidget& window) { window.activateWindow();
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

    void overlayNestsContent_data()
    {
        QTest::addColumn<bool>("overlay");
        QTest::addColumn<QString>("contentOwner");
        QTest::addColumn<int>("margin");
        QTest::newRow("overlay") << true << "TopOverWidget" << 0;
        QTest::newRow("plain") << false << "" << 1;
    }

    void overlayNestsContent()
    {
        QFETCH(bool, overlay);
        QFETCH(QString, contentOwner);
        QFETCH(int, margin);
        TopWidget window(overlay);
        QWidget* owner = window.topLayout()->parentWidget();
        QCOMPARE(owner == &window, !overlay);
        QCOMPARE(owner->objectName(), contentOwner);
        QCOMPARE(window.topLayout()->contentsMargins().left(), margin);
    }
};

QTEST_MAIN(TestTopWidget)
#include "tst_TopWidget.moc"
