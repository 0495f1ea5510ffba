#pragma once

#include <QAbstractListModel>
#include <QDir>
#include <QList>
#include <QStringList>
#include <QTime>

namespace QMMultiMedia {

class NativeAudioPlayer;

// The files of a play list for a view: names, paths, modification times and
// durations, the durations measured once by opening each file.
class PlayListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_DISABLE_COPY(PlayListModel)

public:
    enum Role
    {
        ModifiedRole = 257,
        PathRole = 259,
        DurationRole = 260
    };

    explicit PlayListModel(QObject* parent = nullptr);

    // The files of the folder that match the name filters.
    void setPlayList(const QDir& dir, const QStringList& nameFilters);
    void setPlayList(const QStringList& paths);
    void appendToPlayList(const QStringList& paths);
    // 00:00:00 for a file that does not play.
    QTime audioFileDuration(const QString& path) const;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void appendPaths(const QStringList& paths);

    QStringList m_paths;
    QList<QTime> m_durations;
    NativeAudioPlayer* m_player = nullptr;
};

} // namespace QMMultiMedia
