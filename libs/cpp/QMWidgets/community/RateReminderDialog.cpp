#include "RateReminderDialog.h"

#include <QPushButton>

namespace QMWidgets {

RateReminderDialog::RateReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    finishText(tr("<br>please rate it in the App Store.<br>Thanks!"));
    m_laterButton2->hide();
    m_nowButton->setText(tr("&Rate It Now"));
    m_nowButton->setFocus();
}

} // namespace QMWidgets
