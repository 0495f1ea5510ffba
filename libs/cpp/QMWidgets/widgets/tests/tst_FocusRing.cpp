#include "FocusRing.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTest>

using QMWidgets::FocusRing;

class tst_FocusRing : public QObject
{
    Q_OBJECT

private slots:
    void ringShowsForTheKeyboardOnly_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<bool>("ring");
        QTest::newRow("Tab") << "tab" << true;
        QTest::newRow("Backtab") << "backtab" << true;
        QTest::newRow("a click") << "click" << false;
        QTest::newRow("focus set by the program") << "program" << false;
    }

    void ringShowsForTheKeyboardOnly()
    {
        QFETCH(QString, how);
        QFETCH(bool, ring);
        FocusRing focusRing;
        QWidget window;
        auto* first = new QPushButton(QStringLiteral("first"));
        auto* second = new QPushButton(QStringLiteral("second"));
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        first->setFocus(Qt::OtherFocusReason);
        QCOMPARE(focusRing.target(), nullptr);

        if (how == QLatin1String("tab"))
            QTest::keyClick(first, Qt::Key_Tab);
        else if (how == QLatin1String("backtab"))
            QTest::keyClick(first, Qt::Key_Backtab, Qt::ShiftModifier);
        else if (how == QLatin1String("click"))
            QTest::mouseClick(second, Qt::LeftButton);
        else
            second->setFocus(Qt::OtherFocusReason);
        QCOMPARE(QApplication::focusWidget(), second);
        QCOMPARE(focusRing.target(), ring ? second : nullptr);
        if (!ring)
            return;
        // Around the widget, with a little air, over the window's drawing.
        QCOMPARE(focusRing.ring()->parentWidget(), &window);
        QVERIFY(focusRing.ring()->geometry().contains(second->geometry()));
        QVERIFY(focusRing.ring()->geometry() != second->geometry());
    }

    void ringFollowsAResizeAndLeavesWithTheFocus()
    {
        FocusRing focusRing;
        QWidget window;
        window.resize(300, 200);
        auto* first = new QPushButton(QStringLiteral("first"), &window);
        auto* second = new QPushButton(QStringLiteral("second"), &window);
        second->setGeometry(100, 50, 80, 30);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        first->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(first, Qt::Key_Tab);
        QCOMPARE(focusRing.target(), second);
        second->setGeometry(20, 120, 150, 40);
        QVERIFY(focusRing.ring()->geometry().contains(second->geometry()));
        QTest::mouseClick(first, Qt::LeftButton);
        QCOMPARE(focusRing.target(), nullptr);
    }
};

QTEST_MAIN(tst_FocusRing)
#include "tst_FocusRing.moc"
