#pragma once

#include <QFileDialog>

namespace QMWidgets {

// The program's file choosers. With a parent the dialog opens on it and a
// local event loop waits for the answer, so that a dialog shown as a sheet
// of the parent does not stop the rest of the program; without a parent
// Qt's own static dialogs are used.
class FileDialog
{
public:
    static QString getOpenFileName(QWidget* parent, const QString& caption = QString(),
        const QString& directory = QString(), const QString& filter = QString(), QString* selectedFilter = nullptr,
        QFileDialog::Options options = {});
    static QString getSaveFileName(QWidget* parent, const QString& caption = QString(),
        const QString& directory = QString(), const QString& filter = QString(), QString* selectedFilter = nullptr,
        QFileDialog::Options options = {});
    static QStringList getOpenFileNames(QWidget* parent, const QString& caption = QString(),
        const QString& directory = QString(), const QString& filter = QString(), QString* selectedFilter = nullptr,
        QFileDialog::Options options = {});

private:
    static QStringList runOnParent(QWidget* parent, const QString& caption, const QString& directory,
        const QString& filter, QString* selectedFilter, QFileDialog::Options options, QFileDialog::FileMode mode,
        QFileDialog::AcceptMode acceptMode);
};

} // namespace QMWidgets
