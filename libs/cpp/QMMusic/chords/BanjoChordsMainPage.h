#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the banjo.
class BanjoChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoChordsMainPage)

public:
    explicit BanjoChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
