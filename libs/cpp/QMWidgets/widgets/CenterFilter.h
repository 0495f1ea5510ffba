#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>

namespace QMWidgets {

// An event filter that centres a widget in its parent (or on the desktop)
// each time the widget is shown.
class CenterFilter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(CenterFilter)

public:
    explicit CenterFilter(QObject* parent = nullptr);

    bool eventFilter(QObject* object, QEvent* event) override;

    // Position in the parent's coordinates; each half is taken with integer
    // division before the subtraction.
    static QPoint centredPosition(const QSize& parentSize, const QSize& size);
};

} // namespace QMWidgets
