#pragma once

#include <QProxyStyle>

namespace QMWidgets {

// The platform's style with the program's own pictures for the message
// boxes: drawn in the program's palette and at twice the size as well, so
// they stay sharp on high-density screens. Everything else is the style's.
class AppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    AppStyle();

    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
};

} // namespace QMWidgets
