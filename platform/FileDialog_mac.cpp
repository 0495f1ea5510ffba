#include "FileDialog_mac.h"

namespace Platform {

QString FileDialog_mac::getOpenFileName(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileName(
        parent, caption, directory, nameFilter(allowedFileTypes(filter)), selectedFilter, options);
}

QString FileDialog_mac::getSaveFileName(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getSaveFileName(
        parent, caption, directory, nameFilter(allowedFileTypes(filter)), selectedFilter, options);
}

QStringList FileDialog_mac::getOpenFileNames(QWidget* parent, const QString& caption, const QString& directory,
    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileNames(
        parent, caption, directory, nameFilter(allowedFileTypes(filter)), selectedFilter, options);
}

QStringList FileDialog_mac::allowedFileTypes(const QString& filter)
{
    QString types = filter;
    types.remove(QLatin1String("*."));
    QStringList list = types.split(QStringLiteral(";;"));
    for (QString& type : list)
        type = type.trimmed();
    list.removeAll(QString());
    return list;
}

QString FileDialog_mac::nameFilter(const QStringList& fileTypes)
{
    QStringList patterns;
    for (const QString& type : fileTypes)
        patterns << QStringLiteral("*.") + type;
    return patterns.join(QLatin1Char(' '));
}

} // namespace Platform
