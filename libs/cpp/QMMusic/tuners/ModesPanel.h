#pragma once

#include "TunersCommonPanel.h"

class QAction;
class QMenu;
class QSignalMapper;

namespace QMMusic {

// A tuner page's own bar: the common buttons, a "Modes" button that a page
// may give a menu, and a "More" menu of further programs and of the web
// pages about the instrument.
class ModesPanel : public TunersCommonPanel
{
    Q_OBJECT
    Q_DISABLE_COPY(ModesPanel)

public:
    explicit ModesPanel(QWidget* parent = nullptr);

    QPushButton* modesButton() const;
    QPushButton* moreButton() const;
    QMenu* moreMenu() const;

    void addMenuLink(const QPixmap& icon, const QString& title, const QString& address);
    void addMenuAppLink(const QPixmap& icon, const QString& title, const QString& name, const QString& identifier);
    void addMenuAction(QAction* action);
    void addMenuSeparator();
    // The shop's shelves and the encyclopedia, with the addresses set below.
    void addBaseActions();
    void hideAppOptions();

    void setMustHave(const QString& address);
    void setNiceToHave(const QString& address);
    void setRead(const QString& address);
    void setHear(const QString& address);
    void setSee(const QString& address);
    void setWikipedia(const QString& address);

public slots:
    void slotMustHave();
    void slotNiceToHave();
    void slotRead();
    void slotHear();
    void slotSee();
    void slotWikipedia();
    void slotCallUrl(const QString& address);

private:
    QPushButton* m_modesButton = nullptr;
    QPushButton* m_moreButton = nullptr;
    QSignalMapper* m_mapper = nullptr;
    QMenu* m_moreMenu = nullptr;
    QString m_mustHave;
    QString m_niceToHave;
    QString m_read;
    QString m_hear;
    QString m_see;
    QString m_wikipedia;
};

} // namespace QMMusic
