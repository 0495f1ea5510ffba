#include "JoinDialog.h"

#include "JoinWidget.h"
#include "PanelDialogLayout.h"

namespace QMWidgets {

JoinDialog::JoinDialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Join us"));
    PanelDialogLayout::build(this, nullptr, new JoinWidget(this), tr("&Close"));
}

} // namespace QMWidgets
