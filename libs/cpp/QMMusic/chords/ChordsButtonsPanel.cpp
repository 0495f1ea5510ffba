#include "ChordsButtonsPanel.h"

#include "App.h"
#include "ChordName.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QPushButton>

namespace QMMusic {

namespace {

enum TypeButton
{
    M,
    Aug,
    Dim,
    Six,
    M6,
    Seven,
    M7,
    Maj7,
    Nine,
    Sus4,
};

const char* const kTypeTexts[10] = { "m", "aug", "dim", "6", "m6", "7", "m7", "maj7", "9", "sus4" };
// The type buttons in the order in which a name's ending is tested: "m7"
// and "maj7" before "7", "dim" before "m", "m6" before "6".
const TypeButton kSuffixOrder[10] = { M7, Maj7, Seven, Dim, M, Aug, Sus4, M6, Six, Nine };
// The type frame's grid: the blank button alone at row 0, column 0.
const struct
{
    TypeButton button;
    int row;
    int column;
} kTypeCells[10] = { { M, 0, 1 }, { M6, 0, 2 }, { M7, 0, 3 }, { Maj7, 0, 4 }, { Aug, 0, 5 }, { Six, 1, 1 },
    { Seven, 1, 2 }, { Nine, 1, 3 }, { Dim, 1, 4 }, { Sus4, 1, 5 } };

bool isPocket()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app && app->isPocketDevice();
}

} // namespace

ChordsButtonsPanel::ChordsButtonsPanel(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("ChordsButtonsPanel"));

    m_rootGroup = new QButtonGroup(this);
    m_rootGroup->setExclusive(true);
    m_typeGroup = new QButtonGroup(this);
    m_typeGroup->setExclusive(true);

    const bool pocket = isPocket();
    auto* rootFrame = new QFrame;
    rootFrame->setObjectName(QStringLiteral("ChordButtonsFrame"));
    auto* rootGrid = new QGridLayout(rootFrame);
    rootGrid->setSpacing(3);
    rootGrid->setContentsMargins(QMargins() + (pocket ? 1 : 3));
    for (int column = 0; column < 7; ++column) {
        const QString letter(QLatin1Char(char('A' + column)));
        m_naturalNames[column] = letter;
        m_flatNames[column] = letter + ChordName::flatSign();
        m_sharpNames[column] = letter + ChordName::sharpSign();
        m_naturalButtons[column] = makeButton(m_naturalNames[column]);
        m_flatButtons[column] = makeButton(m_flatNames[column]);
        m_sharpButtons[column] = makeButton(m_sharpNames[column]);
        rootGrid->addWidget(m_naturalButtons[column], 0, column);
        rootGrid->addWidget(m_flatButtons[column], 1, column);
        rootGrid->addWidget(m_sharpButtons[column], 2, column);
    }
    for (int column = 0; column < 7; ++column)
        m_rootGroup->addButton(m_naturalButtons[column]);
    for (int column = 0; column < 7; ++column)
        m_rootGroup->addButton(m_flatButtons[column]);
    for (int column = 0; column < 7; ++column)
        m_rootGroup->addButton(m_sharpButtons[column]);

    auto* typeFrame = new QFrame;
    typeFrame->setObjectName(QStringLiteral("ChordOptionsFrame"));
    auto* typeGrid = new QGridLayout(typeFrame);
    typeGrid->setSpacing(3);
    typeGrid->setContentsMargins(QMargins() + (pocket ? 1 : 3));
    m_blankButton = makeButton(QString());
    m_typeGroup->addButton(m_blankButton);
    typeGrid->addWidget(m_blankButton, 0, 0);
    for (int i = 0; i < 10; ++i)
        m_typeButtons[i] = makeButton(QLatin1String(kTypeTexts[i]));
    for (const auto& cell : kTypeCells)
        typeGrid->addWidget(m_typeButtons[cell.button], cell.row, cell.column);
    for (QPushButton* button : m_typeButtons)
        m_typeGroup->addButton(button);
    // Hidden buttons keep their cells, so the others stay where they are.
    for (QPushButton* button : m_typeButtons) {
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
    QSizePolicy blankPolicy = m_blankButton->sizePolicy();
    blankPolicy.setRetainSizeWhenHidden(true);
    m_blankButton->setSizePolicy(blankPolicy);

    auto* box = new QVBoxLayout(this);
    if (pocket) {
        box->setContentsMargins(QMargins() + 1);
        box->setSpacing(3);
    }
    box->addWidget(rootFrame);
    box->addWidget(typeFrame);

    // A new page stands on A major; nothing is announced for it.
    m_naturalButtons[0]->setChecked(true);
    m_blankButton->setChecked(true);

    connect(m_rootGroup, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
        &ChordsButtonsPanel::slotButtonClicked);
    connect(m_typeGroup, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
        &ChordsButtonsPanel::slotButtonClicked);
}

