#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the bass guitar, played high up the neck.
class BassChordsMainPage2 : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BassChordsMainPage2)

public:
    explicit BassChordsMainPage2(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
