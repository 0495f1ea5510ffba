#include "SettingsLock.h"

#include <QLockFile>
#include <QSettings>

namespace QMWidgets {

QVariant SettingsLock::update(QSettings* settings, const QString& key, const QVariant& defaultValue,
    const std::function<QVariant(const QVariant&)>& change)
{
    // QSettings takes "<file>.lock" for each of its own writes; this lock
    // spans the read as well, so it needs a name of its own.
    QLockFile lock(lockFileName(settings));
    // A lock that can't be had within a few seconds is another program's
    // fault: go on unlocked rather than keep the window waiting.
    const bool locked = lock.tryLock(5000);
    settings->sync();
    const QVariant before = settings->value(key, defaultValue);
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
