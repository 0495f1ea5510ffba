#pragma once

#include <QString>
#include <QtGlobal>

class QDateTime;

namespace QMWidgets {

// Where the application's messages go: nowhere, or one line each appended
// to "protocol.log" in the support directory.
class MessageLog
{
public:
    static void silence();
    static void toFile();
    // "dd.MM.yy-hh:mm Warning: <message>, <source file>" and a line feed;
    // empty for the types that are not logged (information).
    static QString line(
        QtMsgType type, const QMessageLogContext& context, const QString& message, const QDateTime& time);

private:
    static void discard(QtMsgType type, const QMessageLogContext& context, const QString& message);
    static void append(QtMsgType type, const QMessageLogContext& context, const QString& message);
};

} // namespace QMWidgets
