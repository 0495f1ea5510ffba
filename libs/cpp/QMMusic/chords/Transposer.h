#pragma once

#include <QFrame>
#include <QMap>
#include <QStringList>

class QAction;
class QMenu;
class QPushButton;

namespace QMMusic {

class ChordsButtonsPanel;
class ChordsTabBar;
class FavoritesDeleteDlg;

// The strip under the chord pictures that holds a song as a row of chord
// tabs: add the chord shown, click a tab to see and hear it, transpose the
// whole song, and keep songs by name as favourites in the settings. A tab's
// text ("A\nm" for A minor, "D\n" for D major) is the only copy of its chord.
class Transposer : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(Transposer)

public:
    explicit Transposer(QWidget* parent = nullptr);
    ~Transposer() override;

    void setChordsButtonsPanel(ChordsButtonsPanel* panel);

    QStringList currentChords() const;
    void setCurrentChords(const QStringList& chords);
    int currentChordIndex() const;
    void setCurrentChordIndex(int index);

    void updateState();
    void recreateFavoritesMenu();

    ChordsTabBar* tabBar() const;
    QMenu* transposeMenu() const;
    QMenu* favoritesMenu() const;
    QPushButton* soundButton() const;
    FavoritesDeleteDlg* deleteDialog() const;

    // The song a first start offers as its one favourite.
    static const QString& exampleFavorite();

signals:
    void play();

public slots:
    void slotSoundClicked();
    void slotTransposeD();
    void slotTransposeB();
    void slotNewFavorite();
    void slotSaveFavorite();
    void slotLoadFavorite();
    void slotDeleteFavorite();
    void slotTabClicked();
    void slotAddChord();
    void slotRemoveChord();
    void slotChordsCountChanged(int count);

protected:
    void changeEvent(QEvent* event) override;

private:
    void readFavorites();
    void saveFavorites();
    void transpose(QAction* action, bool sharp);
    void showSoundState();

    ChordsTabBar* m_tabBar = nullptr;
    ChordsButtonsPanel* m_chordsPanel = nullptr;
    QMenu* m_favoritesMenu = nullptr;
    QMap<QString, QStringList> m_favorites;
    QPushButton* m_transposeButton = nullptr;
    QAction* m_saveAction = nullptr;
    QPushButton* m_removeButton = nullptr;
    QPushButton* m_soundButton = nullptr;
    FavoritesDeleteDlg* m_deleteDialog = nullptr;
};

} // namespace QMMusic
