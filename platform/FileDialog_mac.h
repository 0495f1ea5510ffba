#pragma once

#include <QFileDialog>
#include <QStringList>

namespace Platform {

// The desktop's own file choosers. A filter is read as the list of allowed
// file types: every "*." is dropped and the rest split at ";;", so
// "*.mp3;;*.wav" allows mp3 and wav files, shown together as one filter.
class FileDialog_mac
{
public:
    static QString getOpenFileName(QWidget* parent, const QString& caption, const QString& directory,
        const QString& filter, QString* selectedFilter = nullptr, QFileDialog::Options options = {});
    static QString getSaveFileName(QWidget* parent, const QString& caption, const QString& directory,
        const QString& filter, QString* selectedFilter = nullptr, QFileDialog::Options options = {});
    static QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& directory,
        const QString& filter, QString* selectedFilter = nullptr, QFileDialog::Options options = {});

    static QStringList allowedFileTypes(const QString& filter);
    // The one name filter for QFileDialog that shows the allowed types, or
    // an empty text when every file is allowed.
    static QString nameFilter(const QStringList& fileTypes);
};

} // namespace Platform
