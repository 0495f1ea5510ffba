#include "TimeInfo.h"

#include <QtTest>

class tst_TimeInfo : public QObject
{
    Q_OBJECT

private slots:
    void msecsToTime_data();
    void msecsToTime();
};

void tst_TimeInfo::msecsToTime_data()
{
    QTest::addColumn<int>("msecs");
    QTest::addColumn<QString>("clock");

    QTest::newRow("milliseconds are dropped") << 999 << "00:00:00.000";
    QTest::newRow("seconds truncate") << 59999 << "00:00:59.000";
    QTest::newRow("last second of the first hour") << 3599999 << "00:59:59.000";
    QTest::newRow("hours minutes seconds") << 3723004 << "01:02:03.000";
    QTest::newRow("last second of a day") << 86399999 << "23:59:59.000";
    QTest::newRow("a whole day is no clock reading") << 86400000 << "";
    QTest::newRow("a run past midnight is negative") << -86000000 << "";
    QTest::newRow("under a second negative still reads zero") << -999 << "00:00:00.000";
}

void tst_TimeInfo::msecsToTime()
{
    QFETCH(int, msecs);
    QFETCH(QString, clock);

    const QTime time = MTools::TimeInfo::msecsToTime(msecs);
    QCOMPARE(time.isValid(), !clock.isEmpty());
    QCOMPARE(time.toString(QStringLiteral("hh:mm:ss.zzz")), clock);
}

QTEST_GUILESS_MAIN(tst_TimeInfo)
#include "tst_timeinfo.moc"
