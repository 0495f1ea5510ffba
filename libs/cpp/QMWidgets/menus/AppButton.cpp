#include "AppButton.h"

#include "AppMenu.h"

namespace QMWidgets {

AppButton::AppButton(QWidget* parent)
    : QPushButton(parent)
    , m_menu(new AppMenu(this))
{
    setMenu(m_menu);
    connect(m_menu, &AppMenu::quitPressed, this, &AppButton::quitPressed);
}

AppMenu* AppButton::appMenu() const
{
    return m_menu;
}

void AppButton::hideSupportPageAction()
{
    m_menu->hideSupportPageAction();
}

void AppButton::hideRateAction()
{
    m_menu->hideRateAction();
}

void AppButton::hideMoreAppsAction()
{
    m_menu->hideMoreAppsAction();
}

void AppButton::hideShareAction()
{
    m_menu->hideShareAction();
}

void AppButton::hideJoinAction()
{
    m_menu->hideJoinAction();
}

} // namespace QMWidgets
