#include "MessageLog.h"

#include "UserDirectories.h"

#include <QDateTime>
#include <QFile>

namespace QMWidgets {

QString MessageLog::line(
    QtMsgType type, const QMessageLogContext& context, const QString& message, const QDateTime& time)
{
    const char* word = nullptr;
    switch (type) {
    case QtDebugMsg:
        word = " Debug: ";
        break;
    case QtWarningMsg:
        word = " Warning: ";
        break;
    case QtCriticalMsg:
        word = " Critical: ";
        break;
    case QtFatalMsg:
        word = " Fatal: ";
        break;
    default:
        return QString();
    }
    return time.toString(QStringLiteral("dd.MM.yy-hh:mm")) + QLatin1String(word) + message + QStringLiteral(", ")
        + QString::fromUtf8(context.file) + QLatin1Char('\n');
}

void MessageLog::discard(QtMsgType, const QMessageLogContext&, const QString&) { }

void MessageLog::append(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QString text = line(type, context, message, QDateTime::currentDateTime());
    if (text.isEmpty())
        return;
    QFile file(UserDirectories::support(true) + QStringLiteral("protocol.log"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return;
    file.write(text.toUtf8());
}

void MessageLog::silence()
{
    qInstallMessageHandler(&MessageLog::discard);
}

void MessageLog::toFile()
{
    qInstallMessageHandler(&MessageLog::append);
}

} // namespace QMWidgets
