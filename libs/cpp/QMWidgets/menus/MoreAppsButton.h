#pragma once

#include <QPushButton>

class QAction;
class QMenu;
class QSignalMapper;

namespace QMWidgets {

// A stand-alone button with a drop-down list of the maker's other products,
// for pages that carry no menu bar.
class MoreAppsButton : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY(MoreAppsButton)

public:
    explicit MoreAppsButton(QWidget* parent = nullptr);

    void addMenuLink(const QPixmap& icon, const QString& title, const QString& url);
    void addMenuAppLink(const QPixmap& icon, const QString& title, const QString& storeName, const QString& storeId);
    void addMenuAction(QAction* action);
    void addMenuSeparator();

public slots:
    void slotCallUrl(const QString& url);

private:
    QMenu* m_menu = nullptr;
    QSignalMapper* m_mapper = nullptr;
};

} // namespace QMWidgets
