#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A violin fingerboard without frets, E5 A4 D4 G3 from the top, seven semitone places: a press names and
// plays a note, a note set from elsewhere lights all its places.
class ViolinBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolinBoard)

public:
    explicit ViolinBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
