#pragma once

#include <QFrame>

class QHBoxLayout;
class QPushButton;

namespace QMMusic {

// The bar above the tuners: the concert pitch with its menu, the repeat
// switch and the application menu. The pitch lives in the setting "Pitch"
// alone; the pages read it at each sound.
class TunersCommonPanel : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TunersCommonPanel)

public:
    // The ten concert pitches of A4 that have samples, in menu order.
    static const QVector<int>& pitches();
    // The stored pitch, or 440 where the setting holds anything but one of
    // the ten (a hand-edited 441, 0 or a word).
    static int storedPitch();

    explicit TunersCommonPanel(QWidget* parent = nullptr);

    void setPitch(int pitch);

    QPushButton* pitchButton() const;
    QPushButton* repeatButton() const;
    QPushButton* appButton() const;

public slots:
    void slotSetPitch415();
    void slotSetPitch430();
    void slotSetPitch435();
    void slotSetPitch439();
    void slotSetPitch440();
    void slotSetPitch442();
    void slotSetPitch443();
    void slotSetPitch445();
    void slotSetPitch452();
    void slotSetPitch460();
    void slotRepeatModeChanged(bool on);
    void slotAbout();

signals:
    void repeatModeChangedTo(bool on);

protected:
    QHBoxLayout* boxLayout() const;
    static QPushButton* makePanelButton(QWidget* parent);

private:
    void makePitchMenu();
    void makeAppMenu();

    QHBoxLayout* m_layout = nullptr;
    QPushButton* m_pitchButton = nullptr;
    QPushButton* m_repeatButton = nullptr;
    QPushButton* m_appButton = nullptr;
};

} // namespace QMMusic
