#include "FinderLayout.h"

#include "DecoratedNotesWidget.h"
#include "Label.h"
#include "MMessageBox.h"

#include <QBoxLayout>
#include <QFrame>
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

void FinderLayout::applyStaff(DecoratedNotesWidget* notes, const Staff& staff)
{
    notes->setStartLine(staff.startLine);
    notes->setLines(staff.lines);
    notes->setTranslateLines(staff.translateLines);
    notes->setPaperHeightFactor(staff.paperHeightFactor);
    if (staff.noBass)
        notes->setNoBass(true);
    if (staff.noViolin)
        notes->setNoViolin(true);
    notes->setObjectName(QStringLiteral("DecoratedNotesWidget") + staff.key);
    notes->setInstrumentName(staff.instrumentName);
}

void FinderLayout::layOut(QFrame* finder, DecoratedNotesWidget* notes, QWidget* board, const Staff& staff)
{
    QMWidgets::Label* rightLabel = makeSideLabel(staff.key + QStringLiteral("RightLabel"), staff.rightPicture);
    QMWidgets::Label* leftLabel = makeSideLabel(staff.key + QStringLiteral("LeftLabel"), staff.leftPicture);

    auto* notesRow = new QHBoxLayout;
    notesRow->addWidget(leftLabel);
    notesRow->addWidget(notes);
    notesRow->addWidget(rightLabel);

    auto* layout = new QVBoxLayout(finder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(notesRow);
    layout->addWidget(board);
}

bool FinderLayout::refuseDuringTraining(QWidget* finder, DecoratedNotesWidget* notes)
{
    if (!notes->isTrainingStarted())
        return false;
    QMWidgets::MMessageBox::information(
        finder, tr("Info"), tr("Please, stop the training to be able to do other actions."), QMessageBox::Ok);
    return true;
}

} // namespace QMMusic
