#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the balalaika page.
class BalalaikaShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(BalalaikaShop)

public:
    explicit BalalaikaShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
