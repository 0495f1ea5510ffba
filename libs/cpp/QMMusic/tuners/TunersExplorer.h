#pragma once

#include <QFrame>

class QButtonGroup;
class QPushButton;

namespace QMMusic {

class TunersCommonPanel;

// The column on the left of the tuners: the common bar over a grid of
// instrument buttons, one of them checked, and a button for the family's
// other programs.
class TunersExplorer : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TunersExplorer)

public:
    explicit TunersExplorer(QWidget* parent = nullptr);

    TunersCommonPanel* commonPanel() const;
    QButtonGroup* instrumentGroup() const;
    // By object name, e.g. "CelloButton" or "OtherAppsButton".
    QPushButton* instrumentButton(const QString& objectName) const;

signals:
    void showViolin();
    void showViola();
    void showCello();
    void showDoubleBass();
    void showGuitar();
    void showBassGuitar();
    void showUkulele();
    void showBanjo();
    void showMandolin();
    void showBalalaika();
    void showDombra();
    void showMore();
    void repeatModeChangedTo(bool on);

private:
    TunersCommonPanel* m_commonPanel = nullptr;
    QButtonGroup* m_group = nullptr;
};

} // namespace QMMusic
