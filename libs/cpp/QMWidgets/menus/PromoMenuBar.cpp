#include "PromoMenuBar.h"

#include "App.h"
#include "AppButton.h"
#include "CorvaneSite.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QPushButton>
#include <QSignalMapper>
#include <QUrl>

namespace QMWidgets {

namespace {
const QSize kButtonSize(60, 32);
} // namespace

PromoMenuBar::PromoMenuBar(QWidget* parent)
    : QFrame(parent)
    , m_mapper(new QSignalMapper(this))
    , m_rightLayout(new QHBoxLayout)
    , m_centerLayout(new QHBoxLayout)
{
    setObjectName(QStringLiteral("MenuBar"));
    connect(m_mapper, &QSignalMapper::mappedString, this, &PromoMenuBar::slotCallUrl);

    m_texts = new TranslatedTexts(this, staticMetaObject.className());
    m_introButton = makeButton(QStringLiteral("IntroButton"), QString());
    m_texts->setToolTip(m_introButton, QT_TR_NOOP("Introduction"));
    m_moreButton = makeButton(QStringLiteral("MoreButton"), QString());
    m_texts->setToolTip(m_moreButton, QT_TR_NOOP("More"));
    m_rateButton = makeButton(QStringLiteral("RateButton"), QString());
    m_texts->setToolTip(m_rateButton, QT_TR_NOOP("Rate App"));
    m_moreAppsButton = makeButton(QStringLiteral("MoreAppsButton"), QString());
    m_texts->setToolTip(m_moreAppsButton, QT_TR_NOOP("More Apps"));
    m_shareButton = makeButton(QStringLiteral("ShareButton"), QString());
    m_texts->setToolTip(m_shareButton, QT_TR_NOOP("Share"));
    m_joinButton = makeButton(QStringLiteral("JoinButton"), QString());
    m_texts->setToolTip(m_joinButton, QT_TR_NOOP("Join Us"));
    m_appButton = new AppButton(this);
    m_appButton->setObjectName(QStringLiteral("AppButton"));
    m_texts->setToolTip(m_appButton, QT_TR_NOOP("App Menu"));
    m_appButton->setFlat(true);
    m_appButton->setFixedSize(kButtonSize);

    m_shopMenu = new QMenu(m_moreButton);
    m_moreButton->setMenu(m_shopMenu);
    m_rateButton->hide();
    m_moreAppsButton->hide();

    App* app = App::theApp();
    connect(m_introButton, &QPushButton::clicked, app, &App::slotHelp);
    connect(m_rateButton, &QPushButton::clicked, app, &App::slotRateApp);
    connect(m_moreAppsButton, &QPushButton::clicked, app, &App::slotShowMoreApps);
    connect(m_shareButton, &QPushButton::clicked, app, &App::slotShareApp);
    connect(m_joinButton, &QPushButton::clicked, app, &App::slotJoin);
    connect(m_appButton, &AppButton::quitPressed, app, &QCoreApplication::quit);

    m_centerLayout->setContentsMargins(0, 0, 0, 0);
    m_centerLayout->setSpacing(0);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(0);
    layout->addWidget(m_moreButton);
    layout->addStretch(1);
    layout->addLayout(m_centerLayout);
    layout->addStretch(1);
    layout->addLayout(m_rightLayout);
    layout->addWidget(m_introButton);
    layout->addWidget(m_shareButton);
    layout->addWidget(m_joinButton);
    layout->addWidget(m_moreAppsButton);
    layout->addWidget(m_rateButton);
    layout->addWidget(m_appButton);

    // A child must find no way out of the application.
    if (app->isKidsMode()) {
        m_appButton->hide();
        hideSupportPageAction();
        hideRateAction();
        hideMoreAppsAction();
        hideShareAction();
        hideJoinAction();
        hideMoreButton();
    }
}

QPushButton* PromoMenuBar::makeButton(const QString& objectName, const QString& toolTip)
{
    auto* button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setFlat(true);
    button->setFixedSize(kButtonSize);
    return button;
}

QString PromoMenuBar::storeLink(const QString& storeName, const QString& storeId)
{
    return QLatin1String(CorvaneSite::storeHost) + QStringLiteral("/app/") + storeName.toLower() + QLatin1Char('/')
        + storeId + QStringLiteral("?ls=1&mt=12");
}

void PromoMenuBar::addMenuLink(const QPixmap& icon, const QString& title, const QString& url)
{
    auto* action = new QAction(QIcon(icon), title, this);
    connect(action, &QAction::triggered, m_mapper, qOverload<>(&QSignalMapper::map));
    m_mapper->setMapping(action, url);
    m_shopMenu->addAction(action);
}

void PromoMenuBar::addMenuAppLink(
    const QPixmap& icon, const QString& title, const QString& storeName, const QString& storeId)
{
    addMenuLink(icon, title, storeLink(storeName, storeId));
}

void PromoMenuBar::addMenuAction(QAction* action)
{
    m_shopMenu->addAction(action);
}

void PromoMenuBar::addMenuSeparator()
{
    m_shopMenu->addSeparator();
}

void PromoMenuBar::addMoreAppsLink()
{
    m_shopMenu->addSeparator();
    m_texts->setText(m_shopMenu->addAction(
                         QIcon(QStringLiteral(":/moreappsicon.png")), QString(), App::theApp(), &App::slotShowMoreApps),
        QT_TR_NOOP("More Apps"));
    m_shopMenu->addSeparator();
}

QMenu* PromoMenuBar::shopMenu() const
{
    return m_shopMenu;
}

void PromoMenuBar::addWidget(QWidget* widget)
{
    m_rightLayout->addWidget(widget);
}

void PromoMenuBar::addCenterWidget(QWidget* widget)
{
    m_centerLayout->addWidget(widget);
}

AppButton* PromoMenuBar::appButton() const
{
    return m_appButton;
}

void PromoMenuBar::slotCallUrl(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url));
}

void PromoMenuBar::hideSupportPageAction()
{
    m_appButton->hideSupportPageAction();
}

void PromoMenuBar::hideMoreAction()
{
    m_moreButton->hide();
}

void PromoMenuBar::hideMoreButton()
{
    m_moreButton->hide();
}

void PromoMenuBar::hideRateAction()
{
    m_appButton->hideRateAction();
    m_rateButton->hide();
}

void PromoMenuBar::hideMoreAppsAction()
{
    m_appButton->hideMoreAppsAction();
    m_moreAppsButton->hide();
}

void PromoMenuBar::hideShareAction()
{
    m_appButton->hideShareAction();
    m_shareButton->hide();
}

void PromoMenuBar::hideJoinAction()
{
    m_appButton->hideJoinAction();
    m_joinButton->hide();
}

void PromoMenuBar::hideIntroAction()
{
    m_introButton->hide();
}

void PromoMenuBar::hideIntroButton()
{
    m_introButton->hide();
}

void PromoMenuBar::hideRateButton()
{
    m_rateButton->hide();
}

void PromoMenuBar::hideMoreAppsButton()
{
    m_moreAppsButton->hide();
}

void PromoMenuBar::hideShareButton()
{
    m_shareButton->hide();
}

void PromoMenuBar::hideJoinButton()
{
    m_joinButton->hide();
}

} // namespace QMWidgets
