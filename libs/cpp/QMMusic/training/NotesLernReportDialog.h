#pragma once

#include <QDialog>
#include <QMap>
#include <QPair>
#include <QString>

namespace QMMusic {

// The modal "Full Report" window: one row per key pressed in the run, with a
// score bar and the right and wrong counts of that key.
class NotesLernReportDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(NotesLernReportDialog)

public:
    NotesLernReportDialog(const QMap<QString, QPair<int, int>>& report, QWidget* parent = nullptr);
};

} // namespace QMMusic
