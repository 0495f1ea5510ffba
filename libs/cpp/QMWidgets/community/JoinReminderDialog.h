#pragma once

#include "ReminderDialog.h"

namespace QMWidgets {

// Invites to follow the maker, with the join panel and its own heading.
class JoinReminderDialog : public ReminderDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(JoinReminderDialog)

public:
    explicit JoinReminderDialog(QWidget* parent = nullptr);
};

} // namespace QMWidgets
