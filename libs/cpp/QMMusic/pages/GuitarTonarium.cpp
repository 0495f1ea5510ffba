#include "GuitarTonarium.h"

#include "DecoratedNotesWidget.h"
#include "FinderLayout.h"
#include "GuitarBoard.h"

namespace QMMusic {

GuitarTonarium::GuitarTonarium(QWidget* parent)
    : QFrame(parent)
{
    m_decoratedNotesWidget = new DecoratedNotesWidget;
    m_guitarBoard = new GuitarBoard;

    connect(m_guitarBoard, &GuitarBoard::traningSelected, this, &GuitarTonarium::slotSetTraningMode);
    connect(m_guitarBoard, &GuitarBoard::findNoteSelected, this, &GuitarTonarium::slotSetFindNoteMode);
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::needNextNote, m_guitarBoard, &GuitarBoard::slotNextNote);
    connect(
        m_decoratedNotesWidget, &DecoratedNotesWidget::trainingStarted, m_guitarBoard, &GuitarBoard::slotSetInTraining);

    const FinderLayout::Staff staff = FinderLayout::staffFor(QStringLiteral("Guitar"));
    FinderLayout::applyStaff(m_decoratedNotesWidget, staff);

    // Both directions: slotSetNote emits nothing, so a note never comes back.
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::noteChanged, m_guitarBoard, &GuitarBoard::slotSetNote);
    connect(m_guitarBoard, &GuitarBoard::noteChanged, m_decoratedNotesWidget, &DecoratedNotesWidget::slotShowNote);

    FinderLayout::layOut(this, m_decoratedNotesWidget, m_guitarBoard, staff);

    slotSetFindNoteMode();
}

DecoratedNotesWidget* GuitarTonarium::decoratedNotesWidget() const
{
    return m_decoratedNotesWidget;
}

GuitarBoard* GuitarTonarium::guitarBoard() const
{
    return m_guitarBoard;
}

void GuitarTonarium::slotSetFindNoteMode()
{
    if (FinderLayout::refuseDuringTraining(this, m_decoratedNotesWidget)) {
        m_guitarBoard->setTrainButtonChecked();
        return;
    }
    m_decoratedNotesWidget->slotSetFindNoteMode();
}

void GuitarTonarium::slotSetTraningMode()
{
    m_decoratedNotesWidget->slotSetTraningMode();
}

} // namespace QMMusic
