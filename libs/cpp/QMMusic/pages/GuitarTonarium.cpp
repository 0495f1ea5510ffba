#include "GuitarTonarium.h"

#include "DecoratedNotesWidget.h"
#include "GuitarBoard.h"
#include "Label.h"
#include "MMessageBox.h"

#include <QBoxLayout>
#include <QMessageBox>

namespace QMMusic {

namespace {

QMWidgets::Label* makeSideLabel(const QString& objectName, const QString& resource)
{
    auto* label = new QMWidgets::Label;
    label->setObjectName(objectName);
    label->setMode(QMWidgets::Label::Fill);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    label->setRetinaPixmap(QPixmap(resource));
    return label;
}

} // namespace

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

    m_decoratedNotesWidget->setStartLine(8);
    m_decoratedNotesWidget->setLines(22);
    m_decoratedNotesWidget->setTranslateLines(5);
    m_decoratedNotesWidget->setPaperHeightFactor(1.3f);
    m_decoratedNotesWidget->setObjectName(QStringLiteral("DecoratedNotesWidgetGuitar"));
    m_decoratedNotesWidget->setInstrumentName(QStringLiteral("guitar"));

    QMWidgets::Label* rightLabel
        = makeSideLabel(QStringLiteral("GuitarRightLabel"), QStringLiteral(":/guitarright.jpg"));
    QMWidgets::Label* leftLabel = makeSideLabel(QStringLiteral("GuitarLeftLabel"), QStringLiteral(":/guitarleft.jpg"));

    // Both directions: slotSetNote emits nothing, so a note never comes back.
    connect(m_decoratedNotesWidget, &DecoratedNotesWidget::noteChanged, m_guitarBoard, &GuitarBoard::slotSetNote);
    connect(m_guitarBoard, &GuitarBoard::noteChanged, m_decoratedNotesWidget, &DecoratedNotesWidget::slotShowNote);

    auto* notesRow = new QHBoxLayout;
    notesRow->addWidget(leftLabel);
    notesRow->addWidget(m_decoratedNotesWidget);
    notesRow->addWidget(rightLabel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(notesRow);
    layout->addWidget(m_guitarBoard);

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
    if (m_decoratedNotesWidget->isTrainingStarted()) {
        m_guitarBoard->setTrainButtonChecked();
        QMWidgets::MMessageBox::information(
            this, tr("Info"), tr("Please, stop the training to be able to do other actions."), QMessageBox::Ok);
        return;
    }
    m_decoratedNotesWidget->slotSetFindNoteMode();
}

void GuitarTonarium::slotSetTraningMode()
{
    m_decoratedNotesWidget->slotSetTraningMode();
}

} // namespace QMMusic
