#include "CorvaneServers.h"
#include "LocalHttpServer.h"
#include "UpdateCheck.h"

#include <QCoreApplication>
#include <QTest>

using QMRequest::CorvaneServers;
using QMRequest::ServerPair;
using QMRequest::UpdateCheck;

Q_DECLARE_METATYPE(UpdateCheck::Availability)

class tst_UpdateCheck : public QObject
{
    Q_OBJECT

    LocalHttpServer m_server;

private slots:
    void initTestCase() { QVERIFY(m_server.start()); }

    void availability_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<UpdateCheck::Availability>("result");
        QTest::newRow("newer") << "x;;;!date!;;;2099-01-01" << UpdateCheck::Available;
        QTest::newRow("a day later") << "x;;;!date!;;;2026-11-26" << UpdateCheck::Available;
        QTest::newRow("same day") << "x;;;!date!;;;2026-11-25" << UpdateCheck::NotAvailable;
        QTest::newRow("older") << "x;;;!date!;;;2014-08-01" << UpdateCheck::NotAvailable;
        QTest::newRow("white space around the date") << "a;;;!date!;;; 2099-01-01\r\n" << UpdateCheck::Available;
        QTest::newRow("last field counts") << "2099-01-01;;;!date!;;;2000-01-01" << UpdateCheck::NotAvailable;
        QTest::newRow("unreadable date") << "x;;;!date!;;;01.01.2099" << UpdateCheck::NotAvailable;
        QTest::newRow("marker alone") << "!date!" << UpdateCheck::NotAvailable;
        QTest::newRow("error page") << "<html>404 Not Found 2099-01-01</html>" << UpdateCheck::Unknown;
        QTest::newRow("empty") << "" << UpdateCheck::Unknown;
    }

    void availability()
    {
        QFETCH(QString, answer);
        QFETCH(UpdateCheck::Availability, result);
        QCOMPARE(UpdateCheck::availability(answer, QDate(2026, 11, 25)), result);
    }

    void automaticCheckDue_data()
    {
        QTest::addColumn<QDate>("lastCheck");
        QTest::addColumn<bool>("due");
        const QDate today(2026, 3, 2);
        QTest::newRow("never checked") << QDate() << false;
        QTest::newRow("today") << today << false;
        QTest::newRow("five days ago") << today.addDays(-5) << false;
        QTest::newRow("six days ago") << today.addDays(-6) << true;
        QTest::newRow("a year ago") << today.addYears(-1) << true;
        QTest::newRow("in the future") << today.addDays(3) << false;
    }

    void automaticCheckDue()
    {
        QFETCH(QDate, lastCheck);
        QFETCH(bool, due);
        QCOMPARE(UpdateCheck::isAutomaticCheckDue(lastCheck, QDate(2026, 3, 2)), due);
    }

    void requestFallsBack_data()
    {
        QTest::addColumn<QString>("primary");
        QTest::addColumn<QString>("fallback");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("requests");
        const QString update = QStringLiteral("x;;;!date!;;;2099-01-01");
        QTest::newRow("primary answers") << "date-2099-01-01"
                                         << "date-2000-01-01" << update << 1;
        QTest::newRow("primary 404") << "status-404"
                                     << "date-2099-01-01" << update << 2;
        QTest::newRow("primary empty") << "empty"
                                       << "date-2099-01-01" << update << 2;
        QTest::newRow("primary stalls") << "stall"
                                        << "date-2099-01-01" << update << 2;
        QTest::newRow("primary offline") << "offline"
                                         << "date-2099-01-01" << update << 1;
        QTest::newRow("NUL cuts the answer") << "nul"
                                             << "date-2000-01-01"
                                             << "junk" << 1;
        QTest::newRow("both fail") << "status-500"
                                   << "halfway"
                                   << "" << 2;
    }

    void requestFallsBack()
    {
        QFETCH(QString, primary);
        QFETCH(QString, fallback);
        QFETCH(QString, answer);
        QFETCH(int, requests);
        const auto server = [this](const QString& name) {
            return name == QLatin1String("offline") ? LocalHttpServer::offlineUrl() : m_server.url(name);
        };
        m_server.clearRequests();
        const ServerPair servers { server(primary), server(fallback), 1000 };
        QCOMPARE(UpdateCheck::request(servers, CorvaneServers::updatePath(QStringLiteral("GuitarTonarium"))), answer);
        const QStringList seen = m_server.requests();
        QCOMPARE(seen.size(), requests);
        for (const QString& path : seen)
            QVERIFY2(path.endsWith(QLatin1String("/apps/appscontrol/updaterequest.php?appname=guitartonarium")),
                qPrintable(path));
    }

    void decodeQString_data()
    {
        QTest::addColumn<QByteArray>("base64");
        QTest::addColumn<QString>("text");
        QTest::newRow("big-endian UTF-16") << QByteArray("AGgAdAB0AHA=") << "http";
        QTest::newRow("beyond Latin-1") << QByteArray("BB8EQAQ4BDIENQRC") << QString::fromUtf8("Привет");
        QTest::newRow("odd byte count") << QByteArray("AGgA") << "";
        QTest::newRow("not base64") << QByteArray("#!*") << "";
    }

    void decodeQString()
    {
        QFETCH(QByteArray, base64);
        QFETCH(QString, text);
        QCOMPARE(CorvaneServers::decodeQString(base64), text);
    }

    void counterAddressesAreReadable()
    {
        const ServerPair counter = CorvaneServers::counterServers();
        QCOMPARE(counter.primary, QStringLiteral("http://stats.corvane.com"));
        QCOMPARE(counter.fallback, QStringLiteral("http://stats2.corvane.com"));
        QCOMPARE(CorvaneServers::counterPath(QStringLiteral("GuitarTonarium")),
            QStringLiteral("/apps/appscontrol/appcounter.php?appname=guitartonarium"));
    }
};

QTEST_GUILESS_MAIN(tst_UpdateCheck)

#include "tst_UpdateCheck.moc"
