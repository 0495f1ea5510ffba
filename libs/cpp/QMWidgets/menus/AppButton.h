#pragma once

#include <QPushButton>

namespace QMWidgets {

class AppMenu;

// The picture button at the right end of the menu bar that opens the
// application menu.
class AppButton : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY(AppButton)

public:
    explicit AppButton(QWidget* parent = nullptr);

    AppMenu* appMenu() const;

    void hideSupportPageAction();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();

signals:
    void quitPressed();

private:
    AppMenu* m_menu = nullptr;
};

} // namespace QMWidgets
