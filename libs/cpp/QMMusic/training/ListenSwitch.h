#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace QMMultiMedia {
class PitchListener;
}

namespace QMMusic {

// A switch that opens the microphone while it is on, with a lamp that shows
// that it is open. Without a microphone or a sound server the switch is
// disabled and its tool tip says why; a source that fails while listening
// turns it off the same way.
class ListenSwitch : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ListenSwitch)

public:
    ListenSwitch(const QString& text, QWidget* parent = nullptr);

    QPushButton* button() const;
    QMMultiMedia::PitchListener* listener() const;
    bool isListening() const;

public slots:
    void slotSetOn(bool on);

private:
    void slotListeningChanged(bool listening);
    void slotFailed();
    void disableWithReason(const QString& reason);

    QPushButton* m_button = nullptr;
    QLabel* m_lamp = nullptr;
    QMMultiMedia::PitchListener* m_listener = nullptr;
};

} // namespace QMMusic
