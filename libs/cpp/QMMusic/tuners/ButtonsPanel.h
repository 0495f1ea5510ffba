#pragma once

#include <QFrame>
#include <QMap>

class QTimer;

namespace QMMusic {

class TuneButton;

// The row of string buttons under a tuner's picture: ten buttons, of which a
// page shows as many as its instrument has strings. In repeat mode the
// buttons become checkable, at most one at a time, and the checked one
// sounds again every second.
class ButtonsPanel : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ButtonsPanel)

public:
    static constexpr int buttonCount = 10;
    static constexpr int repeatInterval = 1000;

    explicit ButtonsPanel(QWidget* parent = nullptr);

    // Null for a key outside 0..9.
    TuneButton* button(int key) const;
    bool isRepeatMode() const;
    QTimer* repeatTimer() const;

public slots:
    void slotSetRepeatMode(bool on);
    void slotClicked(bool checked);
    void slotTimeOut();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QMap<int, TuneButton*> m_buttons;
    bool m_repeatMode = false;
    QTimer* m_timer = nullptr;
};

} // namespace QMMusic
