#include "UserDirectories.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace QMWidgets {

QString UserDirectories::homeSubDirectory(const QString& relative, bool create)
{
    const QString path
        = QDir::homePath() + relative + QLatin1Char('/') + QCoreApplication::applicationName() + QLatin1Char('/');
    if (create)
        ensureExists(path);
    return path;
}

QString UserDirectories::support(bool create)
{
    return homeSubDirectory(QStringLiteral("/Library/Application Support"), create);
}

QString UserDirectories::work(bool create)
{
    return homeSubDirectory(QStringLiteral("/Library"), create);
}

QString UserDirectories::caches(bool create)
{
    return homeSubDirectory(QStringLiteral("/Library/Caches"), create);
}

QString UserDirectories::pictures(bool create)
{
    return homeSubDirectory(QStringLiteral("/Pictures"), create);
}

QString UserDirectories::music(bool create)
{
    return homeSubDirectory(QStringLiteral("/Music"), create);
}

QString UserDirectories::movies(bool create)
{
    return homeSubDirectory(QStringLiteral("/Movies"), create);
}

QString UserDirectories::downloads(bool create)
{
    return homeSubDirectory(QStringLiteral("/Downloads"), create);
}

QString UserDirectories::documents(bool create)
{
    const QString path = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0)
        + QLatin1Char('/') + QCoreApplication::organizationName() + QLatin1Char('/')
        + QCoreApplication::applicationName() + QLatin1Char('/');
    if (create)
        ensureExists(path);
    return path;
}

QString UserDirectories::data(bool create)
{
    const QString path = QStandardPaths::standardLocations(QStandardPaths::AppLocalDataLocation).value(0);
    if (create)
        ensureExists(path);
    return path;
}

void UserDirectories::ensureExists(const QString& path)
{
    if (!path.isEmpty() && !QDir(path).exists())
        QDir().mkpath(path);
}

bool UserDirectories::noneExists()
{
    const QString paths[] = { support(false), documents(false), caches(false), data(false), work(false),
        pictures(false), music(false), movies(false), downloads(false) };
    for (const QString& path : paths) {
        if (QDir(path).exists())
            return false;
    }
    return true;
}

} // namespace QMWidgets
