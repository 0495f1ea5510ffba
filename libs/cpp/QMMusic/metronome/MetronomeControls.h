#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace QMMusic {

// The metronome's controls: the tempo with its up and down buttons, the
// Italian tempo names from Largo to Presto, the beats per bar and the two
// mute buttons. The tempo label's text is the only store of the tempo.
class MetronomeControls : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(MetronomeControls)

public:
    static constexpr int SlowestTempo = 38;
    static constexpr int FastestTempo = 208;

    explicit MetronomeControls(QWidget* parent = nullptr);

    // Beats per minute, read from the label; 1000 if it holds no number.
    int interval() const;
    // Shows the tempo and tells it.
    void setInterval(int tempo);
    int beatsCount() const;
    // Makes the row whose range holds the tempo the current one.
    void setSelectListItem(int tempo);

    QTreeWidget* tempoList() const;
    QPushButton* beatsCombo() const;

signals:
    void beatsCountChanged(int count);
    void visibleTickChanged(bool checked);
    void audibleTickChanged(bool checked);
    void intervalChanged(int tempo);

public slots:
    void slotBeatsCountChanged();
    void slotTempoInc();
    void slotTempoDec();
    void slotCurrentItemChanged();

private:
    QPushButton* m_visibleTickButton = nullptr;
    QPushButton* m_audibleTickButton = nullptr;
    QTreeWidget* m_tempoList = nullptr;
    QPushButton* m_beatsCombo = nullptr;
    QPushButton* m_beatButton = nullptr;
    QLabel* m_tempoLabel = nullptr;
    QPushButton* m_tempoUpButton = nullptr;
    QPushButton* m_tempoDownButton = nullptr;
    int m_beatsCount = 4;
    QTreeWidgetItem* m_items[6] = {};
};

} // namespace QMMusic
