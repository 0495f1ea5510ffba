#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the bass guitar page.
class BassShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BassShop)

public:
    explicit BassShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
