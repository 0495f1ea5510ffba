#include "UpdateCheck.h"

#include "Downloader.h"

#include <QTimer>

namespace QMRequest {

QString UpdateCheck::fetch(const QString& url, int timeLimit)
{
    Downloader downloader;
    if (timeLimit > 0)
        QTimer::singleShot(timeLimit, &downloader, &Downloader::slotAbort);
    const QByteArray body = downloader.get(url);
    const int nul = body.indexOf('\0');
    return QString::fromUtf8(nul < 0 ? body : body.left(nul));
}

QString UpdateCheck::request(const ServerPair& servers, const QString& path)
{
    const QString answer = fetch(servers.primary + path, servers.timeLimit);
    if (!answer.isEmpty())
        return answer;
    return fetch(servers.fallback + path, servers.timeLimit);
}

UpdateCheck::Availability UpdateCheck::availability(const QString& answer, const QDate& buildDate)
{
    if (!answer.contains(QLatin1String("!date!")))
        return Unknown;
    const QString field = answer.split(QStringLiteral(";;;")).last().trimmed();
    const QDate release = QDate::fromString(field, QStringLiteral("yyyy-MM-dd"));
    if (release.isValid() && buildDate.isValid() && buildDate < release)
        return Available;
    return NotAvailable;
}

bool UpdateCheck::isAutomaticCheckDue(const QDate& lastCheck, const QDate& today)
{
    return lastCheck.isValid() && lastCheck.daysTo(today) >= 6;
}

} // namespace QMRequest
