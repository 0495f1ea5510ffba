#include "InstrumentFinder.h"

#include "BoardBase.h"
#include "DecoratedNotesWidget.h"

namespace QMMusic {

InstrumentFinder::InstrumentFinder(BoardBase* board, const FinderLayout::Staff& staff, QWidget* parent)
    : QFrame(parent)
    , m_decoratedNotesWidget(new DecoratedNotesWidget)
    , m_board(board)
{
    connect(m_board, &BoardBase::traningSelected, this, &InstrumentFinder::slotSetTraningMode);
    connect(m_board, &BoardBase::findNoteSelected, this, &InstrumentFinder::slotSetFindNoteMode);
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::needNextNote, m_board, &BoardBase::slotNextNote);
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::trainingStarted, m_board, &BoardBase::slotSetInTraining);

    FinderLayout::applyStaff(m_decoratedNotesWidget, staff);

    // Both directions: slotSetNote emits nothing, so a note never comes back.
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::noteChanged, m_board, &BoardBase::slotSetNote);
    connect(m_board, &BoardBase::noteChanged, m_decoratedNotesWidget, &DecoratedNotesWidget::slotShowNote);

    FinderLayout::layOut(this, m_decoratedNotesWidget, m_board, staff);

    slotSetFindNoteMode();
}

DecoratedNotesWidget* InstrumentFinder::decoratedNotesWidget() const
{
    return m_decoratedNotesWidget;
}

BoardBase* InstrumentFinder::board() const
{
    return m_board;
}

void InstrumentFinder::slotSetFindNoteMode()
{
    if (FinderLayout::refuseDuringTraining(this, m_decoratedNotesWidget)) {
        m_board->setTrainButtonChecked();
        return;
    }
    m_decoratedNotesWidget->slotSetFindNoteMode();
}

void InstrumentFinder::slotSetTraningMode()
{
    m_decoratedNotesWidget->slotSetTraningMode();
}

} // namespace QMMusic
