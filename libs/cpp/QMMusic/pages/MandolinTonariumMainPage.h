#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class MandolinTonarium;

// The window of the mandolin note finder.
class MandolinTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinTonariumMainPage)

public:
    explicit MandolinTonariumMainPage(QWidget* parent = nullptr);

    MandolinTonarium* mandolinTonarium() const;

    void addShopMenu() override;

private:
    MandolinTonarium* m_mandolinTonarium = nullptr;
};

} // namespace QMMusic
