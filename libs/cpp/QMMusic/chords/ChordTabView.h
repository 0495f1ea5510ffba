#pragma once

#include "ChordBaseView.h"

namespace QMMusic {

// The tablature of a chord: one line per string, the highest on top, with
// the fret numbers on them; the piano's other keyboard picture on the piano.
class ChordTabView : public ChordBaseView
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordTabView)

public:
    explicit ChordTabView(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void drawStrings(QPainter* painter);
    virtual void drawKeys(QPainter* painter);
};

} // namespace QMMusic
