#include "AppMenu.h"

#include "App.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QIcon>

namespace QMWidgets {

AppMenu::AppMenu(QWidget* parent)
    : QMenu(parent)
{
    App* app = App::theApp();
    auto* texts = new TranslatedTexts(this, staticMetaObject.className());
    const auto add = [this, texts](const QString& icon, const char* text, auto receiver, auto slot) {
        QAction* action = addAction(QIcon(icon), QString(), receiver, slot);
        texts->setText(action, text);
        return action;
    };

    if (App::isAppStore())
        m_rateAction = add(QStringLiteral(":/star.png"), QT_TR_NOOP("Rate this App"), app, &App::slotRateApp);
    m_shareAction = add(QStringLiteral(":/share_hover.png"), QT_TR_NOOP("Share"), app, &App::slotShareApp);
    m_joinAction = add(QStringLiteral(":/join_hover.png"), QT_TR_NOOP("Join Us"), app, &App::slotJoin);
    m_moreAppsAction = add(QStringLiteral(":/moreappsicon.png"), QT_TR_NOOP("More Apps"), app, &App::slotShowMoreApps);
    add(QStringLiteral(":/feedback.png"), QT_TR_NOOP("Contacts Us"), app, &App::slotContactUs);
    m_supportPageAction = add(QStringLiteral(":/webpage.png"), QT_TR_NOOP("Support Page"), app, &App::slotSupportPage);
    if (!App::isAppStore())
        m_rateAction = add(QStringLiteral(":/star.png"), QT_TR_NOOP("Check Updates"), app, &App::slotCheckUpdate);
    add(QStringLiteral(":/appicon.png"), QT_TR_NOOP("About"), app, &App::slotAbout);
    addSeparator();
    texts->setText(addAction(QString(), this, &AppMenu::quitPressed), QT_TR_NOOP("Quit"));
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