void ChordsButtonsPanel::applyPanelButtonProperties(QPushButton* button)
{
    button->setFlat(true);
    button->setCheckable(true);
    button->setObjectName(QStringLiteral("PanelButton"));
}

QPushButton* ChordsButtonsPanel::makeButton(const QString& text)
{
    auto* button = new QPushButton(text);
    applyPanelButtonProperties(button);
    return button;
}

QString ChordsButtonsPanel::currentChord() const
{
    return currentChordPart1() + currentChordPart2();
}

QString ChordsButtonsPanel::currentChordPart1() const
{
    const QAbstractButton* button = m_rootGroup->checkedButton();
    return button ? button->text() : QString();
}

QString ChordsButtonsPanel::currentChordPart2() const
{
    const QAbstractButton* button = m_typeGroup->checkedButton();
    return button ? button->text() : QString();
}

void ChordsButtonsPanel::setChord(const QString& name)
{
    // An accidental before its natural: "A" starts "A♭" and "A #" too.
    for (int column = 0; column < 7; ++column) {
        QPushButton* hit = nullptr;
        if (name.startsWith(m_flatNames[column]))
            hit = m_flatButtons[column];
        else if (name.startsWith(m_sharpNames[column]))
            hit = m_sharpButtons[column];
        else if (name.startsWith(m_naturalNames[column]))
            hit = m_naturalButtons[column];
        if (hit) {
            hit->setChecked(true);
            break;
        }
    }
    QPushButton* type = m_blankButton;
    for (TypeButton button : kSuffixOrder) {
        if (name.endsWith(QLatin1String(kTypeTexts[button]))) {
            type = m_typeButtons[button];
            break;
        }
    }
    type->setChecked(true);
    emit chordChanged(stringToChord(name), name);
}

int ChordsButtonsPanel::stringToChord(const QString& name)
{
    return ChordName::indexOf(name);
}

void ChordsButtonsPanel::slotButtonClicked()
{
    const QString name = currentChord();
    emit chordChanged(stringToChord(name), name);
}

void ChordsButtonsPanel::hideBlank()
{
    m_blankButton->hide();
}

void ChordsButtonsPanel::hideM()
{
    m_typeButtons[M]->hide();
}

void ChordsButtonsPanel::hideAug()
{
    m_typeButtons[Aug]->hide();
}

void ChordsButtonsPanel::hideDim()
{
    m_typeButtons[Dim]->hide();
}

void ChordsButtonsPanel::hide6()
{
    m_typeButtons[Six]->hide();
}

void ChordsButtonsPanel::hideM6()
{
    m_typeButtons[M6]->hide();
}

void ChordsButtonsPanel::hide7()
{
    m_typeButtons[Seven]->hide();
}

void ChordsButtonsPanel::hideM7()
{
    m_typeButtons[M7]->hide();
}

void ChordsButtonsPanel::hideMaj7()
{
    m_typeButtons[Maj7]->hide();
}

void ChordsButtonsPanel::hide9()
{
    m_typeButtons[Nine]->hide();
}

void ChordsButtonsPanel::hideSus4()
{
    m_typeButtons[Sus4]->hide();
}

QPushButton* ChordsButtonsPanel::rootButton(int row, int column) const
{
    if (column < 0 || column >= 7)
        return nullptr;
    switch (row) {
    case 0:
        return m_naturalButtons[column];
    case 1:
        return m_flatButtons[column];
    case 2:
        return m_sharpButtons[column];
    default:
        return nullptr;
    }
}

QPushButton* ChordsButtonsPanel::typeButton(int type) const
{
    if (type == 0)
        return m_blankButton;
    // Index order of the types against the buttons' order.
    static const TypeButton kByIndex[10] = { M, Aug, Dim, Six, M6, Seven, Maj7, M7, Nine, Sus4 };
    return type > 0 && type < ChordName::TypeCount ? m_typeButtons[kByIndex[type - 1]] : nullptr;
}

} // namespace QMMusic
