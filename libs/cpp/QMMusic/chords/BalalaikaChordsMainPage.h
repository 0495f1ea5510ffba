#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the balalaika.
class BalalaikaChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaChordsMainPage)

public:
    explicit BalalaikaChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
