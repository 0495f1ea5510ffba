#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A prima balalaika, A4 E4 E4 from the top, 19 frets: a press names and
// plays a note, a note set from elsewhere lights all its places.
class BalalaikaBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaBoard)

public:
    explicit BalalaikaBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
