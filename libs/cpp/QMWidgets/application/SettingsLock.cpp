#include "SettingsLock.h"

#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryFile>

namespace QMWidgets {

namespace {

// The value as the file holds it now. QSettings takes a file as unchanged
// when its size and time stamp (in milliseconds) are, so a write by another
// program within the same millisecond would go unseen; a copy under a new
// name is always read afresh.
QVariant readFromFile(const QString& path, const QString& key, const QVariant& defaultValue)
{
    QFile file(path);
    QTemporaryFile copy;
    if (!file.open(QIODevice::ReadOnly) || !copy.open())
        return defaultValue;
    copy.write(file.readAll());
    copy.close();
    return QSettings(copy.fileName(), QSettings::IniFormat).value(key, defaultValue);
}

} // namespace

QVariant SettingsLock::update(QSettings* settings, const QString& key, const QVariant& defaultValue,
    const std::function<QVariant(const QVariant&)>& change)
{
    // QSettings takes "<file>.lock" for each of its own writes; this lock
    // spans the read as well, so it needs a name of its own.
    QLockFile lock(lockFileName(settings));
    // A holder that died leaves a stale lock, and one older than the stale
    // time is taken over, so the wait has an end.
    const bool locked = lock.lock();
    settings->sync();
    const QVariant before = readFromFile(settings->fileName(), key, settings->value(key, defaultValue));
    settings->setValue(key, change(before));
    settings->sync();
    if (locked)
        lock.unlock();
    return before;
}

QString SettingsLock::lockFileName(const QSettings* settings)
{
    return settings->fileName() + QStringLiteral(".update.lock");
}

} // namespace QMWidgets
