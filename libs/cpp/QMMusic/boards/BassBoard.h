#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A four-string bass, G2 D2 A1 E1 from the top, 20 frets: a press names and
// plays a note, a note set from elsewhere lights all its places.
class BassBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BassBoard)

public:
    explicit BassBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
