#pragma once

#include <QFrame>

class QMenu;
class QStackedWidget;

namespace QMMusic {

class TunerBasePage;
class TunersExplorer;

// The tuners' window: the explorer of instruments on the left and the
// chosen instrument's page on the right. The guitar is chosen at each start;
// the window's size is kept in "Width" and "Height".
class TunersMainPage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TunersMainPage)

public:
    explicit TunersMainPage(QWidget* parent = nullptr, bool hideExplorer = false);

    QSize sizeHint() const override;

    TunersExplorer* explorer() const;
    QStackedWidget* stack() const;
    // The eleven pages in the explorer's order: violin, viola, cello, double
    // bass, guitar, bass guitar, ukulele, banjo, balalaika, mandolin, dombra.
    QList<TunerBasePage*> pages() const;
    // The family's other programs, as the explorer's last button offers them.
    QMenu* programsMenu() const;

    void hideAppOptionsOnEachPage();

public slots:
    void slotShowViolin();
    void slotShowViola();
    void slotShowCello();
    void slotShowDoubleBass();
    void slotShowGuitar();
    void slotShowBassGuitar();
    void slotShowUkulele();
    void slotShowBanjo();
    void slotShowBalalaika();
    void slotShowMandolin();
    void slotShowDombra();
    void slotSetRepeatMode(bool on);
    void slotGotoPromotedApp();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    TunersExplorer* m_explorer = nullptr;
    TunerBasePage* m_violin = nullptr;
    TunerBasePage* m_viola = nullptr;
    TunerBasePage* m_cello = nullptr;
    TunerBasePage* m_doubleBass = nullptr;
    TunerBasePage* m_guitar = nullptr;
    TunerBasePage* m_bassGuitar = nullptr;
    TunerBasePage* m_ukulele = nullptr;
    TunerBasePage* m_banjo = nullptr;
    TunerBasePage* m_balalaika = nullptr;
    TunerBasePage* m_mandolin = nullptr;
    TunerBasePage* m_dombra = nullptr;
    QStackedWidget* m_stack = nullptr;
    QMenu* m_programsMenu = nullptr;
};

} // namespace QMMusic
