#include "FavoritesDeleteDlg.h"

#include "App.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>

namespace QMMusic {

namespace {

QPushButton* makeButton(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setFixedHeight(32);
    return button;
}

} // namespace

FavoritesDeleteDlg::FavoritesDeleteDlg(QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
{
    setWindowTitle(tr("Delete the chords"));
    setObjectName(QStringLiteral("Dialog"));
    setMinimumSize(400, 300);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAttribute(Qt::WA_MacShowFocusRect, false);

    QPushButton* deleteButton = makeButton(tr("&Delete"), QStringLiteral("DeleteButton"), this);
    m_cancelButton = makeButton(tr("&Cancel"), QStringLiteral("PushButton"), this);
    connect(deleteButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);

    const QMWidgets::App* app = QMWidgets::App::theApp();
    auto* buttons = new QBoxLayout(app && app->isPocketDevice() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    buttons->addWidget(deleteButton);
    buttons->addWidget(m_cancelButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
}

QString FavoritesDeleteDlg::item() const
{
    const QListWidgetItem* current = m_list->currentItem();
    return current ? current->text() : QString();
}

void FavoritesDeleteDlg::addItem(const QString& name)
{
    m_list->insertItem(0, name);
}

void FavoritesDeleteDlg::clearItems()
{
    m_list->clear();
}

QListWidget* FavoritesDeleteDlg::list() const
{
    return m_list;
}

void FavoritesDeleteDlg::showEvent(QShowEvent* event)
{
    if (m_list->count() > 0)
        m_list->setCurrentRow(0);
    m_cancelButton->setFocus();
    QDialog::showEvent(event);
}

} // namespace QMMusic
