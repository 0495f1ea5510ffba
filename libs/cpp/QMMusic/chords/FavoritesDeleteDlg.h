#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace QMMusic {

// Picks one of the stored chord sequences for deletion.
class FavoritesDeleteDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(FavoritesDeleteDlg)

public:
    explicit FavoritesDeleteDlg(QWidget* parent = nullptr);

    // The current row's name; empty when the list is.
    QString item() const;
    // At the top of the list.
    void addItem(const QString& name);
    void clearItems();

    QListWidget* list() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QListWidget* m_list = nullptr;
    QPushButton* m_cancelButton = nullptr;
};

} // namespace QMMusic
