#pragma once

#include <QDialog>

namespace QMWidgets {

// The share panel in a window of its own, under a request to share.
class TellDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(TellDialog)

public:
    explicit TellDialog(QWidget* parent = nullptr);
};

} // namespace QMWidgets
