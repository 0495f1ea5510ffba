#pragma once

#include <QFrame>

class QAction;
class QHBoxLayout;
class QMenu;
class QPushButton;
class QSignalMapper;

namespace QMWidgets {

class TranslatedTexts;

class AppButton;

// The bar along the top of a page: the "More" drop-down of product and shop
// links, a centre for the page's own widgets, the picture buttons of the
// frame (intro, share, join, more apps, rate) and the application menu.
class PromoMenuBar : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PromoMenuBar)

public:
    explicit PromoMenuBar(QWidget* parent = nullptr);

    // The address of a product's page in the application store.
    static QString storeLink(const QString& storeName, const QString& storeId);

    void addMenuLink(const QPixmap& icon, const QString& title, const QString& url);
    void addMenuAppLink(const QPixmap& icon, const QString& title, const QString& storeName, const QString& storeId);
    void addMenuAction(QAction* action);
    void addMenuSeparator();
    void addMoreAppsLink();
    QMenu* shopMenu() const;

    void addWidget(QWidget* widget);
    void addCenterWidget(QWidget* widget);

    AppButton* appButton() const;

    void hideSupportPageAction();
    void hideMoreAction();
    void hideMoreButton();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();
    void hideIntroAction();
    void hideIntroButton();
    void hideRateButton();
    void hideMoreAppsButton();
    void hideShareButton();
    void hideJoinButton();

public slots:
    void slotCallUrl(const QString& url);

private:
    TranslatedTexts* m_texts = nullptr;
    QPushButton* makeButton(const QString& objectName, const QString& toolTip);

    QMenu* m_shopMenu = nullptr;
    QSignalMapper* m_mapper = nullptr;
    QHBoxLayout* m_rightLayout = nullptr;
    QHBoxLayout* m_centerLayout = nullptr;
    QPushButton* m_introButton = nullptr;
    QPushButton* m_moreButton = nullptr;
    QPushButton* m_rateButton = nullptr;
    QPushButton* m_moreAppsButton = nullptr;
    QPushButton* m_shareButton = nullptr;
    QPushButton* m_joinButton = nullptr;
    AppButton* m_appButton = nullptr;
};

} // namespace QMWidgets
