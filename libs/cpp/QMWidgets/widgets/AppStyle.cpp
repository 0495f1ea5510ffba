#include "AppStyle.h"

#include <QFile>

namespace QMWidgets {

AppStyle::AppStyle() = default;

QIcon AppStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option, const QWidget* widget) const
{
    QString name;
    switch (standardIcon) {
    case SP_MessageBoxInformation:
        name = QStringLiteral(":/MessageInformation.png");
        break;
    case SP_MessageBoxQuestion:
        name = QStringLiteral(":/MessageQuestion.png");
        break;
    case SP_MessageBoxWarning:
        name = QStringLiteral(":/MessageWarning.png");
        break;
    case SP_MessageBoxCritical:
        name = QStringLiteral(":/MessageCritical.png");
        break;
    default:
        break;
    }
    // A program built without the pictures keeps the style's own.
    if (name.isEmpty() || !QFile::exists(name))
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    QIcon icon;
    icon.addFile(name);
    icon.addFile(QString(name).replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
    return icon;
}

} // namespace QMWidgets
