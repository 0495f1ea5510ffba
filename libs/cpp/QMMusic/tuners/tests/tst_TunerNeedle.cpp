#include "TunerDialGeometry.h"
#include "TunerNeedle.h"

#include <QtTest>

using QMMusic::TunerDialGeometry;
using QMMusic::TunerNeedle;

class tst_TunerNeedle : public QObject
{
    Q_OBJECT

private slots:
    void scale_data();
    void scale();
    void layoutFits_data();
    void layoutFits();
    void needleFollows_data();
    void needleFollows();
    void silenceRestsTheNeedle();
};

void tst_TunerNeedle::scale_data()
{
    QTest::addColumn<double>("cents");
    QTest::addColumn<double>("degrees");
    QTest::addColumn<bool>("inTune");

    QTest::newRow("in tune") << 0.0 << 0.0 << true;
    QTest::newRow("3 cents sharp is in the zone") << 3.0 << 3.3 << true;
    QTest::newRow("3 cents flat is in the zone") << -3.0 << -3.3 << true;
    QTest::newRow("just out of the zone") << 3.2 << 3.52 << false;
    QTest::newRow("half way flat") << -25.0 << -27.5 << false;
    QTest::newRow("end of the scale") << 50.0 << 55.0 << false;
    QTest::newRow("beyond the scale is held at its end") << 180.0 << 55.0 << false;
    QTest::newRow("far below is held at the other end") << -700.0 << -55.0 << false;
}

void tst_TunerNeedle::scale()
{
    QFETCH(double, cents);
    QFETCH(double, degrees);
    QFETCH(bool, inTune);

    QVERIFY(qAbs(TunerDialGeometry::angleForCents(cents) - degrees) < 1e-9);
    QCOMPARE(TunerDialGeometry::isInTune(cents), inTune);
}

void tst_TunerNeedle::layoutFits_data()
{
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("wide enough") << QSizeF(340, 170);
    QTest::newRow("very wide") << QSizeF(900, 120);
    QTest::newRow("tall") << QSizeF(300, 500);
    QTest::newRow("tiny") << QSizeF(40, 20);
}

void tst_TunerNeedle::layoutFits()
{
    QFETCH(QSizeF, size);

    const TunerDialGeometry dial(size);
    const QRectF widget(QPointF(0, 0), size);
    QVERIFY(widget.adjusted(-0.01, -0.01, 0.01, 0.01).contains(dial.face()));
    QVERIFY(qAbs(dial.face().width() - 2.0 * dial.face().height()) < 1e-9);
    // The whole sweep of the needle, both ends of the scale included, stays on the face.
    for (const double cents : { -50.0, -3.0, 0.0, 3.0, 50.0 })
        QVERIFY2(dial.face().contains(dial.pointAt(cents, 0.98)), qPrintable(QString::number(cents)));
    QVERIFY(dial.pointAt(-10, 0.9).x() < dial.pivot().x());
    QVERIFY(dial.pointAt(10, 0.9).x() > dial.pivot().x());
    QVERIFY(qAbs(dial.pointAt(0, 1.0).x() - dial.pivot().x()) < 1e-9);
    QVERIFY(dial.face().contains(dial.nameRect()));
    QVERIFY(dial.face().contains(dial.readingRect()));
    QVERIFY(!dial.nameRect().intersects(dial.readingRect()));
    // Wherever the needle stands, it crosses neither the name nor the reading.
    for (double cents = -50.0; cents <= 50.0; cents += 0.5) {
        for (double share = TunerDialGeometry::NeedleBase; share <= TunerDialGeometry::NeedleTip; share += 0.01) {
            const QPointF point = dial.pointAt(cents, share);
            QVERIFY(!dial.nameRect().contains(point) && !dial.readingRect().contains(point));
        }
    }
}

void tst_TunerNeedle::needleFollows_data()
{
    QTest::addColumn<QVector<double>>("readings");
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");

    // Readings come about 86 times a second.
    QTest::newRow("first reading shows at once") << QVector<double> { 20.0 } << 19.99 << 20.01;
    QTest::newRow("a string tuned up is followed within 12 readings")
        << (QVector<double> { -30.0 } + QVector<double>(12, 0.0)) << -0.5 << 0.5;
    QTest::newRow("one wild reading moves it less than a third")
        << QVector<double> { 0.0, 0.0, 0.0, 30.0 } << 5.0 << 10.0;
    QVector<double> jitter;
    for (int i = 0; i < 40; ++i)
        jitter.append(i % 2 ? 4.0 : -4.0);
    QTest::newRow("jitter of 4 cents is calmed to less than 2") << jitter << -2.0 << 2.0;
}

void tst_TunerNeedle::needleFollows()
{
    QFETCH(QVector<double>, readings);
    QFETCH(double, low);
    QFETCH(double, high);

    TunerNeedle needle;
    for (const double cents : readings)
        needle.setReading(QStringLiteral("E2"), cents);
    QVERIFY2(
        needle.shownCents() >= low && needle.shownCents() <= high, qPrintable(QString::number(needle.shownCents())));
    QCOMPARE(needle.stringName(), QStringLiteral("E2"));
}

void tst_TunerNeedle::silenceRestsTheNeedle()
{
    TunerNeedle needle;
    needle.setReading(QStringLiteral("A2"), 12.0);
    needle.setSilent();
    QVERIFY(needle.isSilent());
    QCOMPARE(needle.stringName(), QString());
    QCOMPARE(needle.shownCents(), 0.0);
    // After the pause a new string shows at once, not eased from the centre.
    needle.setReading(QStringLiteral("D3"), -15.0);
    QCOMPARE(needle.shownCents(), -15.0);
    QCOMPARE(needle.stringName(), QStringLiteral("D3"));
}

QTEST_MAIN(tst_TunerNeedle)
#include "tst_TunerNeedle.moc"
