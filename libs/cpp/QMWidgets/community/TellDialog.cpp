#include "TellDialog.h"

#include "App.h"
#include "PanelDialogLayout.h"
#include "TellWidget.h"

#include <QLabel>

namespace QMWidgets {

TellDialog::TellDialog(QWidget* parent)
    : QDialog(parent)
{
    const QString name = QCoreApplication::applicationName();
    const bool pocket = App::theApp()->isPocketDevice();
    setWindowTitle(QStringLiteral("Share ") + name);
    auto* text = new QLabel(this);
    text->setText(QStringLiteral("<CENTER>") + (pocket ? QStringLiteral("<H4>") : QStringLiteral("<H2>"))
        + tr("If you like<br>") + QLatin1Char('"') + name + QStringLiteral("\",")
        + tr("<br>please share it with your friends.<br>Thanks!")
        + (pocket ? QStringLiteral("</H4>") : QStringLiteral("</H2>")) + QStringLiteral("</CENTER>"));
    PanelDialogLayout::build(this, text, new TellWidget(this), tr("&Close"));
}

} // namespace QMWidgets
