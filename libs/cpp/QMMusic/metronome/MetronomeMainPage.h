#pragma once

#include <QFrame>

namespace QMWidgets {
class PromoMenuBar;
}

namespace QMMusic {

class Metronome;

// The metronome's window: the menu bar, without its rate button, over the
// metronome.
class MetronomeMainPage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(MetronomeMainPage)

public:
    explicit MetronomeMainPage(QWidget* parent = nullptr);

    // Room for the face above the controls.
    QSize sizeHint() const override;

    QMWidgets::PromoMenuBar* promoMenuBar() const;
    Metronome* metronome() const;

private:
    QMWidgets::PromoMenuBar* m_promoMenuBar = nullptr;
    Metronome* m_metronome = nullptr;
};

} // namespace QMMusic
