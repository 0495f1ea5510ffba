#include "MessageLog.h"
#include "UserDirectories.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using QMWidgets::MessageLog;
using QMWidgets::UserDirectories;

namespace {

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_MessageLog : public QObject
{
    Q_OBJECT

private slots:
    void logLine_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("line");
        QTest::newRow("debug") << int(QtDebugMsg) << "09.03.14-07:05 Debug: tuned, Board.cpp\n";
        QTest::newRow("warning") << int(QtWarningMsg) << "09.03.14-07:05 Warning: tuned, Board.cpp\n";
        QTest::newRow("critical") << int(QtCriticalMsg) << "09.03.14-07:05 Critical: tuned, Board.cpp\n";
        QTest::newRow("fatal") << int(QtFatalMsg) << "09.03.14-07:05 Fatal: tuned, Board.cpp\n";
        QTest::newRow("info is not logged") << int(QtInfoMsg) << QString();
    }

    void logLine()
    {
        QFETCH(int, type);
        QFETCH(QString, line);
        const QMessageLogContext context("Board.cpp", 12, "void f()", "default");
        const QDateTime time(QDate(2014, 3, 9), QTime(7, 5, 59));
        QCOMPARE(MessageLog::line(QtMsgType(type), context, QStringLiteral("tuned"), time), line);
    }

    void logToFileAndSilence()
    {
        const QString log = UserDirectories::support(false) + QStringLiteral("protocol.log");
        QFile::remove(log);
        MessageLog::toFile();
        qWarning("first %d", 1);
        qCritical("second");
        MessageLog::silence();
        qWarning("silenced");
        const QStringList lines = readFile(log).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        const QRegularExpression form(QStringLiteral("^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Warning: first 1, "));
        QVERIFY2(form.match(lines.at(0)).hasMatch(), qPrintable(lines.at(0)));
        QVERIFY2(lines.at(1).contains(QStringLiteral(" Critical: second, ")), qPrintable(lines.at(1)));
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TonariumTest"));
    tst_MessageLog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_MessageLog.moc"
