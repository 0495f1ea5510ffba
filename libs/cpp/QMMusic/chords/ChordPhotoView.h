#pragma once

#include "ChordBaseView.h"

namespace QMMusic {

// The picture of the hand on the instrument for the chord's row, on a dark
// ground.
class ChordPhotoView : public ChordBaseView
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordPhotoView)

public:
    explicit ChordPhotoView(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace QMMusic
