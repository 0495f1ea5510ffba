#pragma once

#include "ReminderDialog.h"

namespace QMWidgets {

// Asks to rate the application in the store; "now" opens its page.
class RateReminderDialog : public ReminderDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(RateReminderDialog)

public:
    explicit RateReminderDialog(QWidget* parent = nullptr);
};

} // namespace QMWidgets
