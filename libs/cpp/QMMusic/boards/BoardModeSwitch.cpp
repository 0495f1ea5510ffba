#include "BoardModeSwitch.h"

#include <QButtonGroup>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

QPushButton* makeHalf(QFrame* board, const QString& text, const QString& objectName)
{
    auto* button = new QPushButton(text, board);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setMinimumSize(96, 32);
    button->setCheckable(true);
    return button;
}

} // namespace

BoardModeSwitch::BoardModeSwitch(QFrame* board, const QString& findNoteText, const QString& trainingText)
    : m_findNoteButton(makeHalf(board, findNoteText, QStringLiteral("DualButtonLeft")))
    , m_trainingButton(makeHalf(board, trainingText, QStringLiteral("DualButtonRight")))
{
    m_findNoteButton->setChecked(true);

    auto* group = new QButtonGroup(board);
    group->setExclusive(true);
    group->addButton(m_findNoteButton);
    group->addButton(m_trainingButton);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addStretch(1);
    row->addWidget(m_findNoteButton);
    row->addWidget(m_trainingButton);
    row->addStretch(1);

    auto* column = new QVBoxLayout(board);
    column->setContentsMargins(5, 5, 5, 5);
    column->setSpacing(0);
    column->addLayout(row);
    column->addStretch(1);
}

QPushButton* BoardModeSwitch::findNoteButton() const
{
    return m_findNoteButton;
}

QPushButton* BoardModeSwitch::trainingButton() const
{
    return m_trainingButton;
}

} // namespace QMMusic
