#pragma once

#include "InstrumentMainPage.h"

namespace QMMusic {

class UkuleleTonarium;

// The window of the ukulele note finder.
class UkuleleTonariumMainPage : public InstrumentMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleTonariumMainPage)

public:
    explicit UkuleleTonariumMainPage(QWidget* parent = nullptr);

    UkuleleTonarium* ukuleleTonarium() const;

    void addShopMenu() override;

private:
    UkuleleTonarium* m_ukuleleTonarium = nullptr;
};

} // namespace QMMusic
