#pragma once

#include <QDialog>

namespace QMWidgets {

// The join panel in a window of its own.
class JoinDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(JoinDialog)

public:
    explicit JoinDialog(QWidget* parent = nullptr);
};

} // namespace QMWidgets
