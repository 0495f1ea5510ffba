#pragma once

#include "BoardLayers.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVector>

#include <functional>

class QFrame;
class QPainter;
class QPoint;
class QPushButton;

namespace QMMusic {

// What every drawn neck does, whatever its class: the Find Note / Training
// switch, the note shown and its overlay, a press that names and plays a
// note, a training draw that shows one place of a random note, and a height
// that keeps the neck's aspect. A board owns one and hands it its notes once
// they are known, its hit test and how to tell that the note changed.
class BoardBehaviour
{
public:
    using HitTest = std::function<QString(int x, int y)>;
    using NoteChanged = std::function<void(const QString& name, int accidental)>;

    // The board's pictures are ":/<key>_0@2x.jpg" and ":/<key>_<stem>@2x.png",
    // its samples "<key in lower case>_440_<stem>.mp3".
    BoardBehaviour(QFrame* board, const QString& instrumentKey, HitTest hitTest, NoteChanged noteChanged);

    // The overlays of these file stems and the positions that training draws
    // from; a board may learn them after its construction.
    void setNotes(const QList<QString>& fileStems, const QVector<QString>& trainingNotes);

    QPushButton* findNoteButton() const;
    QPushButton* trainingButton() const;
    QString instrumentKey() const;
    QString currentNote() const;
    bool isInTraining() const;
    const QMap<QString, QString>& overlayMap() const;
    const QVector<QString>& trainingNotes() const;

    void setNote(const QString& name, int accidental);
    // Shows a random training position and tells it; nothing without notes.
    void nextNote();
    void setInTraining(bool inTraining);

    // Names, shows and plays the note under a press, if any; false in
    // training, where the press is the widget's to handle.
    bool press(const QPoint& point);
    // The height that keeps the neck's aspect at the board's width.
    void fitHeight();
    // The neck, then the note's overlay: all of it, or in training the strip
    // that singleNote keeps of it.
    void paint(QPainter& painter, const std::function<QPixmap(const QPixmap&)>& singleNote);

private:
    QString overlayKey(const QString& stem) const;

    QFrame* m_board = nullptr;
    QString m_instrumentKey;
    HitTest m_hitTest;
    NoteChanged m_noteChanged;
    BoardLayers m_layers;
    QPushButton* m_findNoteButton = nullptr;
    QPushButton* m_trainingButton = nullptr;
    QMap<QString, QString> m_overlayMap;
    QVector<QString> m_trainingNotes;
    QString m_currentNote;
    bool m_inTraining = false;
};

} // namespace QMMusic
