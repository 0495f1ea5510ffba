#include "AutostartEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>

namespace Platform {

namespace {

const QLatin1String entryGroup("[Desktop Entry]");

// Characters that make an Exec argument need quotes, and those that must be
// escaped with a backslash inside the quotes.
const QLatin1String reservedInExec(" \t\n\"'\\><~|&;$*?#()`");
const QLatin1String escapedInQuotes("\"`$\\");

// Desktop entry strings escape the backslash itself once more.
QString escapeString(const QString& value)
{
    QString escaped = value;
    return escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
}

QString unescapeString(const QString& value)
{
    QString plain;
    for (int i = 0; i < value.size(); ++i) {
        if (value.at(i) != QLatin1Char('\\') || i + 1 == value.size()) {
            plain += value.at(i);
            continue;
        }
        const QChar next = value.at(++i);
        if (next == QLatin1Char('s'))
            plain += QLatin1Char(' ');
        else if (next == QLatin1Char('t'))
            plain += QLatin1Char('\t');
        else if (next == QLatin1Char('n'))
            plain += QLatin1Char('\n');
        else if (next == QLatin1Char('r'))
            plain += QLatin1Char('\r');
        else
            plain += next;
    }
    return plain;
}

} // namespace

AutostartEntry::AutostartEntry(const QString& folder, const QString& desktopId, const QString& executable)
    : m_folder(folder)
    , m_desktopId(desktopId)
    , m_executable(executable)
{
}

QString AutostartEntry::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart");
}

QString AutostartEntry::filePath() const
{
    return m_folder + QLatin1Char('/') + m_desktopId + QStringLiteral(".desktop");
}

bool AutostartEntry::isEnabled() const
{
    return owner() == Owner::Us;
}

bool AutostartEntry::setEnabled(bool on) const
{
    if (m_desktopId.isEmpty() || m_executable.isEmpty())
        return false;
    const Owner current = owner();
    if (current == Owner::SomeoneElse)
        return false;
    if (!on)
        return current == Owner::Nobody || QFile::remove(filePath());
    if (!QDir().mkpath(m_folder))
        return false;
    // Written whole or not at all: a half-written entry would start nothing.
    QSaveFile file(filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << entryGroup << '\n'
        << "Type=Application\n"
        << "Name=" << escapeString(QCoreApplication::applicationName()) << '\n'
        << "Exec=" << escapeString(execValue(m_executable)) << '\n'
        << "X-GNOME-Autostart-enabled=true\n";
    out.flush();
    return file.commit();
}

QString AutostartEntry::execValue(const QString& executable)
{
    QString value = executable;
    // A field code starts with '%'; a plain percent sign is doubled.
    value.replace(QLatin1Char('%'), QLatin1String("%%"));
    if (std::none_of(value.cbegin(), value.cend(), [](QChar c) { return QString(reservedInExec).contains(c); }))
        return value;
    QString quoted = QStringLiteral("\"");
    for (const QChar c : qAsConst(value)) {
        if (QString(escapedInQuotes).contains(c))
            quoted += QLatin1Char('\\');
        quoted += c;
    }
    return quoted + QLatin1Char('"');
}

QString AutostartEntry::programOfExec(const QString& exec)
{
    QString program;
    const QString trimmed = exec.trimmed();
    if (trimmed.startsWith(QLatin1Char('"'))) {
        int i = 1;
        for (; i < trimmed.size() && trimmed.at(i) != QLatin1Char('"'); ++i) {
            if (trimmed.at(i) == QLatin1Char('\\') && i + 1 < trimmed.size())
                ++i;
            program += trimmed.at(i);
        }
        if (i == trimmed.size())
            return QString();
    } else {
        program = trimmed.section(QLatin1Char(' '), 0, 0);
    }
    return program.replace(QLatin1String("%%"), QLatin1String("%"));
}

AutostartEntry::Owner AutostartEntry::owner() const
{
    QFile file(filePath());
    if (!file.exists())
        return Owner::Nobody;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return Owner::SomeoneElse;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    bool inEntryGroup = false;
    bool seenGroup = false;
    QString program;
    bool hidden = false;
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('['))) {
            // The desktop entry group comes first, before any other group.
            inEntryGroup = !seenGroup && line == entryGroup;
            seenGroup = true;
            continue;
        }
        if (!inEntryGroup)
            continue;
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            continue;
        const QString key = line.left(equals).trimmed();
        const QString value = unescapeString(line.mid(equals + 1).trimmed());
        if (key == QLatin1String("Exec"))
            program = programOfExec(value);
        else if (key == QLatin1String("Hidden"))
            hidden = value == QLatin1String("true");
    }
    if (program.isEmpty() || program != m_executable)
        return Owner::SomeoneElse;
    // A hidden entry is how a desktop records "do not start": ours, but off.
    return hidden ? Owner::UsButHidden : Owner::Us;
}

} // namespace Platform
