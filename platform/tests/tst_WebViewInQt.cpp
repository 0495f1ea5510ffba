#include "WebViewInQt.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

// Pages from a local web server: start, finish with the page's text, a link
// followed to another URL, and a port where nobody answers.
class tst_WebViewInQt : public QObject
{
    Q_OBJECT

    QProcess m_server;
    QString m_root;

    static int freePort()
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        return probe.serverPort();
    }

private slots:
    void initTestCase()
    {
        m_server.start(QStringLiteral("python3"),
            { QStringLiteral("-u"), QStringLiteral("-m"), QStringLiteral("http.server"), QStringLiteral("--bind"),
                QStringLiteral("127.0.0.1"), QStringLiteral("--directory"), QStringLiteral(SRCDIR "web"),
                QStringLiteral("0") });
        while (!m_server.canReadLine()) {
            if (!m_server.waitForReadyRead(10000))
                QSKIP("no local web server");
        }
        // "Serving HTTP on 127.0.0.1 port 41235 (http://127.0.0.1:41235/) ..."
        const QStringList words = QString::fromUtf8(m_server.readLine()).split(QLatin1Char(' '));
        const int port = words.value(words.indexOf(QStringLiteral("port")) + 1).toInt();
        QVERIFY(port > 0);
        m_root = QStringLiteral("http://127.0.0.1:%1/").arg(port);
    }

    void cleanupTestCase()
    {
        m_server.terminate();
        m_server.waitForFinished(5000);
    }

    void load_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("byConstructor");
        QTest::addColumn<QString>("finalPage");
        QTest::addColumn<QString>("fails");
        QTest::newRow("a page, asked for") << "tuning.html" << false << "tuning.html" << QString();
        QTest::newRow("a page, given to the constructor") << "tuning.html" << true << "tuning.html" << QString();
        QTest::newRow("a link to another page") << "link.html" << false << "tuning.html" << QString();
        QTest::newRow("nobody listens") << QString() << false << QString() << "closed";
        // Waits out the whole time-out of 15 s.
        QTest::newRow("the server never answers") << QString() << false << QString() << "silent";
    }

    void load()
    {
        QFETCH(QString, page);
        QFETCH(bool, byConstructor);
        QFETCH(QString, finalPage);
        QFETCH(QString, fails);
        // Takes connections and never reads them.
        QTcpServer silent;
        if (fails == QLatin1String("silent"))
            QVERIFY(silent.listen(QHostAddress::LocalHost));
        const int port = fails == QLatin1String("silent") ? silent.serverPort() : freePort();
        const QString url = fails.isEmpty() ? m_root + page : QStringLiteral("http://127.0.0.1:%1/").arg(port);
        QWidget window;
        window.resize(320, 240);
        auto* view = byConstructor ? new WebViewInQt(url, &window) : new WebViewInQt(&window);
        QCOMPARE(view->size(), window.size());
        QSignalSpy started(view, &WebViewInQt::loadStart);
        QSignalSpy finished(view, &WebViewInQt::loadFinish);
        QSignalSpy failed(view, &WebViewInQt::loadError);
        QSignalSpy changed(view, &WebViewInQt::urlChanged);
        if (!byConstructor)
            view->loadRequest(url);

        if (!fails.isEmpty()) {
            QVERIFY(failed.wait(30000));
            QCOMPARE(failed.count(), 1);
            QCOMPARE(finished.count(), 0);
            return;
        }
        const QString finalUrl = m_root + finalPage;
        QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty() && finished.last().at(0).toString() == finalUrl, 20000);
        QCOMPARE(started.first().at(0).toString(), url);
        QVERIFY2(finished.last().at(1).toString().contains(QStringLiteral("Stimmung für Gitarre, строй гитары")),
            qPrintable(finished.last().at(1).toString()));
        QVERIFY(!changed.isEmpty());
        QCOMPARE(changed.last().at(0).toString(), finalUrl);
        QCOMPARE(failed.count(), 0);
    }
};

QTEST_MAIN(tst_WebViewInQt)
#include "tst_WebViewInQt.moc"
