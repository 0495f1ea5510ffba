#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the viola tuner.
class ViolaShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolaShop)

public:
    explicit ViolaShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
