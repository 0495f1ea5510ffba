#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the cello tuner.
class CelloShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(CelloShop)

public:
    explicit CelloShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
