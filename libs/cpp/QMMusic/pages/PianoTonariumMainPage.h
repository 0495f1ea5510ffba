#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class PianoTonarium;

// The window of the piano note finder.
class PianoTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(PianoTonariumMainPage)

public:
    explicit PianoTonariumMainPage(QWidget* parent = nullptr);

    PianoTonarium* pianoTonarium() const;

    void addShopMenu() override;

private:
    PianoTonarium* m_pianoTonarium = nullptr;
};

} // namespace QMMusic
