#pragma once

#include <QMenu>

class QAction;

namespace QMWidgets {

// The application menu behind the app button: rate or update check, share,
// join, more apps, contact, support page, about and quit.
class AppMenu : public QMenu
{
    Q_OBJECT
    Q_DISABLE_COPY(AppMenu)

public:
    explicit AppMenu(QWidget* parent = nullptr);

    void hideSupportPageAction();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();

signals:
    void quitPressed();

private:
    static void hideAction(QAction* action);

    // "Check Updates" is kept in the rate member too: hiding the rate entry
    // hides whichever of the two this build shows.
    QAction* m_rateAction = nullptr;
    QAction* m_shareAction = nullptr;
    QAction* m_joinAction = nullptr;
    QAction* m_moreAppsAction = nullptr;
    QAction* m_supportPageAction = nullptr;
};

} // namespace QMWidgets
