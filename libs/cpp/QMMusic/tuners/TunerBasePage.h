#pragma once

#include <QFrame>
#include <QPixmap>
#include <QStringList>

class QSignalMapper;

namespace QMMusic {

class ButtonsPanel;
class ModesPanel;
class MusicShopBase;
class TuneButton;

// One instrument's ear tuner: its picture, its bar and one button per open
// string. A press sounds the string's recording at the concert pitch that
// the setting "Pitch" holds at that moment; the page measures nothing.
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
    void hideAppOptions();

    // The sample a button plays at the given pitch; empty for a button
    // without a string.
    QString samplePath(int key, int pitch) const;
    static QString samplePathFor(const QString& pattern, int pitch);

public slots:
    void slotPlay(const QString& pattern);
    void slotSetRepeatMode(bool on);

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

private:
    void fillMoreMenu(const MusicShopBase& shop);
    void scalePicture();

    ButtonsPanel* m_buttonsPanel = nullptr;
    ModesPanel* m_modesPanel = nullptr;
    QPixmap m_background;
    QPixmap m_picture;
    QPixmap m_scaledPicture;
    QSignalMapper* m_signalMapper = nullptr;
    QString m_resourceDirectory;
    QStringList m_patterns;
};

} // namespace QMMusic
