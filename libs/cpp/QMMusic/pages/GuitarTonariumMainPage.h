#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class GuitarTonarium;

// The window of the guitar note finder: the menu bar on top of the page.
class GuitarTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarTonariumMainPage)

public:
    explicit GuitarTonariumMainPage(QWidget* parent = nullptr);

    GuitarTonarium* guitarTonarium() const;

    void addShopMenu() override;

private:
    GuitarTonarium* m_guitarTonarium = nullptr;
};

} // namespace QMMusic
