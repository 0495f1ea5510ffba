// Start-up to the first painted window: launches each real finder program on
// the X display this benchmark runs on (start it with
// xvfb-run -a -s "-screen 0 1280x800x24" bench_startup) and watches the
// screen until the window's first frame shows, then ends the program. The
// first frame seen is saved as bench_startup_first_frame.png in the temp folder.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

class bench_startup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startupToFirstPaint_data();
    void startupToFirstPaint();

private:
    static QImage screenImage();
    static bool differs(const QImage& a, const QImage& b);
    bool m_firstFrameSaved = false;
    static constexpr int launches = 9;
};

void bench_startup::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs an X display; run under xvfb-run");
}

QImage bench_startup::screenImage()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

bool bench_startup::differs(const QImage& a, const QImage& b)
{
    // Sample a coarse grid: the window covers at least 800 by 600 pixels.
    for (int y = 4; y < a.height(); y += 16) {
        for (int x = 4; x < a.width(); x += 16) {
            if (a.pixel(x, y) != b.pixel(x, y))
                return true;
        }
    }
    return false;
}

void bench_startup::startupToFirstPaint_data()
{
    QTest::addColumn<bool>("firstStart");
    QTest::addColumn<QString>("program");
    QTest::newRow("GuitarTonarium, first start, empty home") << true << "GuitarTonarium";
    for (const char* program : { "GuitarTonarium", "UkuleleTonarium", "ViolinTonarium", "BassTonarium",
             "BalalaikaTonarium", "BanjoTonarium", "MandolinTonarium" })
        QTest::newRow(qPrintable(QStringLiteral("%1, later start").arg(QLatin1String(program)))) << false << program;
    QTest::newRow("an empty Qt window of the same size") << false << "bench_emptywindow";
}

void bench_startup::startupToFirstPaint()
{
    QFETCH(bool, firstStart);
    QFETCH(QString, program);
    const bool empty = program == QLatin1String("bench_emptywindow");
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));

    const auto runOnce = [&]() {
        if (firstStart) {
            QDir(home.path()).removeRecursively();
            QDir().mkpath(home.path());
        }
        const QImage before = screenImage();
        QProcess process;
        process.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, QStringList());
        QImage now = before;
        while (clock.elapsed() < 20000 && process.state() != QProcess::NotRunning) {
            QTest::qWait(2);
            now = screenImage();
            if (differs(before, now))
                break;
        }
        const qint64 elapsed = differs(before, now) ? clock.elapsed() : -1;
        if (!m_firstFrameSaved && elapsed >= 0 && !empty)
            m_firstFrameSaved = now.save(QDir::tempPath() + QStringLiteral("/bench_startup_first_frame.png"));
        process.kill();
        process.waitForFinished(5000);
        // Let the screen clear before the next launch.
        QElapsedTimer settle;
        settle.start();
        while (differs(before, screenImage()) && settle.elapsed() < 5000)
            QTest::qWait(5);
        return elapsed;
    };

    if (!firstStart)
        runOnce(); // leaves the settings and folders behind
    QList<qint64> times;
    for (int i = 0; i < launches; ++i)
        times << runOnce();
    QVERIFY(!times.contains(-1));
    std::sort(times.begin(), times.end());
    qInfo("launch to first painted frame: median %lld ms, min %lld ms, max %lld ms over %d launches",
        times.at(times.size() / 2), times.first(), times.last(), int(times.size()));
    // Each launch is measured on its own clock, without the shutdown and the
    // wait for a clear screen between launches; the median is the result.
    QTest::setBenchmarkResult(times.at(times.size() / 2), QTest::WalltimeMilliseconds);
}

QTEST_MAIN(bench_startup)
#include "bench_startup.moc"
