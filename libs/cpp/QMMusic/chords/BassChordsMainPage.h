#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the bass guitar.
class BassChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(BassChordsMainPage)

public:
    explicit BassChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
