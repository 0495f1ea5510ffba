#include "JoinReminderDialog.h"

#include "JoinWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

JoinReminderDialog::JoinReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    setWindowTitle(tr("Join Us"));
    // The panel brings a heading of its own.
    m_label->hide();
    m_laterButton->hide();
    m_nowButton->hide();
    m_extraLayout->addStretch(1);
    m_extraLayout->addWidget(new JoinWidget(this));
    m_extraLayout->addStretch(1);
}

} // namespace QMWidgets
