#include "PlayListModel.h"

#include "NativeAudioPlayer.h"

#include <TimeInfo.h>

#include <QDateTime>
#include <QFileInfo>

namespace QMMultiMedia {

PlayListModel::PlayListModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_player(new NativeAudioPlayer(this))
{
    m_player->setWholeFiles(true);
}

void PlayListModel::setPlayList(const QDir& dir, const QStringList& nameFilters)
{
    QStringList paths;
    for (const QString& name : dir.entryList(nameFilters, QDir::Files))
        paths.append(dir.absoluteFilePath(name));
    setPlayList(paths);
}

void PlayListModel::setPlayList(const QStringList& paths)
{
    beginResetModel();
    m_paths.clear();
    m_durations.clear();
    appendPaths(paths);
    endResetModel();
}

void PlayListModel::appendToPlayList(const QStringList& paths)
{
    beginResetModel();
    appendPaths(paths);
    endResetModel();
}

QTime PlayListModel::audioFileDuration(const QString& path) const
{
    m_player->setMedia(path);
    return MTools::TimeInfo::msecsToTime(static_cast<int>(m_player->duration()));
}

void PlayListModel::appendPaths(const QStringList& paths)
{
    for (const QString& path : paths) {
        m_paths.append(path);
        m_durations.append(audioFileDuration(path));
    }
}

QVariant PlayListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_paths.size())
        return QVariant();
    const QString& path = m_paths.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QFileInfo(path).fileName();
    case ModifiedRole:
        return QFileInfo(path).lastModified();
    case PathRole:
        return path;
    case DurationRole:
        return m_durations.at(index.row());
    default:
        return QVariant();
    }
}

bool PlayListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.row() >= m_paths.size())
        return false;
    m_paths[index.row()] = value.toString();
    emit dataChanged(index, index);
    return true;
}

int PlayListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_paths.size();
}

QVariant PlayListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Horizontal)
        return QStringLiteral("Number");
    return section;
}

Qt::ItemFlags PlayListModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags result = QAbstractListModel::flags(index);
    if (index.isValid())
        result |= Qt::ItemIsEditable;
    return result;
}

} // namespace QMMultiMedia
