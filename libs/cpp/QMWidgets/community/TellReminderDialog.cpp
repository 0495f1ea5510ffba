#include "TellReminderDialog.h"

#include "TellWidget.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace QMWidgets {

TellReminderDialog::TellReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    setWindowTitle(tr("Share"));
    finishText(tr("<br>Share it with Your Friends.<br>Thanks!"));
    m_laterButton->hide();
    m_nowButton->hide();
    m_extraLayout->addStretch(1);
    m_extraLayout->addWidget(new TellWidget(this));
    m_extraLayout->addStretch(1);
}

} // namespace QMWidgets
