#pragma once

#include "ChordBaseView.h"

namespace QMMusic {

// The neck diagram of a chord: strings across, frets upright, dots on the
// pressed frets, circles and crosses left of the nut; the piano's keyboard
// picture instead on the piano.
class ChordStandardView : public ChordBaseView
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordStandardView)

public:
    explicit ChordStandardView(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void drawStrings(QPainter* painter);
    virtual void drawKeys(QPainter* painter);
};

} // namespace QMMusic
