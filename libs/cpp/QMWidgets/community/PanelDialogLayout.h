#pragma once

class QDialog;
class QLabel;
class QString;
class QWidget;

namespace QMWidgets {

// The layout that the share and join windows have in common: an optional
// text, the panel centred, and a "&Close" button centred below.
class PanelDialogLayout
{
public:
    static void build(QDialog* dialog, QLabel* text, QWidget* panel, const QString& closeText);
};

} // namespace QMWidgets
