#pragma once

#include "CorvaneServers.h"

#include <QDate>
#include <QString>

namespace QMRequest {

// The update check's conversation and its rules: ask the primary server and,
// when it gives nothing, the fallback; read the release date from the
// answer and compare it with the build date; check by itself at most once
// in six days.
class UpdateCheck
{
public:
    enum Availability
    {
        Unknown = 0,
        Available = 1,
        NotAvailable = -1
    };

    // The answer of one request within the time limit, cut at its first NUL
    // byte; empty on any failure.
    static QString fetch(const QString& url, int timeLimit);
    // The primary's answer, or the fallback's when the primary gave nothing.
    static QString request(const ServerPair& servers, const QString& path);
    // Available when the build lies before the date of the answer; Unknown
    // when the answer is no update answer ("!date!" missing).
    static Availability availability(const QString& answer, const QDate& buildDate);
    // No stored date or one less than six days ago: no check yet.
    static bool isAutomaticCheckDue(const QDate& lastCheck, const QDate& today);
};

} // namespace QMRequest
