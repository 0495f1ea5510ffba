#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class ViolinTonarium;

// The window of the violin note finder.
class ViolinTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolinTonariumMainPage)

public:
    explicit ViolinTonariumMainPage(QWidget* parent = nullptr);

    ViolinTonarium* violinTonarium() const;

    void addShopMenu() override;

private:
    ViolinTonarium* m_violinTonarium = nullptr;
};

} // namespace QMMusic
