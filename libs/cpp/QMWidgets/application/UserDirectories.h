#pragma once

#include <QString>

namespace QMWidgets {

// The per-user directories of the running application, named after the
// organisation and application names of QCoreApplication. All paths but
// data() end in "/"; with create, the directory is made when missing.
class UserDirectories
{
public:
    static QString support(bool create);
    static QString work(bool create);
    static QString caches(bool create);
    static QString pictures(bool create);
    static QString music(bool create);
    static QString movies(bool create);
    static QString downloads(bool create);
    static QString documents(bool create);
    static QString data(bool create);
    static void ensureExists(const QString& path);
    // True when none of the nine directories exists yet.
    static bool noneExists();

private:
    static QString homeSubDirectory(const QString& relative, bool create);
};

} // namespace QMWidgets
