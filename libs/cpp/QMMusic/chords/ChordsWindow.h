#pragma once

#include <QFrame>

class QMenu;
class QVBoxLayout;

namespace QMMusic {

class ChordsMainPage;

// The Chords program's window: one instrument's chord page at a time, and a
// menu in its bar that switches the instrument. The chord shown and the
// song in the strip go over to the next instrument's page; the instrument
// chosen is there at the next start ("ChordsInstrument").
class ChordsWindow : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordsWindow)

public:
    explicit ChordsWindow(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    // "guitar", "bass", "bass2", "ukulele", "mandolin", "banjo", "balalaika", "piano".
    static QStringList instrumentKeys();
    QString instrumentKey() const;
    ChordsMainPage* page() const;
    QMenu* instrumentMenu() const;

public slots:
    void slotShowInstrument(const QString& key);

private:
    static ChordsMainPage* makePage(const QString& key);

    QVBoxLayout* m_layout = nullptr;
    QMenu* m_instrumentMenu = nullptr;
    ChordsMainPage* m_page = nullptr;
    QString m_key;
};

} // namespace QMMusic
