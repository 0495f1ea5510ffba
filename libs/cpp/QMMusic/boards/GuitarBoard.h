#pragma once

#include "BoardBehaviour.h"

#include <QFrame>
#include <QMap>
#include <QVector>

namespace QMMusic {

// The drawn neck of a six-string guitar in standard tuning, 22 frets: a
// press names and plays a note, a note set from elsewhere lights all its places.
class GuitarBoard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarBoard)

public:
    explicit GuitarBoard(QWidget* parent = nullptr);

    // Widget point to position name ("E2", "F2#"), or an empty string.
    QString positionToNote(int x, int y) const;
    bool isIn(const int& x, const int& y, const QPoint& p) const;
    QPixmap doSingleNote(const QPixmap& overlay);
    void setTrainButtonChecked();
    bool isInTraining() const;
    // File stem of the note shown; empty when only the neck is shown.
    QString currentNote() const;
    const QMap<QString, QString>& overlayMap() const;
    const QVector<QString>& trainingNotes() const;

public slots:
    void slotSetNote(const QString& name, int accidental);
    void slotNextNote();
    void slotSetInTraining(bool inTraining);

signals:
    void noteChanged(const QString& name, int accidental);
    void traningSelected();
    void findNoteSelected();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    BoardBehaviour m_behaviour;
};

} // namespace QMMusic
