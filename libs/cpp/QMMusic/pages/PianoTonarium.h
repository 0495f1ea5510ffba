#pragma once

#include <QFrame>

namespace QMMusic {

class DecoratedNotesWidget;
class PianoBoard;

// The piano page's body: the grand staff between two side pictures above
// the keyboard, each showing the note of the other. The keyboard has no
// training, so the staff's trainer stays hidden.
class PianoTonarium : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PianoTonarium)

public:
    explicit PianoTonarium(QWidget* parent = nullptr);

    DecoratedNotesWidget* decoratedNotesWidget() const;
    PianoBoard* pianoBoard() const;

private:
    DecoratedNotesWidget* m_decoratedNotesWidget = nullptr;
    PianoBoard* m_pianoBoard = nullptr;
};

} // namespace QMMusic
