#pragma once

#include <QFrame>

namespace QMWidgets {
class PromoMenuBar;
}

namespace QMMusic {

class MusicShopBase;

// Base of every top-level page of the music library: owns the menu bar and
// joins the shop of the page's instrument to its "More" menu.
class BaseMainPage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(BaseMainPage)

public:
    explicit BaseMainPage(QWidget* parent = nullptr);
    ~BaseMainPage() override;

    QMWidgets::PromoMenuBar* promoMenuBar() const;
    MusicShopBase* shop() const;

    // Makes the page's shop and adds its entries to the menu; called once,
    // after the application's own entries.
    virtual void addShopMenu() = 0;

public slots:
    void slotMustHave();
    void slotNiceToHave();
    void slotRead();
    void slotHear();
    void slotSee();
    void slotWikipedia();

protected:
    void setShop(MusicShopBase* shop);
    void doShopConnections();

private:
    static void openLink(const QString& link);

    QMWidgets::PromoMenuBar* m_promoMenuBar = nullptr;
    MusicShopBase* m_shop = nullptr;
};

} // namespace QMMusic
