#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace QMWidgets {

// Shows where the keyboard is: a copper ring around the widget that Tab or
// Backtab gave the focus to, over the window's own drawing, following the
// widget as it moves or resizes. A click takes the focus without a ring, as
// the pictures of the buttons already show what the mouse pressed.
class FocusRing : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(FocusRing)

public:
    // Watches every widget of the application.
    explicit FocusRing(QObject* parent = nullptr);
    ~FocusRing() override;

    // The widget the ring surrounds now, or nullptr when none shows.
    QWidget* target() const;
    // The ring itself, for its geometry.
    QWidget* ring() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showAround(QWidget* widget);
    void hide();
    void place();

    QPointer<QWidget> m_target;
    QPointer<QWidget> m_ring;
};

} // namespace QMWidgets
