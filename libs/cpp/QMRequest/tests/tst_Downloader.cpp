#include "Downloader.h"
#include "LocalHttpServer.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using QMRequest::Downloader;

class tst_Downloader : public QObject
{
    Q_OBJECT

    LocalHttpServer m_server;

    static QByteArray bigBody() { return QByteArray(10 * 1024 * 1024, 'x') + ";;;!date!;;;2099-01-01"; }

private slots:
    void initTestCase() { QVERIFY(m_server.start()); }

    void fullRequest_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("full");
        QTest::newRow("http stays") << "http://a.com/x?y=1"
                                    << "http://a.com/x?y=1";
        QTest::newRow("no scheme") << "a.com/x"
                                   << "http://a.com/x";
        QTest::newRow("upper case scheme is no scheme") << "HTTP://a.com"
                                                        << "http://HTTP://a.com";
        QTest::newRow("https prefixed too") << "https://a.com"
                                            << "http://https://a.com";
    }

    void fullRequest()
    {
        QFETCH(QString, url);
        QFETCH(QString, full);
        QCOMPARE(Downloader().fullRequest(url), full);
    }

    void get_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("success") << "date-2099-01-01" << QByteArray("x;;;!date!;;;2099-01-01");
        QTest::newRow("404 drops its body") << "status-404" << QByteArray();
        QTest::newRow("500 drops its body") << "status-500" << QByteArray();
        QTest::newRow("empty body") << "empty" << QByteArray();
        QTest::newRow("NUL kept") << "nul" << QByteArray("junk\0x;;;!date!;;;2099-01-01", 28);
        QTest::newRow("10 MB whole") << "big" << bigBody();
        QTest::newRow("closed halfway") << "halfway" << QByteArray();
        QTest::newRow("redirect not followed") << QStringLiteral("redirect-%1").arg(m_server.port()) << QByteArray();
    }

    void get()
    {
        QFETCH(QString, answer);
        QFETCH(QByteArray, body);
        m_server.clearRequests();
        Downloader downloader;
        QTimer::singleShot(30000, &downloader, &Downloader::slotAbort);
        const QByteArray got = downloader.get(m_server.url(answer) + QStringLiteral("/file"));
        QCOMPARE(got.size(), body.size());
        QVERIFY(got == body);
        QVERIFY(downloader.isFinished());
        // One request, and only to the address asked for.
        QCOMPARE(m_server.requests(), QStringList { QLatin1Char('/') + answer + QStringLiteral("/file") });
    }

    void offlineGivesEmpty()
    {
        Downloader downloader;
        QTimer::singleShot(30000, &downloader, &Downloader::slotAbort);
        QVERIFY(downloader.get(LocalHttpServer::offlineUrl() + QStringLiteral("/x")).isEmpty());
        QVERIFY(downloader.isFinished());
    }

    void timersRunAndAbortEndsAStalledRequest()
    {
        Downloader downloader;
        QTimer ticker;
        int ticks = 0;
        connect(&ticker, &QTimer::timeout, &downloader, [&]() {
            if (++ticks == 5)
                downloader.slotAbort();
        });
        ticker.start(10);
        QVERIFY(downloader.get(m_server.url(QStringLiteral("stall"))).isEmpty());
        QCOMPARE(ticks, 5);
        QVERIFY(downloader.isFinished());
    }

    void secondGetInsideTheFirstReturnsAtOnce()
    {
        Downloader downloader;
        QByteArray inner = "untouched";
        bool asked = false;
        connect(&downloader, &Downloader::progress, &downloader, [&]() {
            if (asked)
                return;
            asked = true;
            inner = downloader.get(m_server.url(QStringLiteral("date-2099-01-01")));
        });
        QTimer::singleShot(30000, &downloader, &Downloader::slotAbort);
        m_server.clearRequests();
        const QByteArray outer = downloader.get(m_server.url(QStringLiteral("big")));
        QVERIFY(asked);
        QVERIFY(inner.isEmpty());
        QVERIFY(outer == bigBody());
        QCOMPARE(m_server.requests(), QStringList { QStringLiteral("/big") });
    }

    void progressEndsAtAHundredPercent()
    {
        Downloader downloader;
        QSignalSpy percent(&downloader, &Downloader::progressPercent);
        QTimer::singleShot(30000, &downloader, &Downloader::slotAbort);
        downloader.get(m_server.url(QStringLiteral("big")));
        QVERIFY(!percent.isEmpty());
        QCOMPARE(percent.last().at(0).toInt(), 100);
    }

    void getToFile_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("body written") << "date-2000-01-01" << QByteArray("x;;;!date!;;;2000-01-01");
        QTest::newRow("failure writes an empty file") << "status-404" << QByteArray();
    }

    void getToFile()
    {
        QFETCH(QString, answer);
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("answer.txt"));
        Downloader downloader;
        QTimer::singleShot(30000, &downloader, &Downloader::slotAbort);
        downloader.getToFile(m_server.url(answer), path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
    }
};

QTEST_GUILESS_MAIN(tst_Downloader)

#include "tst_Downloader.moc"
