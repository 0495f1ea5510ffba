#pragma once

#include <QString>

namespace Platform {

// The program's XDG autostart entry, <folder>/<desktop id>.desktop, which
// the desktop reads at log-on. A file of that name that is no desktop entry
// or starts another program belongs to someone else and is left alone.
class AutostartEntry
{
public:
    AutostartEntry(const QString& folder, const QString& desktopId, const QString& executable);

    // $XDG_CONFIG_HOME/autostart, by default ~/.config/autostart.
    static QString defaultFolder();

    QString filePath() const;
    bool isEnabled() const;
    // Writes or removes the entry; false when the file could not be written
    // or removed, or belongs to someone else.
    bool setEnabled(bool on) const;

    // The Exec value that starts the executable, quoted where needed, and
    // the program such a value starts.
    static QString execValue(const QString& executable);
    static QString programOfExec(const QString& exec);

private:
    enum class Owner
    {
        Nobody,
        Us,
        UsButHidden,
        SomeoneElse
    };
    Owner owner() const;

    QString m_folder;
    QString m_desktopId;
    QString m_executable;
};

} // namespace Platform
