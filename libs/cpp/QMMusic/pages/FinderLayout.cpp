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
    label->setRetinaPicture(resource);
    return label;
}

// The staff of every finder: start line, lines, translate lines and paper
// factor go together with the staff's table of note heights for the
// instrument; the side pictures show the instrument's body.
const struct
{
    const char* key;
    const char* instrumentName;
    int startLine;
    int lines;
    int translateLines;
    float paperHeightFactor;
    bool noBass;
    bool noViolin;
    const char* leftPicture;
    const char* rightPicture;
} kStaffs[] = {
    { "Guitar", "guitar", 8, 22, 5, 1.3f, false, false, ":/guitarleft.jpg", ":/guitarright.jpg" },
    { "Ukulele", "Ukulele", 8, 16, 6, 1.6f, true, false, ":/ukuleft.jpg", ":/ukuright.jpg" },
    { "Violin", "Violin", 8, 17, 6, 1.55f, true, false, ":/violinleft.jpg", ":/violinright.jpg" },
    { "Bass", "Bass", 15, 25, 12, 1.94f, false, true, ":/bassleft.jpg", ":/bassright.jpg" },
    { "Balalaika", "Balalaika", 7, 15, 6, 1.53f, true, false, ":/balalaikaleft.jpg", ":/balalaikaright.jpg" },
    { "Banjo", "Banjo", 8, 19, 5, 1.42f, true, false, ":/banjoleft.jpg", ":/banjoright.jpg" },
    { "Mandolin", "Mandolin", 6, 17, 5, 1.42f, true, false, ":/mandolinleft.jpg", ":/mandolinright.jpg" },
    // The piano keeps the staff's defaults: both clefs, all 27 lines.
    { "Piano", "piano", 0, 27, 0, 1.0f, false, false, ":/pianoleft.png", ":/pianoright.png" },
};

} // namespace

FinderLayout::Staff FinderLayout::staffFor(const QString& key)
{
    Staff staff;
    for (const auto& row : kStaffs) {
        if (key != QLatin1String(row.key))
            continue;
        staff.key = key;
        staff.instrumentName = QLatin1String(row.instrumentName);
        staff.startLine = row.startLine;
        staff.lines = row.lines;
        staff.translateLines = row.translateLines;
        staff.paperHeightFactor = row.paperHeightFactor;
        staff.noBass = row.noBass;
        staff.noViolin = row.noViolin;
        staff.leftPicture = QLatin1String(row.leftPicture);
        staff.rightPicture = QLatin1String(row.rightPicture);
    }
    return staff;
}

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
