#pragma once

#include <QVariant>

#include <functional>

class QSettings;

namespace QMWidgets {

// A change of one settings value that two programs starting at once can't
// lose or repeat: under a lock file beside the settings file, the value
// that other programs wrote is read, changed and written back at once.
class SettingsLock
{
public:
    // Stores change(value) under key and returns the value before it.
    static QVariant update(QSettings* settings, const QString& key, const QVariant& defaultValue,
        const std::function<QVariant(const QVariant&)>& change);
    static QString lockFileName(const QSettings* settings);
};

} // namespace QMWidgets
