#include "FileDialog.h"

#include <QEventLoop>
#include <QPointer>

#include <memory>

namespace QMWidgets {

QString FileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    if (!parent)
        return QFileDialog::getOpenFileName(parent, caption, directory, filter, selectedFilter, options);
    return runOnParent(
        parent, caption, directory, filter, selectedFilter, options, QFileDialog::ExistingFile, QFileDialog::AcceptOpen)
        .value(0);
}

QString FileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    if (!parent)
        return QFileDialog::getSaveFileName(parent, caption, directory, filter, selectedFilter, options);
    return runOnParent(
        parent, caption, directory, filter, selectedFilter, options, QFileDialog::AnyFile, QFileDialog::AcceptSave)
        .value(0);
}

QStringList FileDialog::getOpenFileNames(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    if (!parent)
        return QFileDialog::getOpenFileNames(parent, caption, directory, filter, selectedFilter, options);
    return runOnParent(parent, caption, directory, filter, selectedFilter, options, QFileDialog::ExistingFiles,
        QFileDialog::AcceptOpen);
}

QStringList FileDialog::runOnParent(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options, QFileDialog::FileMode mode,
    QFileDialog::AcceptMode acceptMode)
{
    // On the heap: the parent may be closed and deleted while the dialog is open.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, caption, directory, filter);
    dialog->setFileMode(mode);
    dialog->setAcceptMode(acceptMode);
    dialog->setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty())
        dialog->selectNameFilter(*selectedFilter);

    QEventLoop loop;
    QObject::connect(dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
    dialog->open();
    loop.exec();

    if (!dialog)
        return QStringList();
    const std::unique_ptr<QFileDialog> owner(dialog.data());
    if (dialog->result() != QDialog::Accepted)
        return QStringList();
    if (selectedFilter)
        *selectedFilter = dialog->selectedNameFilter();
    return dialog->selectedFiles();
}

} // namespace QMWidgets
