#pragma once

#include <QFrame>
#include <QPixmap>
#include <QStringList>

class QSignalMapper;

namespace QMMusic {

class ButtonsPanel;
class ListenSwitch;
class ModesPanel;
class MusicShopBase;
class TuneButton;
class TunerNeedle;

// One instrument's ear tuner: its picture, its bar and one button per open
// string. A press sounds the string's recording at the concert pitch that
// the setting "Pitch" holds at that moment. With "Listen" on, a needle shows
// the nearest string to what the microphone hears and how far off it is.
class TunerBasePage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TunerBasePage)

public:
    explicit TunerBasePage(QWidget* parent = nullptr);

    void setBackground(const QPixmap& background);
    void setPicture(const QPixmap& picture);
    TuneButton* button(int key) const;
    ModesPanel* modesPanel() const;
    ButtonsPanel* buttonsPanel() const;
    ListenSwitch* listenSwitch() const;
    TunerNeedle* needle() const;
    void hideAppOptions();

    // The sample a button plays at the given pitch; empty for a button
    // without a string.
    QString samplePath(int key, int pitch) const;
    static QString samplePathFor(const QString& pattern, int pitch);

public slots:
    void slotPlay(const QString& pattern);
    void slotSetRepeatMode(bool on);
    // A heard frequency, shown against the nearest of the shown strings.
    void slotHeard(double frequency);

signals:
    // A sample handed to the pool, with its pitch filled in.
    void played(const QString& path);

protected:
    // One open string: its button's text and its sample's file pattern,
    // with "%1" where the pitch goes.
    struct TuneString
    {
        const char* text;
        const char* pattern;
    };

    // What a subclass's constructor does: the picture, the strings from the
    // left, and the More menu with the shop's addresses.
    void fill(const char* picture, std::initializer_list<TuneString> strings, const MusicShopBase& shop);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // The microphone is closed when another instrument is chosen.
    void hideEvent(QHideEvent* event) override;

private:
    void fillMoreMenu(const MusicShopBase& shop);
    void scalePicture();
    void slotListeningChanged(bool listening);

    ButtonsPanel* m_buttonsPanel = nullptr;
    ModesPanel* m_modesPanel = nullptr;
    QPixmap m_background;
    QPixmap m_picture;
    QPixmap m_scaledPicture;
    QSignalMapper* m_signalMapper = nullptr;
    QString m_resourceDirectory;
    QStringList m_patterns;
    ListenSwitch* m_listenSwitch = nullptr;
    TunerNeedle* m_needle = nullptr;
    int m_listenPitch = 440;
};

} // namespace QMMusic
