#include "Common.h"

#include <QPushButton>
#include <QString>

namespace QMWidgets {

void Common::extend(QWidget* widget, const QString& objectName, const QString& toolTip)
{
    widget->setObjectName(objectName);
    if (!toolTip.isEmpty())
        widget->setToolTip(toolTip);
}

void Common::applyPushButtonDetails(QPushButton* button)
{
    button->setObjectName(QStringLiteral("PushButton"));
    button->setFlat(true);
    button->setMinimumHeight(32);
}

void Common::applyToolButtonDetails(QPushButton* button)
{
    button->setFlat(true);
    button->setFixedSize(32, 32);
}

} // namespace QMWidgets
