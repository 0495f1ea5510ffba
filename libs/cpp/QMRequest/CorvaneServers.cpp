#include "CorvaneServers.h"

namespace QMRequest {

namespace {

const char updatePrimary[] = "http://apps.corvane.com";
const char updateFallback[] = "http://apps2.corvane.com";
const char updateRequest[] = "/apps/appscontrol/updaterequest.php?appname=";
const int updateTimeLimit = 7000;

// "http://stats.corvane.com", "http://stats2.corvane.com" and
// "/apps/appscontrol/appcounter.php?appname=".
const char counterPrimary[] = "AGgAdAB0AHAAOgAvAC8AcwB0AGEAdABzAC4AYwBvAHIAdgBhAG4AZQAuAGMAbwBt";
const char counterFallback[] = "AGgAdAB0AHAAOgAvAC8AcwB0AGEAdABzADIALgBjAG8AcgB2AGEAbgBlAC4AYwBvAG0=";
const char counterRequest[] = "AC8AYQBwAHAAcwAvAGEAcABwAHMAYwBvAG4AdAByAG8AbAAvAGEAcABwAGMAbwB1AG4AdABlAHIALgBwAGgAcAA/"
                              "AGEAcABwAG4AYQBtAGUAPQ==";
const int counterTimeLimit = 10000;

} // namespace

ServerPair CorvaneServers::updateServers()
{
    return { QLatin1String(updatePrimary), QLatin1String(updateFallback), updateTimeLimit };
}

QString CorvaneServers::updatePath(const QString& applicationName)
{
    return QLatin1String(updateRequest) + applicationName.toLower();
}

ServerPair CorvaneServers::counterServers()
{
    return { decodeQString(counterPrimary), decodeQString(counterFallback), counterTimeLimit };
}

QString CorvaneServers::counterPath(const QString& applicationName)
{
    return decodeQString(counterRequest) + applicationName.toLower();
}

QString CorvaneServers::decodeQString(const QByteArray& base64)
{
    const QByteArray::FromBase64Result decoded
        = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.size() % 2 != 0)
        return QString();
    const QByteArray& bytes = decoded.decoded;
    QString text;
    text.reserve(bytes.size() / 2);
    for (int i = 0; i < bytes.size(); i += 2)
        text.append(QChar(ushort((uchar(bytes.at(i)) << 8) | uchar(bytes.at(i + 1)))));
    return text;
}

} // namespace QMRequest
