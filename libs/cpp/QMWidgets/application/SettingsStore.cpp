#include "SettingsStore.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace QMWidgets {

namespace {

enum class Kind
{
    Bool,
    Int,
    Text
};

struct KnownKey
{
    const char* name;
    Kind kind;
    qint64 minimum;
    qint64 maximum;
};

// Every key the programs of the family read, with what it may hold. Sizes
// stop at 32767 pixels, Qt's own limit for a widget.
const KnownKey knownKeys[] = {
    { "Language", Kind::Text, 0, 0 },
    { "AutoReminder", Kind::Bool, 0, 0 },
    { "AutoReminderCount", Kind::Int, 0, 1000000000 },
    { "NeverShowItAgain", Kind::Bool, 0, 0 },
    { "checkupdates", Kind::Bool, 0, 0 },
    { "Initialized", Kind::Bool, 0, 0 },
    { "Width", Kind::Int, 1, 32767 },
    { "Height", Kind::Int, 1, 32767 },
    { "Pitch", Kind::Int, 1, 100000 },
    { "Repeat", Kind::Bool, 0, 0 },
    { "TransposerSoundOn", Kind::Bool, 0, 0 },
    { "FavoritesCount", Kind::Int, 0, 10000 },
};

const KnownKey* findKey(const QString& key)
{
    for (const KnownKey& known : knownKeys) {
        if (key == QLatin1String(known.name))
            return &known;
    }
    return nullptr;
}

// Values come back from the file as text; anything else (a list, a byte
// array, a typed variant) was not written by the program for these keys.
bool isText(const QVariant& value)
{
    return value.userType() == QMetaType::QString || value.userType() == QMetaType::Bool
        || value.userType() == QMetaType::Int || value.userType() == QMetaType::LongLong;
}

} // namespace

QSettings* SettingsStore::open(const QString& path, const QString& group, QObject* parent)
{
    if (QFileInfo::exists(path) && !isReadable(path))
        moveAside(path);
    auto* settings = new QSettings(path, QSettings::IniFormat, parent);
    if (settings->status() == QSettings::FormatError) {
        delete settings;
        moveAside(path);
        settings = new QSettings(path, QSettings::IniFormat, parent);
    }
    repair(settings, group);
    return settings;
}

bool SettingsStore::isValid(const QString& key, const QVariant& value)
{
    const KnownKey* known = findKey(key);
    if (!known)
        return true;
    if (!isText(value))
        return false;
    const QString text = value.toString().trimmed();
    switch (known->kind) {
    case Kind::Bool:
        return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
            || text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1")
            || text == QLatin1String("0");
    case Kind::Int: {
        bool ok = false;
        const qint64 number = text.toLongLong(&ok);
        return ok && number >= known->minimum && number <= known->maximum;
    }
    case Kind::Text:
        return text.size() <= 64;
    }
    return false;
}

QString SettingsStore::brokenName(const QString& path)
{
    return path + QStringLiteral(".broken-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
}

// A settings writer produces text: a NUL or another control character means
// the file is something else, or was damaged.
bool SettingsStore::isReadable(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true; // nothing to read, nothing to lose: the settings stay empty
    const QByteArray bytes = file.readAll();
    for (char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        if (c < 0x20 && c != '\t' && c != '\n' && c != '\r')
            return false;
    }
    return true;
}

void SettingsStore::moveAside(const QString& path)
{
    QString aside = brokenName(path);
    for (int n = 1; QFileInfo::exists(aside); ++n)
        aside = brokenName(path) + QLatin1Char('-') + QString::number(n);
    if (!QFile::rename(path, aside))
        QFile::remove(path);
}

void SettingsStore::repair(QSettings* settings, const QString& group)
{
    settings->beginGroup(group);
    bool changed = false;
    const QStringList keys = settings->childKeys();
    for (const QString& key : keys) {
        if (!isValid(key, settings->value(key))) {
            settings->remove(key);
            changed = true;
        }
    }
    settings->endGroup();
    if (changed)
        settings->sync();
}

} // namespace QMWidgets
