#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A soprano ukulele in re-entrant tuning, A4 E4 C4 G4 from the top, 15 frets: a press names and
// plays a note, a note set from elsewhere lights all its places.
class UkuleleBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleBoard)

public:
    explicit UkuleleBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
