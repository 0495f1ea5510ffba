#pragma once

#include <QPushButton>

namespace QMMusic {

// A string button of a tuner page: it asks for its sample at each press, and
// in repeat mode the buttons panel asks again through sendPlay().
class TuneButton : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY(TuneButton)

public:
    explicit TuneButton(QWidget* parent = nullptr);

    void sendPlay();

signals:
    void play();
};

} // namespace QMMusic
