#pragma once

#include <QLabel>

namespace QMWidgets {

// A label laid over the main widget that swallows mouse presses while a
// dialog of the frame wants the window behind it dimmed and inert.
class BlenderWidget : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY(BlenderWidget)

public:
    explicit BlenderWidget(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace QMWidgets
