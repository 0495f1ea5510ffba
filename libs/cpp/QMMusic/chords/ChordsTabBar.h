#pragma once

#include <QTabBar>

namespace QMMusic {

// The tab bar of the transposer's song: it tells when its number of tabs
// changes, and a click acts on the button's release, when the tab under the
// pointer is already current.
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
