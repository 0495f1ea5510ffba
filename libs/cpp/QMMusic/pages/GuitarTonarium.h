#pragma once

#include <QFrame>

namespace QMMusic {

class DecoratedNotesWidget;
class GuitarBoard;

// The guitar page's body: the staff on paper between two side pictures,
// above the board, with every view wired to the others.
class GuitarTonarium : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarTonarium)

public:
    explicit GuitarTonarium(QWidget* parent = nullptr);

    DecoratedNotesWidget* decoratedNotesWidget() const;
    GuitarBoard* guitarBoard() const;

public slots:
    // Refused with a message while a training run is on; the board's switch
    // then springs back to Training.
    void slotSetFindNoteMode();
    void slotSetTraningMode();

private:
    DecoratedNotesWidget* m_decoratedNotesWidget = nullptr;
    GuitarBoard* m_guitarBoard = nullptr;
};

} // namespace QMMusic
