#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the double bass tuner.
class DoubleBassShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(DoubleBassShop)

public:
    explicit DoubleBassShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
