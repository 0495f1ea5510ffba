#include "DecoratedNotesWidget.h"

#include "NotesTrainerWidget.h"
#include "NotesWidget.h"

#include <QVBoxLayout>

namespace QMMusic {

DecoratedNotesWidget::DecoratedNotesWidget(QWidget* parent)
    : QFrame(parent)
{
    setMinimumSize(400, 300);
    setObjectName(QStringLiteral("DecoratedNotesWidget"));

    m_trainer = new NotesTrainerWidget(this);
    connect(m_trainer, &NotesTrainerWidget::needNextNote, this, &DecoratedNotesWidget::needNextNote);
    connect(m_trainer, &NotesTrainerWidget::trainingStarted, this, &DecoratedNotesWidget::trainingStarted);

    m_notesWidget = new NotesWidget(this);
    connect(m_notesWidget, &NotesWidget::noteChanged, this, &DecoratedNotesWidget::noteChanged);

    m_trainer->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(15, 15, 15, 15);
    layout->setSpacing(15);
    layout->addWidget(m_notesWidget);
    layout->addWidget(m_trainer);
}

void DecoratedNotesWidget::setPaperHeightFactor(const float& factor)
{
    m_notesWidget->setPaperHeightFactor(factor);
}

void DecoratedNotesWidget::setStartLine(const int& line)
{
    m_notesWidget->setStartLine(line);
}

void DecoratedNotesWidget::setLines(const int& lines)
{
    m_notesWidget->setLines(lines);
}

void DecoratedNotesWidget::setTranslateLines(const int& lines)
{
    m_notesWidget->setTranslateLines(lines);
}

void DecoratedNotesWidget::setNoBass(bool noBass)
{
    m_notesWidget->setNoBass(noBass);
}

void DecoratedNotesWidget::setNoViolin(bool noViolin)
{
    m_notesWidget->setNoViolin(noViolin);
}

void DecoratedNotesWidget::setInstrumentName(const QString& name)
{
    m_notesWidget->setInstrumentName(name);
}

NotesWidget* DecoratedNotesWidget::notesWidget() const
{
    return m_notesWidget;
}

NotesTrainerWidget* DecoratedNotesWidget::trainerWidget() const
{
    return m_trainer;
}

bool DecoratedNotesWidget::isTrainingStarted() const
{
    return m_trainer->isTrainingStarted();
}

void DecoratedNotesWidget::slotShowNote(const QString& name, int accidental)
{
    m_notesWidget->slotShowNote(name, accidental);
    m_trainer->setNote(name, accidental);
}

void DecoratedNotesWidget::slotSetTraningMode()
{
    if (m_trainer->isVisibleTo(this))
        return;
    m_notesWidget->hide();
    m_trainer->show();
}

void DecoratedNotesWidget::slotSetFindNoteMode()
{
    if (m_notesWidget->isVisibleTo(this))
        return;
    m_trainer->hide();
    m_notesWidget->show();
}

} // namespace QMMusic
