#include "PianoTonarium.h"

#include "DecoratedNotesWidget.h"
#include "FinderLayout.h"
#include "PianoBoard.h"

namespace QMMusic {

PianoTonarium::PianoTonarium(QWidget* parent)
    : QFrame(parent)
    , m_decoratedNotesWidget(new DecoratedNotesWidget)
    , m_pianoBoard(new PianoBoard)
{
    const FinderLayout::Staff staff = FinderLayout::staffFor(QStringLiteral("Piano"));
    m_decoratedNotesWidget->setObjectName(QStringLiteral("DecoratedNotesWidgetPiano"));
    m_decoratedNotesWidget->setInstrumentName(staff.instrumentName);

    // Both directions: slotSetNote emits nothing, so a note never comes back.
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::noteChanged, m_pianoBoard, &PianoBoard::slotSetNote);
    connect(m_pianoBoard, &PianoBoard::noteChanged, m_decoratedNotesWidget, &DecoratedNotesWidget::slotShowNote);

    FinderLayout::layOut(this, m_decoratedNotesWidget, m_pianoBoard, staff);
}

DecoratedNotesWidget* PianoTonarium::decoratedNotesWidget() const
{
    return m_decoratedNotesWidget;
}

PianoBoard* PianoTonarium::pianoBoard() const
{
    return m_pianoBoard;
}

} // namespace QMMusic
