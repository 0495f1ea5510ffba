#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class BassTonarium;

// The window of the bass note finder.
class BassTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BassTonariumMainPage)

public:
    explicit BassTonariumMainPage(QWidget* parent = nullptr);

    BassTonarium* bassTonarium() const;

    void addShopMenu() override;

private:
    BassTonarium* m_bassTonarium = nullptr;
};

} // namespace QMMusic
