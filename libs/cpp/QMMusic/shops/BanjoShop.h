#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the banjo page.
class BanjoShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BanjoShop)

public:
    explicit BanjoShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
