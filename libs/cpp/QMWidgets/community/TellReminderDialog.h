#pragma once

#include "ReminderDialog.h"

namespace QMWidgets {

// Asks to share the application, with the share panel to act at once.
class TellReminderDialog : public ReminderDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(TellReminderDialog)

public:
    explicit TellReminderDialog(QWidget* parent = nullptr);
};

} // namespace QMWidgets
