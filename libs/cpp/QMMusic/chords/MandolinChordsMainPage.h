#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the mandolin.
class MandolinChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinChordsMainPage)

public:
    explicit MandolinChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
