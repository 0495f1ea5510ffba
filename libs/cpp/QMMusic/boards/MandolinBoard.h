#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A mandolin, doubled courses E5 A4 D4 G3 from the top, 17 frets: a press names and
// plays a note, a note set from elsewhere lights all its places.
class MandolinBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinBoard)

public:
    explicit MandolinBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
