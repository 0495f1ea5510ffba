#include "AppUpdateDialog.h"

#include "App.h"
#include "Common.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

AppUpdateDialog::AppUpdateDialog(QWidget* parent)
    : QDialog(parent)
    , m_checkBox(new QCheckBox(tr("Check for updates on start"), this))
    , m_messageLabel(new QLabel(this))
    , m_pictureLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("UpdateDialog"));
    setWindowTitle(QCoreApplication::applicationName() + tr(" Updates Notification"));

    m_messageLabel->setContentsMargins(12, 4, 12, 8);
    m_checkBox->setChecked(isChecked());
    connect(m_checkBox, &QCheckBox::toggled, this, &AppUpdateDialog::slotSetChecked);

    auto* yes = new QPushButton(tr("Yes"), this);
    auto* no = new QPushButton(tr("No"), this);
    Common::applyPushButtonDetails(yes);
    Common::applyPushButtonDetails(no);
    connect(yes, &QPushButton::clicked, this, &AppUpdateDialog::slotUpdate);
    connect(no, &QPushButton::clicked, this, &AppUpdateDialog::slotCancel);

    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(3);
    buttons->addWidget(yes);
    buttons->addWidget(no);

    auto* checkRow = new QHBoxLayout;
    checkRow->setContentsMargins(2, 2, 2, 2);
    checkRow->setSpacing(1);
    checkRow->addWidget(m_checkBox);
    checkRow->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_pictureLabel, 0, Qt::AlignHCenter);
    layout->addWidget(m_messageLabel);
    layout->addLayout(buttons);
    layout->addLayout(checkRow);
    yes->setFocus();
}

void AppUpdateDialog::setMessage(const QString& message)
{
    m_messageLabel->setText(message);
}

void AppUpdateDialog::setPic(const QPixmap& picture)
{
    m_pictureLabel->setPixmap(picture);
}

bool AppUpdateDialog::isChecked()
{
    return App::theApp()->settingsValue(QStringLiteral("checkupdates"), true).toBool();
}

void AppUpdateDialog::setChecked(bool on)
{
    App::theApp()->setSettingsValue(QStringLiteral("checkupdates"), on);
}

void AppUpdateDialog::slotSetChecked(bool on)
{
    setChecked(on);
}

void AppUpdateDialog::slotUpdate()
{
    App::theApp()->slotSupportPage();
    reject();
}

void AppUpdateDialog::slotCancel()
{
    reject();
}

} // namespace QMWidgets
