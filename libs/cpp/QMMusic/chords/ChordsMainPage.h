#pragma once

#include "BaseMainPage.h"
#include "ChordBook.h"

#include <QStringList>

namespace QMMusic {

class ChordsButtonsPanel;
class ChordView;
class Transposer;

// A chord page: the picker on top, the three pictures of the chord below
// it and the song strip at the bottom, under the menu bar. It keeps the
// instrument's two tables and carries requests between picker, pictures,
// song strip and the sound. Each instrument's page gives it its table key
// and its shop.
class ChordsMainPage : public BaseMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordsMainPage)

public:
    // The tables of one instrument key of ChordTable ("guitar", "bass2").
    explicit ChordsMainPage(const QString& key, QWidget* parent = nullptr);

    // Fills both tables from the instrument's table, every chord once.
    virtual void initChords();

    void setCurrentChord(const QString& name);
    QString currentChord() const;
    void setInstrumentName(const QString& key);
    int currentTransposerChordIndex() const;
    void setCurrentTransposerChordIndex(int index);
    QStringList currentTransposerChords() const;
    void setCurrentTransposerChords(const QStringList& chords);
    void updateTransposerState();
    void recreateFavoritesMenu();

    void setDelay(int delay);
    void createSound(const QString& name);
    void applyStyle();

    int currentChordIndex() const;
    const ChordBook& book() const;
    ChordsButtonsPanel* chordsPanel() const;
    ChordView* chordView() const;
    Transposer* transposer() const;

public slots:
    void slotPlay();
    void slotPlayChord(const QStringList& notes);
    void slotSetChordAndName(int chord, const QString& name);

signals:
    // The samples handed to the pool for one chord, all at once.
    void chordPlayed(const QStringList& samples);

protected:
    // What a member's constructor does after this one's: name, delay, the
    // tables, and A major shown without any signal.
    void buildChords();

private:
    int m_delay = 30;
    ChordsButtonsPanel* m_chordsPanel = nullptr;
    ChordView* m_chordView = nullptr;
    int m_currentChord = 0;
    ChordBook m_book;
    Transposer* m_transposer = nullptr;
    QString m_resourcePath;
    QString m_key;
};

} // namespace QMMusic
