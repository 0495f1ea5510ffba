#pragma once

#include "ChordsMainPage.h"

namespace QMMusic {

// The chord page of the ukulele.
class UkuleleChordsMainPage : public ChordsMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleChordsMainPage)

public:
    explicit UkuleleChordsMainPage(QWidget* parent = nullptr);

    void addShopMenu() override;
};

} // namespace QMMusic
