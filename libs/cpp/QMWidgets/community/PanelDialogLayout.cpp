#include "PanelDialogLayout.h"

#include "App.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

void PanelDialogLayout::build(QDialog* dialog, QLabel* text, QWidget* panel, const QString& closeText)
{
    const bool pocket = App::theApp()->isPocketDevice();
    dialog->setObjectName(QStringLiteral("Dialog"));

    auto* close = new QPushButton(closeText, dialog);
    close->setFlat(true);
    close->setMinimumHeight(32);
    close->setMinimumWidth(120);
    close->setObjectName(QStringLiteral("PushButton"));
    QObject::connect(close, &QPushButton::clicked, dialog, &QDialog::accept);

    auto* panelRow = new QHBoxLayout;
    panelRow->setSpacing(7);
    panelRow->setContentsMargins(15, 15, 15, 15);
    panelRow->addStretch(1);
    panelRow->addWidget(panel);
    panelRow->addStretch(1);

    QBoxLayout* buttonRow = pocket ? static_cast<QBoxLayout*>(new QVBoxLayout) : new QHBoxLayout;
    buttonRow->setContentsMargins(10, 10, 10, 10);
    buttonRow->setSpacing(7);
    buttonRow->addStretch(1);
    buttonRow->addWidget(close);
    buttonRow->addStretch(1);

    auto* layout = new QVBoxLayout(dialog);
    layout->setSpacing(7);
    layout->setContentsMargins(10, 10, 10, 10);
    if (text)
        layout->addWidget(text);
    layout->addLayout(panelRow);
    layout->addLayout(buttonRow);
    close->setFocus();
}

} // namespace QMWidgets
