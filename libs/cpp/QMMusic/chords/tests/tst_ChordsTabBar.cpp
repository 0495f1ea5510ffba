#include "ChordsTabBar.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

using QMMusic::ChordsTabBar;

class tst_ChordsTabBar : public QObject
{
    Q_OBJECT

private slots:
    void countFollowsTheTabs();
    void releaseChoosesTheTabUnderThePointer_data();
    void releaseChoosesTheTabUnderThePointer();
};

void tst_ChordsTabBar::countFollowsTheTabs()
{
    ChordsTabBar bar;
    QSignalSpy spy(&bar, &ChordsTabBar::countChanged);
    bar.addTab("A\n");
    bar.addTab("D\nm");
    bar.insertTab(0, "E\n7");
    bar.removeTab(1);
    QCOMPARE(spy.size(), 4);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);
    QCOMPARE(spy.at(2).at(0).toInt(), 3);
    QCOMPARE(spy.at(3).at(0).toInt(), 2);
}

void tst_ChordsTabBar::releaseChoosesTheTabUnderThePointer_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 2;
}

void tst_ChordsTabBar::releaseChoosesTheTabUnderThePointer()
{
    QFETCH(int, tab);
    ChordsTabBar bar;
    bar.addTab("A\n");
    bar.addTab("B♭\nm7");
    bar.addTab("C #\nsus4");
    bar.setCurrentIndex(1);
    bar.resize(bar.sizeHint());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    int currentAtSignal = -1;
    connect(&bar, &ChordsTabBar::tabClicked, this, [&] { currentAtSignal = bar.currentIndex(); });
    const QPoint at = bar.tabRect(tab).center();
    QMouseEvent release(
        QEvent::MouseButtonRelease, at, bar.mapToGlobal(at), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&bar, &release);
    QCOMPARE(currentAtSignal, tab);
}

QTEST_MAIN(tst_ChordsTabBar)
#include "tst_ChordsTabBar.moc"
