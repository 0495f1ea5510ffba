#pragma once

#include <QFrame>
#include <QMap>
#include <QPair>
#include <QString>

class QLabel;
class QPushButton;

namespace QMMusic {

class NotesLernBar;

// The score panel of the trainer: right and wrong counts, the "Full Report"
// button and the score bar; it keeps the per-key report of the current run.
class NotesLernStatistic : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(NotesLernStatistic)

public:
    explicit NotesLernStatistic(QWidget* parent = nullptr);

    void updateInfo();
    void incWrong();
    void incRight();
    int wrongCount() const;
    int rightCount() const;
    // Counts to zero and the report emptied.
    void reset();
    // Adds the pair (rights, wrongs) to the entry of the key, making it if needed.
    void addToReport(const QString& key, const QPair<int, int>& result);
    const QMap<QString, QPair<int, int>>& report() const;

    NotesLernBar* bar() const;

public slots:
    void slotShowReport();

private:
    NotesLernBar* m_bar = nullptr;
    QLabel* m_rightLabel = nullptr;
    QLabel* m_wrongLabel = nullptr;
    QPushButton* m_reportButton = nullptr;
    QMap<QString, QPair<int, int>> m_report;
};

} // namespace QMMusic
