#pragma once

#include <QString>

class QFrame;
class QPushButton;

namespace QMMusic {

// The Find Note / Training switch of a board: two checkable buttons in an
// exclusive group, centred on the board's upper edge by the board's layout.
class BoardModeSwitch
{
public:
    BoardModeSwitch(QFrame* board, const QString& findNoteText, const QString& trainingText);

    QPushButton* findNoteButton() const;
    QPushButton* trainingButton() const;

private:
    QPushButton* m_findNoteButton = nullptr;
    QPushButton* m_trainingButton = nullptr;
};

} // namespace QMMusic
