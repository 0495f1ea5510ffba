#pragma once

#include "BoardBehaviour.h"

#include <QFrame>
#include <QMap>
#include <QVector>

namespace QMMusic {

class FingerboardMap;

// The drawn neck of a fretted instrument: background, one overlay per note,
// a hit test from a press to a note and the Find Note / Training switch.
// Concrete boards fill their notes and hit test.
class BoardBase : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(BoardBase)

public:
    BoardBase(const QString& instrumentKey, QWidget* parent = nullptr);

    virtual bool isIn(const int& x, const int& y, const QPoint& p) const;
    virtual QPixmap doSingleNote(const QPixmap& overlay);
    // Fills the file stems and the training notes.
    virtual void initNotes() = 0;
    // Widget point to position name, or an empty string.
    virtual QString positionToNote(int x, int y) const = 0;

    // Enters every stem into the overlay map.
    void createLayers();
    void setTrainButtonChecked();
    bool isInTraining() const;
    QString currentNote() const;
    QString instrumentKey() const;
    const QMap<QString, QString>& overlayMap() const;

public slots:
    void slotSetNote(const QString& name, int accidental);
    void slotNextNote();
    void slotSetInTraining(bool inTraining);

signals:
    void noteChanged(const QString& name, int accidental);
    void traningSelected();
    void findNoteSelected();

protected:
    // The stems and training notes of a fingerboard's range, appended.
    void appendNotes(const FingerboardMap& map);
    // The position name under a widget point by the fingerboard's boxes,
    // each tested with this board's isIn().
    QString noteOn(const FingerboardMap& map, int x, int y) const;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    // Filled by initNotes() of the concrete board.
    QList<QString> m_fileStems;
    QVector<QString> m_trainingNotes;

private:
    BoardBehaviour m_behaviour;
};

} // namespace QMMusic
