#pragma once

#include "BoardBase.h"

namespace QMMusic {

// A five-string banjo in open G, D4 B3 G3 D3 and the short G4, 22 frets: a press names and
// plays a note, a note set from elsewhere lights all its places.
class BanjoBoard : public BoardBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoBoard)

public:
    explicit BanjoBoard(QWidget* parent = nullptr);

    void initNotes() override;
    QString positionToNote(int x, int y) const override;
};

} // namespace QMMusic
