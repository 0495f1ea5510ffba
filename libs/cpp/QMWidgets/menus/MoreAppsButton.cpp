#include "MoreAppsButton.h"

#include "PromoMenuBar.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QDesktopServices>
#include <QIcon>
#include <QMenu>
#include <QSignalMapper>
#include <QUrl>

namespace QMWidgets {

MoreAppsButton::MoreAppsButton(QWidget* parent)
    : QPushButton(parent)
    , m_menu(new QMenu(this))
    , m_mapper(new QSignalMapper(this))
{
    setObjectName(QStringLiteral("MoreAppsButton"));
    (new TranslatedTexts(this, staticMetaObject.className()))->setToolTip(this, QT_TR_NOOP("More Apps"));
    setFlat(true);
    setMenu(m_menu);
    connect(m_mapper, &QSignalMapper::mappedString, this, &MoreAppsButton::slotCallUrl);
}

void MoreAppsButton::addMenuLink(const QPixmap& icon, const QString& title, const QString& url)
{
    auto* action = new QAction(QIcon(icon), title, this);
    connect(action, &QAction::triggered, m_mapper, qOverload<>(&QSignalMapper::map));
    m_mapper->setMapping(action, url);
    m_menu->addAction(action);
}

void MoreAppsButton::addMenuAppLink(
    const QPixmap& icon, const QString& title, const QString& storeName, const QString& storeId)
{
    addMenuLink(icon, title, PromoMenuBar::storeLink(storeName, storeId));
}

void MoreAppsButton::addMenuAction(QAction* action)
{
    m_menu->addAction(action);
}

void MoreAppsButton::addMenuSeparator()
{
    m_menu->addSeparator();
}

void MoreAppsButton::slotCallUrl(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url));
}

} // namespace QMWidgets
