#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class BanjoTonarium;

// The window of the banjo note finder.
class BanjoTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoTonariumMainPage)

public:
    explicit BanjoTonariumMainPage(QWidget* parent = nullptr);

    BanjoTonarium* banjoTonarium() const;

    void addShopMenu() override;

private:
    BanjoTonarium* m_banjoTonarium = nullptr;
};

} // namespace QMMusic
