#include "AppMenu.h"

#include "App.h"

#include <QAction>
#include <QIcon>

namespace QMWidgets {

AppMenu::AppMenu(QWidget* parent)
    : QMenu(parent)
{
    App* app = App::theApp();

    if (App::isAppStore())
        m_rateAction = addAction(QIcon(QStringLiteral(":/star.png")), tr("Rate this App"), app, &App::slotRateApp);
    m_shareAction = addAction(QIcon(QStringLiteral(":/share_hover.png")), tr("Share"), app, &App::slotShareApp);
    m_joinAction = addAction(QIcon(QStringLiteral(":/join_hover.png")), tr("Join Us"), app, &App::slotJoin);
    m_moreAppsAction
        = addAction(QIcon(QStringLiteral(":/moreappsicon.png")), tr("More Apps"), app, &App::slotShowMoreApps);
    addAction(QIcon(QStringLiteral(":/feedback.png")), tr("Contacts Us"), app, &App::slotContactUs);
    m_supportPageAction
        = addAction(QIcon(QStringLiteral(":/webpage.png")), tr("Support Page"), app, &App::slotSupportPage);
    if (!App::isAppStore())
        m_rateAction = addAction(QIcon(QStringLiteral(":/star.png")), tr("Check Updates"), app, &App::slotCheckUpdate);
    addAction(QIcon(QStringLiteral(":/appicon.png")), tr("About"), app, &App::slotAbout);
    addSeparator();
    addAction(tr("Quit"), this, &AppMenu::quitPressed);
}

void AppMenu::hideAction(QAction* action)
{
    if (action)
        action->setVisible(false);
}

void AppMenu::hideSupportPageAction()
{
    hideAction(m_supportPageAction);
}

void AppMenu::hideRateAction()
{
    hideAction(m_rateAction);
}

void AppMenu::hideMoreAppsAction()
{
    hideAction(m_moreAppsAction);
}

void AppMenu::hideShareAction()
{
    hideAction(m_shareAction);
}

void AppMenu::hideJoinAction()
{
    hideAction(m_joinAction);
}

} // namespace QMWidgets
