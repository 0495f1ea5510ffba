#pragma once

class QPushButton;
class QString;
class QWidget;

namespace QMWidgets {

// One-line helpers that give widgets the object names and flags the
// application style sheet expects.
class Common
{
public:
    // Sets the object name, and the tool tip when one is given.
    static void extend(QWidget* widget, const QString& objectName, const QString& toolTip);
    // Every dialog button: object name "PushButton", flat, at least 32 high.
    static void applyPushButtonDetails(QPushButton* button);
    // Square picture buttons: flat, 32 by 32.
    static void applyToolButtonDetails(QPushButton* button);
};

} // namespace QMWidgets
