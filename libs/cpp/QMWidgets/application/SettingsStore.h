#pragma once

#include <QString>
#include <QVariant>

class QObject;
class QSettings;

namespace QMWidgets {

// Opens the settings file and keeps it sound. A file that cannot be read as
// settings (bytes that no settings writer produces, or a parse error) is
// moved aside under a ".broken-<time>" name, never overwritten, and a fresh
// one is started. The keys the program knows are checked against their
// type and range: a value that would mislead the program (a word where a
// number goes, a size of millions, a list where a switch goes) is removed,
// so that its default applies, and the file is written back corrected.
class SettingsStore
{
public:
    // The settings in `path`, with the known keys checked under `group`.
    static QSettings* open(const QString& path, const QString& group, QObject* parent);

    // True when `value` is acceptable for `key`; unknown keys always are.
    static bool isValid(const QString& key, const QVariant& value);

    // The name a broken file is moved to.
    static QString brokenName(const QString& path);

private:
    static bool isReadable(const QString& path);
    static void moveAside(const QString& path);
    static void repair(QSettings* settings, const QString& group);
};

} // namespace QMWidgets
