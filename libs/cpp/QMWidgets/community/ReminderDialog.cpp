#include "ReminderDialog.h"

#include "App.h"
#include "Common.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

ReminderDialog::ReminderDialog(QWidget* parent)
    : QDialog(parent)
    , m_label(new QLabel(this))
    , m_nowButton(new QPushButton(this))
    , m_laterButton(new QPushButton(tr("&Maybe Later"), this))
    , m_laterButton2(new QPushButton(tr("&Maybe Later"), this))
    , m_neverButton(new QPushButton(tr("&Never Ask Me Again"), this))
    , m_extraLayout(new QHBoxLayout)
    , m_logoLabel(new QLabel(this))
{
    const App* app = App::theApp();
    m_pocket = app && app->isPocketDevice();
    const QString name = QCoreApplication::applicationName();
    setWindowTitle(tr("Help Spread the Word about ") + QLatin1Char('"') + name + QLatin1Char('"'));
    setObjectName(QStringLiteral("Dialog"));

    for (QPushButton* button : { m_nowButton, m_laterButton, m_laterButton2, m_neverButton })
        Common::applyPushButtonDetails(button);
    connect(m_nowButton, &QPushButton::clicked, this, &ReminderDialog::slotNow);
    connect(m_laterButton, &QPushButton::clicked, this, &ReminderDialog::slotMaybeLater);
    connect(m_laterButton2, &QPushButton::clicked, this, &ReminderDialog::slotMaybeLater);
    connect(m_neverButton, &QPushButton::clicked, this, &ReminderDialog::slotNeverAskMeAgain);

    m_label->setText(QStringLiteral("<CENTER>") + (m_pocket ? QStringLiteral("<H4>") : QStringLiteral("<H3>"))
        + QStringLiteral("If you like ") + name + QStringLiteral("-App,"));
    // The text breaks where its lines end, not at the hyphen of the name.
    m_label->setMinimumHeight(90);

    m_logoLabel->setObjectName(QStringLiteral("LogoLabel"));
    m_logoLabel->setFixedSize(90, 90);

    QBoxLayout* head = nullptr;
    if (m_pocket) {
        head = new QVBoxLayout;
        auto* logoRow = new QHBoxLayout;
        logoRow->addStretch(1);
        logoRow->addWidget(m_logoLabel);
        logoRow->addStretch(1);
        head->addLayout(logoRow);
    } else {
        head = new QHBoxLayout;
        head->addWidget(m_logoLabel);
    }
    head->setSpacing(5);
    head->setContentsMargins(0, 0, 0, 0);
    head->addWidget(m_label, 1);

    QBoxLayout* buttons = m_pocket ? static_cast<QBoxLayout*>(new QVBoxLayout) : new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(5);
    for (QPushButton* button : { m_laterButton, m_neverButton, m_laterButton2, m_nowButton })
        buttons->addWidget(button);

    m_extraLayout->setContentsMargins(0, 0, 0, 0);
    m_extraLayout->setSpacing(0);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(1);
    layout->addLayout(head);
    layout->addLayout(m_extraLayout);
    layout->addLayout(buttons);
}

int ReminderDialog::state() const
{
    return m_state;
}

void ReminderDialog::finishText(const QString& text)
{
    m_label->setText(m_label->text() + text + (m_pocket ? QStringLiteral("</H4>") : QStringLiteral("</H3>"))
        + QStringLiteral("</CENTER>"));
}

void ReminderDialog::finish(int state)
{
    m_state = state;
    accept();
}

void ReminderDialog::slotNow()
{
    finish(Now);
}

void ReminderDialog::slotMaybeLater()
{
    finish(Later);
}

void ReminderDialog::slotNeverAskMeAgain()
{
    finish(Never);
}

void ReminderDialog::focusInEvent(QFocusEvent* event)
{
    QDialog::focusInEvent(event);
    if (!m_laterButton2->isHidden())
        m_laterButton2->setFocus();
    else
        m_laterButton->setFocus();
}

} // namespace QMWidgets
