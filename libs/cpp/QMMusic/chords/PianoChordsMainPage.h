#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the piano.
class PianoChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(PianoChordsMainPage)

public:
    explicit PianoChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
