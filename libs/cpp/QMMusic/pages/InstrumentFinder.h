#pragma once

#include "FinderLayout.h"

#include <QFrame>

namespace QMMusic {

class BoardBase;
class DecoratedNotesWidget;

// The body of a note finder on a BoardBase: the staff on paper between two
// side pictures, above the board, with every view wired to the others. The
// instruments' finders give it their board and their staff.
class InstrumentFinder : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(InstrumentFinder)

public:
    InstrumentFinder(BoardBase* board, const FinderLayout::Staff& staff, QWidget* parent = nullptr);

    DecoratedNotesWidget* decoratedNotesWidget() const;
    BoardBase* board() const;

public slots:
    // Refused with a message while a training run is on; the board's switch
    // then springs back to Training.
    void slotSetFindNoteMode();
    void slotSetTraningMode();

private:
    DecoratedNotesWidget* m_decoratedNotesWidget = nullptr;
    BoardBase* m_board = nullptr;
};

} // namespace QMMusic
