#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class BalalaikaTonarium;

// The window of the balalaika note finder.
class BalalaikaTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaTonariumMainPage)

public:
    explicit BalalaikaTonariumMainPage(QWidget* parent = nullptr);

    BalalaikaTonarium* balalaikaTonarium() const;

    void addShopMenu() override;

private:
    BalalaikaTonarium* m_balalaikaTonarium = nullptr;
};

} // namespace QMMusic
