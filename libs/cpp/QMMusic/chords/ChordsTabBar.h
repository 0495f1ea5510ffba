#pragma once

#include <QTabBar>

namespace QMMusic {

// The tabs of a chord sequence. A click acts when the button is released,
// with the tab under the pointer already current, and every insertion or
// removal reports the new count.
class ChordsTabBar : public QTabBar
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordsTabBar)

public:
    explicit ChordsTabBar(QWidget* parent = nullptr);

signals:
    void tabClicked();
    void countChanged(int count);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
};

} // namespace QMMusic
