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
    // The button's text is the source text in the given translation
    // context, kept in the current language like every text of the switch.
    ListenSwitch(const char* context, const char* text, QWidget* parent = nullptr);

    QPushButton* button() const;
    QMMultiMedia::PitchListener* listener() const;
    bool isListening() const;

public slots:
    void slotSetOn(bool on);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    QString unavailableReason() const;
    void slotListeningChanged(bool listening);
    void slotFailed();
    void disableWithReason(const QString& reason);

    QPushButton* m_button = nullptr;
    QLabel* m_lamp = nullptr;
    QMMultiMedia::PitchListener* m_listener = nullptr;
    const char* m_context;
    const char* m_text;
    bool m_failedToOpen = false;
};

} // namespace QMMusic
