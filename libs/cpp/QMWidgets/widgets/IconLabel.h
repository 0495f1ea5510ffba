#pragma once

#include "Label.h"

namespace QMWidgets {

// The small window icon of a title bar: a picture fitted into the label.
class IconLabel : public Label
{
    Q_OBJECT
    Q_DISABLE_COPY(IconLabel)

public:
    explicit IconLabel(QWidget* parent = nullptr);

    void setIcon(const QPixmap& pixmap);
};

} // namespace QMWidgets
