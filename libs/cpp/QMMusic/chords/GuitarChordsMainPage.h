#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the guitar.
class GuitarChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarChordsMainPage)

public:
    explicit GuitarChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
