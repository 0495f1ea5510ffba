#pragma once

#include <QLabel>
#include <QPoint>
#include <QPointer>

namespace QMWidgets {

// The title bar of a frameless window: dragging it moves the window, and an
// optional decoration window floats at a fixed offset from it.
class TitleLabel : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY(TitleLabel)

public:
    explicit TitleLabel(QWidget* parent = nullptr);

    // Takes ownership, deletes the previous decoration and turns the new one
    // into a tool tip window that follows the label.
    void setDecoration(QWidget* decoration, const QPoint& offset);
    QWidget* decoration() const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void placeDecoration();

    QPoint m_pressPos;
    QPoint m_decorationOffset;
    QPointer<QWidget> m_decoration;
};

} // namespace QMWidgets
